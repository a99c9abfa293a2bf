#pragma once

#include "app/log/Module_Log.h"
#include "store/Databases.h"

#include <QString>

// Proves the table, opens `statement` over it and calls `eachRow` with the recordset, which walks it. 1, or 0 when the
// table cannot be opened or the walk was given up (one log line under `source`).
template <class EachRow>
qint16 ReadRows(Databases& databases, const QString& table, const QString& statement, QLatin1String source,
                EachRow&& eachRow)
{
    if (OpenRecset(databases, table) == 0)
        return 0;
    const bool ok = Trapped(source, [&] {
        OpenStatement(databases, statement, LockType::ReadOnly);
        eachRow(*databases.DBRec);
    });
    Trapped(source, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
}

// Deletes the rows of a table one by one; throws when one cannot be deleted.
inline void DeleteAllRows(Databases& databases, const QString& table)
{
    OpenStatement(databases, QStringLiteral("Select * From ") + table, LockType::Optimistic);
    for (databases.DBRec->moveFirst(); !databases.DBRec->eof();)
        databases.DBRec->deleteRow();
}

// Carries out `deleteRows`, which empties the table, then opens it and lets `addRows` write the new rows. Nothing is
// added when the old rows could not be deleted: new ones would stand beside them. 1 or 0 as above.
template <class DeleteRows, class AddRows>
qint16 ReplaceRows(Databases& databases, const QString& table, QLatin1String source, DeleteRows&& deleteRows,
                   AddRows&& addRows)
{
    if (!Trapped(source, deleteRows) || OpenRecset(databases, table) == 0)
        return 0;
    const bool ok = Trapped(source, [&] { addRows(*databases.DBRec); });
    Trapped(source, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
}
