#pragma once

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/Databases.h"
#include "store/Template.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

// The rows of an answer with these marks between cells and rows; a statement that fails gives its error.
inline QString Rows(const Connection& connection, const QString& statement, QChar cell, QChar row)
{
    QSqlQuery query(connection.database());
    if (!query.exec(statement))
        return QStringLiteral("error: ") + query.lastError().text();
    QStringList rows;
    while (query.next()) {
        QStringList cells;
        for (int i = 0; i < query.record().count(); ++i)
            cells << query.value(i).toString();
        rows << cells.join(cell);
    }
    return rows.join(row);
}

// The same of a database file, as it stands.
inline QString FileRows(const QString& file, const QString& statement)
{
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.openAsIs();
    return Rows(connection, statement, u'|', u'\n');
}

// As long as it lives no file grows beyond a size: the disk is full in the middle of a file.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

// A station folder with a template database; open() makes it the configuration database and opens both files.
class StoreFixture : public ::testing::Test
{
protected:
    StoreFixture() { CreateTemplate(path(kTemplateFile)); }

    QString path(QStringView literal) const { return station.path(literal); }
    QByteArray read(QStringView literal) const { return station.read(literal); }
    void write(const QString& file, const QByteArray& bytes)
    {
        QFile target(file);
        ASSERT_TRUE(target.open(QIODevice::WriteOnly));
        ASSERT_EQ(target.write(bytes), bytes.size());
    }
    void open()
    {
        QFile::copy(path(kTemplateFile), path(kDatabaseFile));
        ASSERT_EQ(InitialDB(databases), 1);
    }
    void execute(const QString& sql)
    {
        QSqlQuery query(opened().DBConn->database());
        ASSERT_TRUE(query.exec(sql)) << sql.toStdString();
    }
    QVariant value(const QString& sql)
    {
        QSqlQuery query(opened().DBConn->database());
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }
    // Lines that the traps of one source have written so far.
    qsizetype logLines(const QByteArray& source) const { return allLogs().count(QByteArray("\"" + source + "\"")); }
    QByteArray allLogs() const { return station.logs(); }

    virtual Databases& opened() { return databases; }

    TemporaryStation station;
    Databases databases;
};
