#pragma once

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "store/Databases.h"
#include "store/Template.h"
#include "tests/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <gtest/gtest.h>

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
        QSqlQuery query(databases.DBConn->database());
        ASSERT_TRUE(query.exec(sql)) << sql.toStdString();
    }
    QVariant value(const QString& sql)
    {
        QSqlQuery query(databases.DBConn->database());
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }
    // Lines that the traps of one source have written so far.
    qsizetype logLines(const QByteArray& source) const { return allLogs().count(QByteArray("\"" + source + "\"")); }
    QByteArray allLogs() const
    {
        QByteArray all;
        const QDir folder(path(u"\\log"));
        for (const QString& name : folder.entryList({QStringLiteral("LogSys-*.txt")})) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                all += file.readAll();
        }
        return all;
    }

    TemporaryStation station;
    Databases databases;
};
