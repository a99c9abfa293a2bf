#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <stdexcept>

// A failure of the relational store: file missing or not a database, locked, full, unknown table or field.
class StoreError : public std::runtime_error
{
public:
    explicit StoreError(const QString& what, int code = 0)
        : std::runtime_error(what.toStdString())
        , m_code(code & 0xff)
    {
    }
    StoreError(const QString& what, const QSqlError& error)
        : StoreError(what + QStringLiteral(": ") + error.text().trimmed(), error.nativeErrorCode().toInt())
    {
    }
    // The file is known to be no whole database (SQLITE_CORRUPT, SQLITE_NOTADB), whoever asks and however often. A file
    // that is locked, slow or not to be opened is not damaged.
    bool damaged() const { return m_code == 11 || m_code == 26; }
    // Another process held the file for longer than it is waited for (SQLITE_BUSY).
    bool locked() const { return m_code == 5; }
    // The file failed, not the row or the statement: damaged, locked, full or broken (SQLITE_FULL, SQLITE_IOERR). Later
    // rows will fare no better.
    bool fileFailed() const { return damaged() || locked() || m_code == 10 || m_code == 13; }

private:
    int m_code; // of the engine, without its extension; 0: a failure of our own
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

    // Opens the file. Throws StoreError when it is missing, empty, cut short or no database: nothing is created. What a
    // write-ahead log or a journal beside it still holds counts as part of the file.
    void open() { open(true); }
    // The same without turning the file's journal into a write-ahead log: for reading backups and the template.
    void openAsIs() { open(false); }
    void close();
    bool isOpen() const { return m_database.isOpen(); }
    const QSqlDatabase& database() const { return m_database; }

    // Told by recordsets after each statement, see above.
    void noteResult(const QSqlError& error);

private:
    friend class Transaction;
    void open(bool writeAheadLog);
    void pragma(const QString& text);
    void execute(const QString& sql);

    QString m_connectionString;
    QString m_name;
    QSqlDatabase m_database;
    bool m_impatient = false;
    int m_depth = 0; // transactions under way, one inside another
};

// One step in the file: what is written between the begin and commit() is there as a whole or not at all, whatever ends
// the process between. Other processes see nothing of it before. One inside another is a part of the outer one.
class Transaction
{
public:
    // Throws StoreError when another process holds the file for longer than it is waited for.
    explicit Transaction(Connection& connection);
    // Takes everything back unless it was committed.
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    QString savepoint() const;

    Connection& m_connection;
    int m_level;
    bool m_done = false;
};

// The connection string of every database of the system.
QString DatabaseConnectionString(const QString& file);
