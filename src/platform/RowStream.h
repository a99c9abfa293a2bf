#pragma once

#include "platform/Connection.h"

#include <QByteArrayView>
#include <QVariantList>

struct sqlite3_stmt;

// Rows of one statement, each read once and not held: for walks over very many rows. Fields go by index from 0. Throws
// StoreError when a step fails. The connection must stay open for the life of the stream.
class RowStream
{
public:
    RowStream(const Connection& connection, const QString& sql, const QVariantList& values = {});
    ~RowStream();
    RowStream(const RowStream&) = delete;
    RowStream& operator=(const RowStream&) = delete;

    bool next();
    qint64 integer(int field) const;      // null reads as 0
    QByteArrayView text(int field) const; // UTF-8, valid until next(); null reads as the empty text

private:
    friend class RowInsert; // copies values as they are
    sqlite3_stmt* m_statement = nullptr;
};
