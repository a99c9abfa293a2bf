#include "platform/RowStream.h"

#include "platform/EngineHandle.h"

#include <QVariant>

using namespace Qt::StringLiterals;

RowStream::RowStream(const Connection& connection, const QString& sql, const QVariantList& values)
{
    sqlite3* database = EngineHandle(connection);
    const QByteArray bytes = sql.toUtf8();
    if (sqlite3_prepare_v2(database, bytes.constData(), static_cast<int>(bytes.size()), &m_statement, nullptr) !=
        SQLITE_OK)
        FailWith(database, sql.left(80));
    for (int i = 0; i < static_cast<int>(values.size()); ++i) {
        const QVariant& value = values.at(i);
        if (value.metaType().id() == QMetaType::QString) {
            const QByteArray text = value.toString().toUtf8();
            sqlite3_bind_text(m_statement, i + 1, text.constData(), static_cast<int>(text.size()),
                              reinterpret_cast<sqlite3_destructor_type>(-1)); // the store takes a copy
        } else {
            sqlite3_bind_int64(m_statement, i + 1, value.toLongLong());
        }
    }
}

RowStream::~RowStream()
{
    sqlite3_finalize(m_statement);
}

bool RowStream::next()
{
    const int result = sqlite3_step(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        FailWith(sqlite3_db_handle(m_statement), QString::fromUtf8(sqlite3_sql(m_statement)).left(80));
    return false;
}

qint64 RowStream::integer(int field) const
{
    return sqlite3_column_int64(m_statement, field);
}

QByteArrayView RowStream::text(int field) const
{
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, field));
    return bytes ? QByteArrayView(bytes, sqlite3_column_bytes(m_statement, field)) : QByteArrayView();
}
