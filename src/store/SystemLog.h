#pragma once

#include "store/Databases.h"
#include "store/TableDescription.h"

#include <array>
#include <span>
#include <vector>

// A row of the audit trail. TimeStamp: seconds since 1970/1/1, UTC. Description is English and never translated.
struct SystemLogRow
{
    qint32 TimeStamp = 0;
    QString User;
    QString Description;
};

inline constexpr std::array SystemLogColumns{Field<&SystemLogRow::TimeStamp>("TimeStamp"),
                                             Field<&SystemLogRow::User>("User"),
                                             Field<&SystemLogRow::Description>("Description")};

// Adds a row; 1 or 0. The count of rows is kept in 16 bits: above 32767 rows each call logs an overflow and still adds.
qint16 SaveSystemLog(Databases& databases, qint32 timeStamp, const QString& user, const QString& description);
// Rows of a span of time (both ends included), newest first; an empty user is every user. 1 or 0.
qint16 GetSystemLog(Databases& databases, qint32 from, qint32 to, const QString& user, std::vector<SystemLogRow>& rows);

// Where a row stands, without its texts: what a search of a million rows can hold.
struct SystemLogEntry
{
    qint64 rowId = 0;
    qint32 TimeStamp = 0;
};
// The rows of some places, in their order; one that is gone by now is left out. 1 or 0.
qint16 FetchSystemLog(Databases& databases, std::span<const SystemLogEntry> entries, std::vector<SystemLogRow>& rows);
// The distinct users of the trail. 1 or 0.
qint16 GetSystemLogUser(Databases& databases, QStringList& users);
