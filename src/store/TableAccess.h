#pragma once

#include "app/log/Module_Log.h"
#include "platform/Recordset.h"
#include "store/TableDescription.h"

#include <array>
#include <vector>

// The columns of a description found in an open recordset. A column that the table lacks costs one log line under
// `source` when it is looked up, and its member keeps what it held.
template <class Row>
class TableAccess
{
public:
    template <std::size_t N>
    TableAccess(Recordset& recordset, const std::array<Column<Row>, N>& columns, QLatin1String source)
        : m_recordset(recordset)
        , m_source(source)
    {
        m_columns.reserve(N);
        for (const Column<Row>& column : columns) {
            const bool found = Trapped(source, [&] {
                m_columns.push_back({&column, recordset.fieldIndex(QString::fromLatin1(column.info.name))});
            });
            m_complete = m_complete && found;
        }
    }

    // The table has every column of the description.
    bool complete() const { return m_complete; }

    // Reads the present row field by field: a value that is null or does not fit costs that field one log line.
    void read(Row& row)
    {
        for (const Bound& bound : m_columns) {
            const FieldUse use = bound.column->info.use;
            if (use == FieldUse::ReadWrite || use == FieldUse::ReadOnly)
                Trapped(m_source, [&] { bound.column->read(row, m_recordset.value(bound.field)); });
        }
    }

    // Sets the fields of the row being added or changed; the caller ends with update().
    void write(const Row& row)
    {
        for (const Bound& bound : m_columns) {
            const FieldUse use = bound.column->info.use;
            if (use == FieldUse::ReadWrite || use == FieldUse::WriteOnly)
                Trapped(m_source, [&] { m_recordset.setValue(bound.field, bound.column->write(row)); });
        }
    }

private:
    struct Bound
    {
        const Column<Row>* column;
        int field;
    };
    Recordset& m_recordset;
    QLatin1String m_source;
    std::vector<Bound> m_columns;
    bool m_complete = true;
};

// Adds rows of one or more groups of columns to an open table. A column that the table lacks costs one log line when it
// is looked up.
template <class Row>
class TableInsert
{
public:
    template <std::size_t... N>
    TableInsert(const Recordset& table, QLatin1String source, const std::array<Column<Row>, N>&... groups)
    {
        QStringList fields;
        const auto take = [&](const auto& columns) {
            for (const Column<Row>& column : columns) {
                if (column.info.use != FieldUse::ReadWrite && column.info.use != FieldUse::WriteOnly)
                    continue;
                Trapped(source, [&] {
                    const QString name = QString::fromLatin1(column.info.name);
                    table.fieldIndex(name);
                    fields << name;
                    m_columns.push_back(&column);
                });
            }
        };
        (take(groups), ...);
        m_insert = table.insertOf(fields);
    }

    // Throws what a value or the engine throws; the next row is a new one.
    void add(const Row& row)
    {
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            m_insert->setField(i);
            m_columns[i]->put(row, *m_insert);
        }
        m_insert->add();
    }

private:
    std::vector<const Column<Row>*> m_columns;
    std::unique_ptr<RowInsert> m_insert;
};
