#pragma once

#include "app/Station.h"
#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "platform/Clock.h"
#include "platform/Closing.h"
#include "platform/FileChooser.h"
#include "tests/store/StoreFixture.h"
#include "tests/support/BoxAnswers.h"
#include "tests/support/WindowSteps.h"

// The desk with its real main window over a station of its own, in English or the language of DESK_LANGUAGE. Boxes are
// answered from a list.
class DeskFixture : public StoreFixture, protected BoxAnswers, protected WindowSteps
{
protected:
    DeskFixture()
    {
        qputenv("XDG_CONFIG_HOME", path(u"\\config").toUtf8());
        qputenv("XDG_CONFIG_DIRS", path(u"\\machine").toUtf8());
        const int language = qEnvironmentVariableIntValue("DESK_LANGUAGE");
        SetLanguage(language > 0 ? language : 1);
        open();
        execute(QStringLiteral("UPDATE BasicDefault SET iLanguage=%1").arg(Language()));
    }
    ~DeskFixture() override
    {
        desk.reset();
        SetFileChooserHandler(nullptr);
        SetCurrentUser({});
        SetClosing(false);
        SetLanguage(1);
        SetBoxStyles(false);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        PinClock(QDateTime());
    }

    // Starts the desk, again if it was; before that `statement` changes the database. False when the start ends it.
    bool start(const QString& statement = {})
    {
        desk.reset();
        station.reset();
        if (!statement.isEmpty()) {
            EXPECT_EQ(InitialDB(databases), 1);
            execute(statement);
        }
        CloseDatabases(databases);
        station = std::make_unique<Station>();
        desk = std::make_unique<Form_Initial>(*station);
        if (!desk->Form_Load())
            return false;
        desk->resize(1280, 800);
        desk->show();
        return QTest::qWaitForWindowExposed(desk.get());
    }

    // The first value of a statement over the running desk's database.
    QVariant row(const QString& sql)
    {
        QSqlQuery query(station->databases.DBConn->database());
        return query.exec(sql) && query.next() ? query.value(0) : QVariant();
    }

    std::unique_ptr<Station> station;
    std::unique_ptr<Form_Initial> desk;
};
