#pragma once

#include "platform/Connection.h"
#include "platform/Recordset.h"

#include <QSet>
#include <memory>

// Database files relative to AppPath.
inline constexpr auto kDatabaseFile = u"\\Database\\Database.mdb";
inline constexpr auto kTemplateFile = u"\\Database\\Database.mdb.tmp";
inline constexpr auto kBackup1File = u"\\Database\\Database_Backup1.mdb";
inline constexpr auto kBackup2File = u"\\Database\\Database_Backup2.mdb";
inline constexpr auto kSystemLogFile = u"\\Database\\SystemLog.mdb";
inline constexpr auto kSystemLogDoneFile = u"\\Database\\SystemLog_Done.mdb";

// The two long-lived connections and recordsets that every procedure of the tables stands on. The recordsets are
// shared: Get… and Save… procedures are never nested, and none assumes what a recordset was left open on.
struct Databases
{
    std::unique_ptr<Connection> DBConn;
    std::unique_ptr<Recordset> DBRec;
    std::unique_ptr<Connection> LogConn;
    std::unique_ptr<Recordset> LogRec;
    QSet<QString> unread; // tables whose last reading failed: what they hold is not known and not written over
};

// Creates the four objects and opens both files; 1 on success, 0 (and one log line) when the configuration cannot be
// opened. An audit log that is missing is made anew; one that is known to be damaged is set aside first, under
// "<seconds>.SystemLog.mdb". It never costs the configuration.
qint16 InitialDB(Databases& databases);
// Releases the four objects.
void CloseDatabases(Databases& databases);
// Closes the recordset and the connection of the configuration, keeping the objects.
void CloseDB(Databases& databases);
// Opens DBRec on a whole table, DBConn first when it is closed; 1 or 0 (one log line).
qint16 OpenRecset(Databases& databases, const QString& table);
// Opens DBRec on a statement after OpenRecset has proved the table; throws StoreError.
void OpenStatement(Databases& databases, const QString& statement, LockType lock, const QVariantList& values = {},
                   CursorType cursor = CursorType::Static);
