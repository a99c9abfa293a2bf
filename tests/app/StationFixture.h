#pragma once

#include "app/language/Languages.h"
#include "platform/Closing.h"
#include "store/SystemLog.h"
#include "tests/store/StoreFixture.h"
#include "tests/support/BoxAnswers.h"
#include "tests/support/StartedStation.h"

#include <QDir>

// A station folder as it may be found at start, and the station that opens it.
class StationTest : public StoreFixture, protected BoxAnswers
{
protected:
    StationTest()
    {
        qputenv("XDG_CONFIG_HOME", path(u"\\config").toUtf8());
        qputenv("XDG_CONFIG_DIRS", path(u"\\machine").toUtf8());
        SetLanguage(1);
    }
    ~StationTest() override
    {
        SetClosing(false);
        EXPECT_EQ(titles.count(QStringLiteral("Information")), titles.size());
    }
    // A database whose system name tells it from others.
    void makeDatabase(QStringView literal, const QString& name)
    {
        QFile::remove(path(literal));
        ASSERT_TRUE(QFile::copy(path(kTemplateFile), path(literal)));
        ask(QStringLiteral("UPDATE BasicDefault SET iLanguage=1, sSystemName='%1'").arg(name), literal);
    }
    // What a statement on a database file answers.
    QString ask(const QString& statement, QStringView literal = kDatabaseFile)
    {
        const QString answer = FileRows(path(literal), statement);
        EXPECT_FALSE(answer.startsWith(QLatin1String("error:"))) << statement.toStdString() << answer.toStdString();
        return answer;
    }
    void run(const QString& statement) { ask(statement); }
    QString nameIn(QStringView literal) { return ask(QStringLiteral("SELECT sSystemName FROM BasicDefault"), literal); }
    QStringList aside() const { return QDir(path(u"\\Database")).entryList({QStringLiteral("*.Database.mdb")}); }
    void changeEverything()
    {
        fresh->recorders.SVRWorkList[0].sSVR_Name = QStringLiteral("a");
        fresh->recorders.SVRWorkList[0].bSVR_Changed = true;
        fresh->users.edit[0].sUser = QStringLiteral("a");
        fresh->users.edit[0].bChanged = true;
        fresh->groups.edit[2].Name = QStringLiteral("a");
        fresh->groups.edit[2].bChanged = true;
        fresh->emap.edit[0].sName = QStringLiteral("a");
        fresh->emap.edit[0].bChanged = true;
        fresh->emap.iconsEdit[0].bChanged = true;
        fresh->channelEvents.edit[0].channels[0].bChanged = true;
    }
    void start()
    {
        fresh.reset();
        fresh = StartedStation();
    }
    QStringList audit()
    {
        std::vector<SystemLogRow> rows;
        GetSystemLog(fresh->databases, 0, 2147483647, {}, rows);
        QStringList texts;
        for (const SystemLogRow& row : rows)
            texts << row.Description;
        return texts;
    }

    std::unique_ptr<Station> fresh;
};
