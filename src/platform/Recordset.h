#pragma once

#include "platform/Connection.h"
#include "platform/RowInsert.h"

#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <map>
#include <memory>
#include <vector>

enum class CursorType
{
    ForwardOnly, // rows stream by; MoveFirst, MoveNext and reading only
    Keyset,      // rows are taken when first positioned on; adding, changing and deleting show
    Static
};
enum class LockType
{
    ReadOnly,
    Optimistic
};
enum class CommandType
{
    Text,
    Table
};

// Rows of a table or a statement, with the operations that the tables' procedures need. Fields go by name (without
// regard to case) or by the index that fieldIndex() gave (from 0). Every operation throws StoreError when it fails.
class Recordset
{
public:
    Recordset() = default;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    // Table: `source` is a table's name. Text: a statement in the system's own spelling ("Select * From …",
    // "Delete * From …", "Delete T From (Select TOP n * From T)"); `values` are bound to its "?" in order. A statement
    // that deletes is carried out at once and leaves the recordset closed.
    void open(const QString& source, Connection& connection, CursorType cursor, LockType lock, CommandType command,
              const QVariantList& values = {});
    void close();
    bool isOpen() const { return m_open; }

    qint64 recordCount();
    bool eof();
    void moveFirst();
    void move(qint64 rows); // relative to the present row
    void moveNext() { move(1); }

    QStringList fieldNames() const { return m_names; }
    int fieldIndex(const QString& name) const; // throws when there is no such field
    const QVariant& value(int field);
    const QVariant& value(const QString& name) { return value(fieldIndex(name)); }

    // A new row (addNew) or the present one is changed in memory; update() writes the fields that were set, all others
    // keep the table's default or their value. Without a change update() does nothing. A failed update drops the
    // change.
    void addNew();
    void setValue(int field, const QVariant& value);
    void setValue(const QString& name, const QVariant& value) { setValue(fieldIndex(name), value); }
    void update();
    void cancelUpdate();
    // For adding many rows to the open table at once; they do not show in this recordset.
    std::unique_ptr<RowInsert> insertOf(const QStringList& fields) const;
    void deleteRow(); // the present row; the following one becomes present

private:
    enum class Edit
    {
        None,
        Adding,
        Changing
    };

    QSqlQuery run(const QString& sql, const QVariantList& values, bool forwardOnly);
    void fetchAll();
    bool fetchNext();
    void requirePresentRow();
    void insertPending();
    void changePresent();
    qsizetype cell(qint64 row, int field) const;

    Connection* m_connection = nullptr;
    bool m_open = false;
    bool m_streaming = false;
    bool m_keyed = false; // the statement gives row ids, so rows can be changed
    bool m_fetched = false;
    LockType m_lock = LockType::ReadOnly;
    QString m_table;
    QString m_sql;
    QVariantList m_values;
    QSqlQuery m_stream;
    bool m_streamAtEnd = false;

    QStringList m_names;
    QHash<QString, int> m_index; // lower-case name to index
    std::vector<QVariant> m_cells;
    std::vector<qint64> m_rowIds;
    std::vector<qsizetype> m_order; // present rows as indices into m_cells and m_rowIds
    qint64 m_row = 0;

    Edit m_edit = Edit::None;
    std::vector<QVariant> m_pending;
    std::vector<bool> m_isSet;
    std::map<std::vector<bool>, std::unique_ptr<QSqlQuery>> m_inserts; // prepared, by the fields they set
};
