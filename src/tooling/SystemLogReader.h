#pragma once

#include "platform/RowStream.h"
#include "store/SystemLog.h"

// What a search asks for: seconds since 1970/1/1 UTC, both ends included; an empty user is every user.
struct SystemLogQuery
{
    qint32 from = 0;
    qint32 to = 0;
    QString user;
};

// Walks over the audit log from its last row to its first, a slice at a time: between two slices the event loop turns,
// however many rows there are. No statement is open then. Rows are written in the order of time, so that they come
// newest first, but for times at which the clock was set back.
class SystemLogReader
{
public:
    static constexpr int kSlice = 10; // milliseconds, about

    // With a filter only rows whose user or description holds its text (letters A to Z without regard to case).
    SystemLogReader(Databases& databases, const SystemLogQuery& query, const QString& filter = {});

    // Hands over the `columns` of the rows that come next; false when there are no more. Throws StoreError when the log
    // cannot be read, and what `visit` throws.
    bool read(const QString& columns, const std::function<void(const RowStream& row)>& visit);
    // The places of the rows that come next, put behind `places` so that all stand newest first.
    bool readPlaces(std::vector<SystemLogEntry>& places);
    void rewind();

private:
    Databases& m_databases;
    QString m_where;
    QVariantList m_values;
    qint64 m_below;  // places of the rows still to be looked at
    qint64 m_window; // places looked at together
};

// Opens the log where it is closed. Throws StoreError.
Connection& OpenSystemLog(Databases& databases);
