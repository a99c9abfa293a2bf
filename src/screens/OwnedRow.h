#pragma once

#include "app/log/Module_Log.h"
#include "store/TableRows.h"

// Rows of which an owner has one. `statement` selects them, with `key` bound to its "?".

// A text that is bound: an owner without a name is the empty text, never null.
inline QVariant Bound(const QString& text)
{
    return text.isNull() ? QVariant(QLatin1String("")) : QVariant(text);
}

// Writes the row into the first one selected, or adds it; rows behind the first are duplicates and go, with a log line.
// As one step; 1 or 0.
template <class Row, std::size_t N>
qint16 WriteOwnedRow(Databases& databases, const QString& table, const QString& statement, const QVariantList& key,
                     const std::array<Column<Row>, N>& columns, QLatin1String source, const Row& row)
{
    return AsOneStep(databases, source, [&]() -> qint16 {
        OpenStatement(databases, statement, LockType::Optimistic, key);
        Recordset& rows = *databases.DBRec;
        if (rows.eof())
            rows.addNew();
        TableAccess<Row>(rows, columns, source).write(row);
        rows.update();
        rows.moveFirst();
        rows.moveNext();
        const bool twice = !rows.eof();
        while (!rows.eof())
            rows.deleteRow();
        rows.close();
        if (twice)
            LogTrap(source, table + QStringLiteral(" held rows twice; the first one stays"));
        return 1;
    });
}
