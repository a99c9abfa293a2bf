#include "screens/UserRows.h"

#include "store/TableRows.h"
#include "store/records/ScreenRecords.h"
#include "store/tables/Tables.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kStartPanes = 64; // panes of the viewer's layout at last exit

void DeleteOrphans(Databases& databases, const QSet<QString>& owners, const QString& table)
{
    OpenStatement(databases, u"Select * From "_s + table, LockType::Optimistic);
    Recordset& rows = *databases.DBRec;
    const int owner = rows.fieldIndex(u"sOwner"_s);
    while (!rows.eof()) {
        if (owners.contains(TextField(rows.value(owner))))
            rows.moveNext();
        else
            rows.deleteRow();
    }
    rows.close();
}

DefaultStartTableRow FirstStart(const QString& owner, int monitors)
{
    DefaultStartTableRow row;
    row.sOwner = owner;
    row.bFixStart = false;
    row.bSEQStart = false;
    row.MVChannel = QStringList(kStartPanes, u"-1"_s).join(u',');
    row.sForm_FullScreen = QStringList(std::max(1, monitors), u"0:0"_s).join(u',');
    return row;
}

} // namespace

void DeleteRowsOfOthers(Databases& databases, const QStringList& users)
{
    const QSet<QString> owners(users.begin(), users.end());
    DeleteOrphans(databases, owners, u"DefaultStart"_s);
    DeleteOrphans(databases, owners, u"Pattern"_s);
}

void AddFirstStarts(Databases& databases, const QStringList& users, int monitors)
{
    OpenStatement(databases, u"Select * From DefaultStart"_s, LockType::Optimistic);
    Recordset& rows = *databases.DBRec;
    QSet<QString> owners;
    for (; !rows.eof(); rows.moveNext())
        owners << TextField(rows.value(u"sOwner"_s));
    AddRows(rows, DefaultStartColumns, "Module_DB_Access - SaveUser"_L1, [&](auto&& add) {
        for (const QString& user : users) {
            if (!owners.contains(user))
                add(FirstStart(user, monitors));
            owners << user;
        }
    });
    rows.close();
}
