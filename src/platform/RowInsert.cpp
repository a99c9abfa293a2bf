#include "platform/RowInsert.h"

#include "platform/EngineHandle.h"
#include "platform/RowStream.h"

using namespace Qt::StringLiterals;

RowInsert::RowInsert(const Connection& connection, const QString& table, const QStringList& fields)
    : m_texts(static_cast<std::size_t>(fields.size()))
{
    QStringList names;
    for (const QString& field : fields)
        names << QuotedName(field);
    const QString sql = fields.isEmpty()
                            ? u"INSERT INTO %1 DEFAULT VALUES"_s.arg(QuotedName(table))
                            : u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(QuotedName(table), names.join(u','),
                                                                       QStringList(fields.size(), u"?"_s).join(u','));
    sqlite3* database = EngineHandle(connection);
    const QByteArray bytes = sql.toUtf8();
    if (sqlite3_prepare_v2(database, bytes.constData(), static_cast<int>(bytes.size()), &m_statement, nullptr) !=
        SQLITE_OK)
        FailWith(database, sql.left(80));
}

RowInsert::~RowInsert()
{
    sqlite3_finalize(m_statement);
}

// Most texts of a table repeat from row to row: what is bound already stays bound.
void RowInsert::text(const QString& value)
{
    Text& text = m_texts[m_field];
    if (!text.bytes.isNull() && text.value == value)
        return;
    text.value = value;
    text.bytes = value.toUtf8();
    if (text.bytes.isNull())
        text.bytes = QByteArray("");
    sqlite3_bind_text(m_statement, static_cast<int>(m_field) + 1, text.bytes.constData(),
                      static_cast<int>(text.bytes.size()), SQLITE_STATIC);
}

void RowInsert::integer(qint64 value)
{
    sqlite3_bind_int64(m_statement, static_cast<int>(m_field) + 1, value);
}

void RowInsert::real(double value)
{
    sqlite3_bind_double(m_statement, static_cast<int>(m_field) + 1, value);
}

void RowInsert::copy(const RowStream& from, int field)
{
    m_texts[m_field] = {};
    sqlite3_bind_value(m_statement, static_cast<int>(m_field) + 1, sqlite3_column_value(from.m_statement, field));
}

void RowInsert::add()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_DONE) {
        sqlite3_reset(m_statement);
        return;
    }
    sqlite3* database = sqlite3_db_handle(m_statement);
    const StoreError error(u"Insert: "_s + QString::fromUtf8(sqlite3_errmsg(database)), sqlite3_errcode(database));
    sqlite3_reset(m_statement);
    throw error;
}
