#pragma once

#include "platform/Connection.h"

#include <QStringList>

#include <vector>

class RowStream;
struct sqlite3_stmt;

// Takes one value of a row.
class CellSink
{
public:
    virtual ~CellSink() = default;
    virtual void text(const QString& value) = 0; // a null text is the empty one
    virtual void integer(qint64 value) = 0;
    virtual void real(double value) = 0;
};

// Adds rows to a table, each value given to the engine as it is: for saves of many rows. Throws StoreError when the
// statement cannot be made or a row does not go in. The connection must stay open for the life of the object.
class RowInsert final : public CellSink
{
public:
    RowInsert(const Connection& connection, const QString& table, const QStringList& fields);
    ~RowInsert() override;
    RowInsert(const RowInsert&) = delete;
    RowInsert& operator=(const RowInsert&) = delete;

    void setField(std::size_t field) { m_field = field; } // which the next value is of, from 0
    void text(const QString& value) override;
    void integer(qint64 value) override;
    void real(double value) override;
    // The value of a field of another file's present row, whatever its type.
    void copy(const RowStream& from, int field);
    // Writes the row; fields that are not set again keep their values for the next one.
    void add();

private:
    struct Text
    {
        QString value;
        QByteArray bytes; // bound to the statement
    };
    sqlite3_stmt* m_statement = nullptr;
    std::size_t m_field = 0;
    std::vector<Text> m_texts;
};
