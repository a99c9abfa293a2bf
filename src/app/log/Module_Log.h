#pragma once

#include <QString>
#include <exception>

// Daily text logs under \log\, and the trap that every procedure ends its failures in.

inline constexpr QLatin1String CMS_Core("CMS_Core"); // tag of the program's own lines

enum LogKind : qint16
{
    LogUser = 0,   // date, time, tag, user, text
    LogSys = 1,    // date, time, tag, user, text, source; used by every trap
    LogRecord = 2, // as LogSys
    LogDevice = 3, // as LogSys
    Running = 4    // no line: makes or ("SHUTDOWN") deletes \Running.txt
};

// The logged-in user, first value of every line and key of the per-user tables. Empty before login.
const QString& CurrentUser();
void SetCurrentUser(const QString& user);

// Appends one line to log\<kind>-yyyymmdd[_N].txt (files roll over at 10 MB, N from 1). True when written; never
// throws.
bool LogSave(const QString& tag, qint16 kind, const QString& user, const QString& source, const QString& text);

// Makes each missing folder of a platform path. True also when a folder cannot be made; the writer that follows
// notices.
bool FileCheck(const QString& path);

// Appends an event message to log\Listen\Message-yyyymmddhhmmss<stem>.txt and returns the file's name (without folder).
QString ListenTxtFile(const QString& trigger, const QString& applicationName, const QString& serverIP,
                      const QString& operatorName, const QString& stem);

// One quoted value of a log line: enclosed in double quotes, a quote inside doubled.
QString QuotedValue(const QString& value);

// Writes the line of a trap: tag CMS_Core, kind LogSys, the current user.
void LogTrap(const QString& source, const QString& description);

// Runs `work`; an exception becomes one log line under `source` ("Object - Procedure"). Returns whether it went
// through.
template <class Work>
bool Trapped(QLatin1String source, Work&& work)
{
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        LogTrap(QString(source), QString::fromUtf8(error.what()));
    } catch (...) {
        LogTrap(QString(source), QStringLiteral("Unknown error"));
    }
    return false;
}
template <std::size_t N, class Work>
bool Trapped(const char (&source)[N], Work&& work)
{
    return Trapped(QLatin1String(source, N - 1), std::forward<Work>(work));
}

// The same for one kind of fault in a loop over what a device has sent: only the first failure, which sets `told`, is
// logged.
template <class Work>
bool TrappedOnce(bool& told, QLatin1String source, Work&& work)
{
    if (!told) {
        told = !Trapped(source, std::forward<Work>(work));
        return !told;
    }
    try {
        work();
        return true;
    } catch (...) {
        return false;
    }
}
