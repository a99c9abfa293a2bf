#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <stdexcept>

// A failure of the relational store: file missing or not a database, locked, full, unknown table or field.
class StoreError : public std::runtime_error
{
public:
    explicit StoreError(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
    StoreError(const QString& what, const QSqlError& error)
        : StoreError(what + QStringLiteral(": ") + error.text().trimmed())
    {
        const int code = error.nativeErrorCode().toInt() & 0xff; // without the extension
        m_writeFailed = code == 10 || code == 13;                // SQLITE_IOERR, SQLITE_FULL
    }
    // The file itself could not take what was written (disk full or broken): later rows will fare no better.
    bool writeFailed() const { return m_writeFailed; }

private:
    bool m_writeFailed = false;
};

// One open database file, shared with other processes (SQLite, write-ahead log). A statement that meets another
// process's lock waits up to two seconds; after a wait in vain the next ones wait only briefly until one goes through
// again.
class Connection
{
public:
    Connection() = default;
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // "…;Data Source=<file>;…": only the file counts for this store. Set while closed.
    void setConnectionString(const QString& text);
    QString connectionString() const { return m_connectionString; }

    // Opens the file. Throws StoreError when it is missing, empty, cut short or no database: nothing is created.
    void open() { open(true); }
    // The same without turning the file's journal into a write-ahead log: for reading backups and the template.
    void openAsIs() { open(false); }
    void close();
    bool isOpen() const { return m_database.isOpen(); }
    const QSqlDatabase& database() const { return m_database; }

    // Told by recordsets after each statement, see above.
    void noteResult(const QSqlError& error);

private:
    void open(bool writeAheadLog);
    void pragma(const QString& text);

    QString m_connectionString;
    QString m_name;
    QSqlDatabase m_database;
    bool m_impatient = false;
};

// The connection string of every database of the system.
QString DatabaseConnectionString(const QString& file);
