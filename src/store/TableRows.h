#pragma once

#include "store/Databases.h"
#include "store/TableAccess.h"

#include <QString>

// Proves the table, opens `statement` over it and calls `eachRow` with the recordset, which walks it. 1, or 0 (one log
// line under `source`) when the table cannot be opened or the walk was given up: then it is not written over either.
// `values` are bound to the statement's "?".
template <class EachRow>
qint16 ReadRows(Databases& databases, const QString& table, const QString& statement, QLatin1String source,
                EachRow&& eachRow, const QVariantList& values = {})
{
    databases.unread.insert(table);
    if (OpenRecset(databases, table) == 0)
        return 0;
    const bool ok = Trapped(source, [&] {
        OpenStatement(databases, statement, LockType::ReadOnly, values, CursorType::ForwardOnly);
        eachRow(*databases.DBRec);
        databases.unread.remove(table);
    });
    Trapped(source, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
}

// The same over rows of one description: calls `take` with each row read into a copy of `fresh`. What `take` throws
// costs that row one log line. A table that lacks one of the columns counts as not read, though its rows are handed
// over: what it lacks may be what tells them apart.
template <class Row, std::size_t N, class Take>
qint16 ReadTable(Databases& databases, const QString& table, const QString& statement,
                 const std::array<Column<Row>, N>& columns, QLatin1String source, Take&& take, const Row& fresh = {},
                 const QVariantList& values = {})
{
    const auto eachRow = [&](Recordset& rows) {
        TableAccess<Row> access(rows, columns, source);
        for (; !rows.eof(); rows.moveNext()) {
            Trapped(source, [&] {
                Row row = fresh;
                access.read(row);
                take(std::move(row));
            });
        }
        if (!access.complete())
            throw StoreError(table + QStringLiteral(" lacks a column"));
    };
    return ReadRows(databases, table, statement, source, eachRow, values);
}

// Carries out `work` as one step in the file: all of it stands, or nothing when it answers 0 or throws (one log line
// under `source`). 1 or 0. One step inside another is a part of it.
template <class Work>
qint16 AsOneStep(Databases& databases, QLatin1String source, Work&& work)
{
    qint16 result = 0;
    Trapped(source, [&] {
        if (!databases.DBConn)
            throw StoreError(QStringLiteral("Object variable not set"));
        if (!databases.DBConn->isOpen())
            databases.DBConn->open();
        Transaction step(*databases.DBConn);
        if (work() == 0)
            return;
        step.commit();
        result = 1;
    });
    return result;
}

// One row of a save: a failure costs it one log line and the others go in, but a file that fails ends the save.
template <class Work>
void SaveRow(QLatin1String source, Work&& work)
{
    try {
        work();
    } catch (const StoreError& error) {
        if (error.fileFailed())
            throw;
        LogTrap(source, QString::fromUtf8(error.what()));
    } catch (...) {
        Trapped(source, [] { throw; });
    }
}

// Adds rows of one description to an open table: `fill` is called with a function that adds one.
template <class Row, std::size_t N, class Fill>
void AddRows(Recordset& rows, const std::array<Column<Row>, N>& columns, QLatin1String source, Fill&& fill)
{
    TableInsert<Row> table(rows, source, columns);
    fill([&](const Row& row) { SaveRow(source, [&] { table.add(row); }); });
}

// As one step: carries out `deleteRows` (a statement), opens the table and lets `addRows` write the new rows. Nothing
// is changed when the table could not be read before, when the old rows cannot be deleted or when `addRows` throws. 1
// or 0. `values` are bound to the statement's "?".
template <class AddNew>
qint16 ReplaceRows(Databases& databases, const QString& table, const QString& deleteRows, QLatin1String source,
                   AddNew&& addRows, const QVariantList& values = {})
{
    if (databases.unread.contains(table)) {
        LogTrap(source, table + QStringLiteral(" could not be read and is not written over"));
        return 0;
    }
    const qint16 result = AsOneStep(databases, source, [&]() -> qint16 {
        OpenStatement(databases, deleteRows, LockType::Optimistic, values);
        if (OpenRecset(databases, table) == 0)
            return 0;
        addRows(*databases.DBRec);
        return 1;
    });
    Trapped(source, [&] { databases.DBRec->close(); });
    return result;
}

// The same over rows of one description, see AddRows.
template <class Row, std::size_t N, class Fill>
qint16 ReplaceTable(Databases& databases, const QString& table, const QString& deleteRows,
                    const std::array<Column<Row>, N>& columns, QLatin1String source, Fill&& fill,
                    const QVariantList& values = {})
{
    return ReplaceRows(
        databases, table, deleteRows, source, [&](Recordset& rows) { AddRows(rows, columns, source, fill); }, values);
}
