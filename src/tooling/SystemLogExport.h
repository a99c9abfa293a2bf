#pragma once

#include "tooling/SystemLogReader.h"

#include <QTimer>
#include <memory>

// "Systemlog_Export_yyyymmddhhmmss" of the present time.
QString SystemLogExportStem();

class SystemLogFile; // what is being written

// Writes the rows of a query, newest first, as a file of a folder, a slice at a time: the event loop turns meanwhile.
// What it has not finished when it ends leaves nothing behind, and a new file is called "<name>.part" until it is
// whole.
class SystemLogExport : public QObject
{
    Q_OBJECT
public:
    enum class Kind
    {
        Csv, // "Date,Time,User,Description", UTF-8, no quoting; what a file of that name holds stays in front
        Mdb  // a database with one table SYSTEMLOG(LogTime, LoginUser, Description); never over a file that is there
    };
    enum class Outcome
    {
        Whole,
        Nothing,    // no row, no file
        Unreadable, // the log could not be read while the rows were counted
        Failed,     // see failure(); what was there before is there again
        Stopped     // the desk is leaving
    };

    // The file is "<folder>/<stem>.csv" or ".mdb".
    SystemLogExport(Databases& databases, const SystemLogQuery& query, Kind kind, const QString& folder,
                    const QString& stem, QObject* parent = nullptr);
    ~SystemLogExport() override;

    void start();
    const QString& file() const { return m_name; }
    const QString& failure() const { return m_failure; } // why it failed

signals:
    void progress(qint64 written, qint64 rows);
    void finished(Outcome outcome);

private:
    enum class Step
    {
        Count,
        Collect, // only where the rows do not stand in the order of time
        Write
    };

    void slice();
    // What a slice does; each makes the next one the step to take once it is through.
    void count();
    void collect();
    void write();
    void end(Outcome outcome);

    Databases& m_databases;
    SystemLogReader m_reader;
    Kind m_kind;
    QString m_name;
    QString m_failure;
    QTimer m_slices;
    Step m_step = Step::Count;
    std::unique_ptr<SystemLogFile> m_file;
    std::vector<SystemLogEntry> m_entries; // only where the rows do not stand in the order of time
    qint64 m_rows = 0;
    qint64 m_written = 0;
    qint32 m_last = 0;
    bool m_inOrder = true;
};
