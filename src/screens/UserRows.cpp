#include "screens/UserRows.h"

#include "screens/StartStore.h"
#include "store/TableRows.h"
#include "store/tables/Tables.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void DeleteOrphans(Databases& databases, const QSet<QString>& owners, const QString& table, const QString& key)
{
    OpenStatement(databases, u"Select * From "_s + table, LockType::Optimistic);
    Recordset& rows = *databases.DBRec;
    const int owner = rows.fieldIndex(key);
    while (!rows.eof()) {
        if (owners.contains(TextField(rows.value(owner))))
            rows.moveNext();
        else
            rows.deleteRow();
    }
    rows.close();
}

} // namespace

void DeleteRowsOfOthers(Databases& databases, const QStringList& users)
{
    const QSet<QString> owners(users.begin(), users.end());
    DeleteOrphans(databases, owners, u"DefaultStart"_s, u"sOwner"_s);
    DeleteOrphans(databases, owners, u"Pattern"_s, u"sOwner"_s);
    for (const SequenceTable& table : kSequenceTables)
        DeleteOrphans(databases, owners, QString(table.name), u"UserName"_s);
    DeleteOrphans(databases, owners, u"VideoWall"_s, u"sLoginUser"_s);
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
            if (!owners.contains(user)) {
                DefaultStartRow start = FirstStart(user, monitors);
                start.bFixStart = false; // as new users have it; reading mends it
                add(TableRowOf(start));
            }
            owners << user;
        }
    });
    rows.close();
}
