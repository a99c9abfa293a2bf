#include "platform/EngineHandle.h"

#include <QSqlDriver>
#include <QVariant>

#include <cstring>

using namespace Qt::StringLiterals;

sqlite3* EngineHandle(const Connection& connection)
{
    if (!connection.isOpen())
        throw StoreError(u"Operation is not allowed when the connection is closed"_s);
    const QVariant handle = connection.database().driver()->handle();
    if (!handle.isValid() || std::strcmp(handle.typeName(), "sqlite3*") != 0)
        throw StoreError(u"The store gives no handle"_s);
    return *static_cast<sqlite3* const*>(handle.data());
}

void FailWith(sqlite3* database, const QString& what)
{
    throw StoreError(what + u": "_s + QString::fromUtf8(sqlite3_errmsg(database)), sqlite3_errcode(database));
}

QString QuotedName(const QString& identifier)
{
    QString doubled = identifier;
    doubled.replace(u'"', u"\"\""_s);
    return u'"' + doubled + u'"';
}
