#include "platform/Recordset.h"

#include "platform/EngineHandle.h"

#include <QRegularExpression>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace {

struct Statement
{
    QString sql;
    QString table; // of a statement over one whole table's columns
    bool deletes = false;
};

// The system's spelling of statements in that of the store.
Statement Translate(const QString& text)
{
    static const QRegularExpression deleteTop(
        uR"(^\s*delete\s+(\w+)\s+from\s*\(\s*select\s+top\s+(\d+)\s+\*\s+from\s+\1\s*\)\s*$)"_s,
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression deleteRows(uR"(^\s*delete\s+(?:\*\s+)?from\s+(.*)$)"_s,
                                               QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression selectRows(uR"(^\s*select\s+\*\s+from\s+(\w+)\b(.*)$)"_s,
                                               QRegularExpression::CaseInsensitiveOption |
                                                   QRegularExpression::DotMatchesEverythingOption);
    if (const auto match = deleteTop.match(text); match.hasMatch()) {
        const QString table = QuotedName(match.captured(1));
        return {u"DELETE FROM %1 WHERE rowid IN (SELECT rowid FROM %1 ORDER BY rowid LIMIT %2)"_s.arg(
                    table, match.captured(2)),
                {},
                true};
    }
    if (const auto match = deleteRows.match(text); match.hasMatch())
        return {u"DELETE FROM "_s + match.captured(1), {}, true};
    if (const auto match = selectRows.match(text); match.hasMatch()) {
        const QString table = QuotedName(match.captured(1));
        return {u"SELECT rowid, * FROM "_s + table + match.captured(2), match.captured(1), false};
    }
    return {text, {}, false};
}

} // namespace

QSqlQuery Recordset::run(const QString& sql, const QVariantList& values, bool forwardOnly)
{
    QSqlQuery query(m_connection->database());
    query.setForwardOnly(forwardOnly);
    bool ok = query.prepare(sql);
    if (ok) {
        for (const QVariant& value : values)
            query.addBindValue(value);
        ok = query.exec();
    }
    m_connection->noteResult(query.lastError());
    if (!ok)
        throw StoreError(sql.left(80), query.lastError());
    return query;
}

void Recordset::open(const QString& source, Connection& connection, CursorType cursor, LockType lock,
                     CommandType command, const QVariantList& values)
{
    close();
    if (!connection.isOpen())
        throw StoreError(u"Operation is not allowed when the connection is closed"_s);
    m_connection = &connection;
    m_lock = lock;
    m_streaming = cursor == CursorType::ForwardOnly;
    m_values = values;

    Statement statement;
    if (command == CommandType::Table)
        statement = {u"SELECT rowid, * FROM "_s + QuotedName(source), source, false};
    else
        statement = Translate(source);
    if (statement.deletes) {
        run(statement.sql, values, true);
        return;
    }
    m_sql = statement.sql;
    m_table = statement.table;
    m_keyed = !m_table.isEmpty();

    QSqlQuery query = run(m_sql, m_values, true);
    const QSqlRecord record = query.record();
    for (int i = m_keyed ? 1 : 0; i < record.count(); ++i) {
        m_index.insert(record.fieldName(i).toLower(), static_cast<int>(m_names.size()));
        m_names << record.fieldName(i);
    }
    m_open = true;
    if (m_streaming) {
        m_stream = std::move(query);
        fetchNext();
    }
}

void Recordset::close()
{
    m_open = false;
    m_keyed = false;
    m_fetched = false;
    m_streamAtEnd = false;
    m_table.clear();
    m_stream = QSqlQuery();
    m_names.clear();
    m_index.clear();
    m_cells.clear();
    m_rowIds.clear();
    m_order.clear();
    m_row = 0;
    m_inserts.clear();
    cancelUpdate();
}

void Recordset::fetchAll()
{
    if (m_fetched || m_streaming)
        return;
    if (!m_open)
        throw StoreError(u"Operation is not allowed when the object is closed"_s);
    QSqlQuery query = run(m_sql, m_values, true);
    const int shift = m_keyed ? 1 : 0;
    const int fields = static_cast<int>(m_names.size());
    while (query.next()) {
        m_order.push_back(static_cast<qsizetype>(m_rowIds.size()));
        m_rowIds.push_back(m_keyed ? query.value(0).toLongLong() : 0);
        for (int i = 0; i < fields; ++i)
            m_cells.push_back(query.value(i + shift));
    }
    m_connection->noteResult(query.lastError());
    if (query.lastError().isValid())
        throw StoreError(m_sql.left(80), query.lastError());
    m_fetched = true;
    m_row = 0;
}

bool Recordset::fetchNext()
{
    if (m_streamAtEnd)
        return false;
    m_cells.clear();
    m_order.clear();
    if (!m_stream.next()) {
        m_streamAtEnd = true;
        if (m_stream.lastError().isValid())
            throw StoreError(m_sql.left(80), m_stream.lastError());
        return false;
    }
    for (int i = 0; i < static_cast<int>(m_names.size()); ++i)
        m_cells.push_back(m_stream.value(i + (m_keyed ? 1 : 0)));
    m_order.push_back(0);
    return true;
}

qint64 Recordset::recordCount()
{
    if (!m_open)
        throw StoreError(u"Operation is not allowed when the object is closed"_s);
    if (m_streaming)
        return -1; // unknown while rows stream by
    if (!m_fetched && m_sql == u"SELECT rowid, * FROM "_s + QuotedName(m_table)) {
        QSqlQuery query = run(u"SELECT COUNT(*) FROM "_s + QuotedName(m_table), {}, true);
        query.next();
        return query.value(0).toLongLong();
    }
    fetchAll();
    return static_cast<qint64>(m_order.size());
}

bool Recordset::eof()
{
    if (m_streaming)
        return m_streamAtEnd;
    fetchAll();
    return m_row >= static_cast<qint64>(m_order.size());
}

void Recordset::moveFirst()
{
    cancelUpdate();
    if (m_streaming)
        return; // stands on the first row after open
    fetchAll();
    m_row = 0;
}

void Recordset::move(qint64 rows)
{
    cancelUpdate();
    if (m_streaming) {
        while (rows-- > 0 && fetchNext()) {
        }
        return;
    }
    fetchAll();
    m_row = qBound(qint64(0), m_row + rows, static_cast<qint64>(m_order.size()));
}

int Recordset::fieldIndex(const QString& name) const
{
    const auto found = m_index.constFind(name.toLower());
    if (found == m_index.constEnd())
        throw StoreError(u"Item '%1' cannot be found in the collection"_s.arg(name));
    return *found;
}

std::unique_ptr<RowInsert> Recordset::insertOf(const QStringList& fields) const
{
    if (!m_open || m_table.isEmpty())
        throw StoreError(u"The recordset does not support updating"_s);
    return std::make_unique<RowInsert>(*m_connection, m_table, fields);
}

void Recordset::requirePresentRow()
{
    if (eof())
        throw StoreError(u"Either BOF or EOF is True, or the current record has been deleted"_s);
}

qsizetype Recordset::cell(qint64 row, int field) const
{
    return m_order[static_cast<std::size_t>(row)] * m_names.size() + field;
}

const QVariant& Recordset::value(int field)
{
    if (m_edit != Edit::None && m_isSet[static_cast<std::size_t>(field)])
        return m_pending[static_cast<std::size_t>(field)];
    requirePresentRow();
    return m_cells[static_cast<std::size_t>(cell(m_streaming ? 0 : m_row, field))];
}

void Recordset::addNew()
{
    if (!m_open || !m_keyed || m_lock == LockType::ReadOnly || m_streaming)
        throw StoreError(u"The recordset does not support updating"_s);
    m_edit = Edit::Adding;
    m_pending.assign(static_cast<std::size_t>(m_names.size()), QVariant());
    m_isSet.assign(static_cast<std::size_t>(m_names.size()), false);
}

void Recordset::setValue(int field, const QVariant& value)
{
    if (m_edit == Edit::None) {
        requirePresentRow();
        addNew();
        m_edit = Edit::Changing;
    }
    m_pending[static_cast<std::size_t>(field)] = value;
    m_isSet[static_cast<std::size_t>(field)] = true;
}

void Recordset::cancelUpdate()
{
    m_edit = Edit::None;
}

void Recordset::update()
{
    if (m_edit == Edit::None)
        return;
    const Edit edit = m_edit;
    m_edit = Edit::None;
    if (edit == Edit::Adding)
        insertPending();
    else
        changePresent();
}

void Recordset::insertPending()
{
    std::unique_ptr<QSqlQuery>& insert = m_inserts[m_isSet];
    if (!insert) {
        QStringList names;
        QStringList marks;
        for (int i = 0; i < static_cast<int>(m_names.size()); ++i) {
            if (m_isSet[static_cast<std::size_t>(i)]) {
                names << QuotedName(m_names[i]);
                marks << u"?"_s;
            }
        }
        const QString sql =
            names.isEmpty()
                ? u"INSERT INTO %1 DEFAULT VALUES"_s.arg(QuotedName(m_table))
                : u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(QuotedName(m_table), names.join(u','), marks.join(u','));
        auto query = std::make_unique<QSqlQuery>(m_connection->database());
        query->setForwardOnly(true);
        if (!query->prepare(sql)) {
            m_connection->noteResult(query->lastError());
            throw StoreError(sql.left(80), query->lastError());
        }
        insert = std::move(query);
    }
    int position = 0;
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (m_isSet[i])
            insert->bindValue(position++, m_pending[i]);
    }
    const bool ok = insert->exec();
    m_connection->noteResult(insert->lastError());
    if (!ok)
        throw StoreError(u"Insert into "_s + m_table, insert->lastError());
    if (m_fetched) {
        m_order.push_back(static_cast<qsizetype>(m_rowIds.size()));
        m_rowIds.push_back(insert->lastInsertId().toLongLong());
        m_cells.insert(m_cells.end(), m_pending.begin(), m_pending.end());
        m_row = static_cast<qint64>(m_order.size()) - 1;
    }
    insert->finish();
}

void Recordset::changePresent()
{
    QStringList assignments;
    QVariantList values;
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (m_isSet[i]) {
            assignments << QuotedName(m_names[static_cast<qsizetype>(i)]) + u"=?"_s;
            values << m_pending[i];
        }
    }
    values << m_rowIds[static_cast<std::size_t>(m_order[static_cast<std::size_t>(m_row)])];
    run(u"UPDATE %1 SET %2 WHERE rowid=?"_s.arg(QuotedName(m_table), assignments.join(u',')), values, true);
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (m_isSet[i])
            m_cells[static_cast<std::size_t>(cell(m_row, static_cast<int>(i)))] = m_pending[i];
    }
}

void Recordset::deleteRow()
{
    if (!m_keyed || m_lock == LockType::ReadOnly || m_streaming)
        throw StoreError(u"The recordset does not support updating"_s);
    requirePresentRow();
    cancelUpdate();
    const auto position = m_order.begin() + m_row;
    run(u"DELETE FROM %1 WHERE rowid=?"_s.arg(QuotedName(m_table)), {m_rowIds[static_cast<std::size_t>(*position)]},
        true);
    m_order.erase(position);
}
