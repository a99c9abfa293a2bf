#include "app/CloseSequence.h"
#include "platform/Clock.h"
#include "tests/Await.h"
#include "tests/app/StationFixture.h"
#include "tests/events/LineServer.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Notes what the close sequence does to windows.
class NotedHost : public CloseHost
{
public:
    void disableWindows() override { steps << u"disable"_s; }
    void closeCalledOff() override { steps << u"stay"_s; }
    void showProgress(int maximum, const QString& count) override { steps << u"show %1 %2"_s.arg(maximum).arg(count); }
    void updateProgress(int done, const QString& count) override { steps << u"update %1 %2"_s.arg(done).arg(count); }
    bool progressCancelled() const override { return cancelled; }
    void closeProgressAndHide() override { steps << u"hide"_s; }
    void unloadAll() override { steps << u"unload"_s; }

    QStringList steps;
    bool cancelled = false;
};

} // namespace

class CloseTest : public StationTest
{
protected:
    void begin()
    {
        makeDatabase(kDatabaseFile, u"x"_s);
        start();
        host = std::make_unique<NotedHost>();
        sequence = std::make_unique<CloseSequence>(*fresh, *host);
    }
    QList<int> statesUntilEnd()
    {
        QList<int> states;
        sequence->start();
        for (int i = 0; i < 20 && !sequence->finished(); ++i) {
            states << sequence->m_CloseState();
            sequence->tick();
        }
        return states;
    }
    std::unique_ptr<NotedHost> host;
    std::unique_ptr<CloseSequence> sequence;
};

TEST_F(CloseTest, WalksItsStatesAndOffersTheViewer)
{
    begin();
    PinClock(QDateTime(QDate(2040, 1, 1), QTime(12, 0))); // beyond what a stamp of 32 bits holds
    sequence->tick();                                     // idle
    answers = {MsgResult::Yes};
    EXPECT_EQ(statesUntilEnd(), (QList<int>{1, 2, 3, 5, 7, 6, 8}));
    EXPECT_EQ(boxes, QStringList{GetLangString(508)});
    EXPECT_TRUE(sequence->m_bOpenMainViewer());
    EXPECT_EQ(host->steps, (QStringList{u"disable"_s, u"show 1 "_s, u"hide"_s, u"unload"_s}));
    EXPECT_FALSE(fresh->databases.DBConn);
    InitialDB(fresh->databases);
    EXPECT_EQ(audit(), QStringList{u"Close Rigging Desk"_s});
    PinClock(QDateTime());
}

TEST_F(CloseTest, UnsavedChangesAreAskedAboutAndTheRunningViewerNamed)
{
    begin();
    fresh->basicDefault.edit.sSystemName = u"kept"_s;
    fresh->basicDefault.edit.bChanged = true;
    write(path(u"\\Running.txt"), {});
    answers = {MsgResult::Cancel, MsgResult::Yes};
    sequence->start();
    sequence->tick();
    EXPECT_EQ(sequence->m_CloseState(), 0) << "Cancel stays";
    EXPECT_EQ(host->steps, QStringList{u"stay"_s});
    EXPECT_FALSE(Closing() || fresh->sendEvent.timerStopped() || fresh->m_bDataSaved);
    boxes.clear();
    statesUntilEnd();
    EXPECT_EQ(boxes, (QStringList{GetLangString(514), GetLangString(772)}));
    EXPECT_EQ(nameIn(kDatabaseFile), u"kept"_s);
    EXPECT_TRUE(fresh->m_bDataSaved);
}

TEST_F(CloseTest, SendsWhatWaitsUnlessItIsCancelled)
{
    for (const bool cancelled : {false, true}) {
        SCOPED_TRACE(cancelled);
        LineServer server;
        server.answers["data"] = cancelled ? "" : "354 go\r\n";
        begin();
        ListenServerRec& record = fresh->eventServers.stored[0];
        record.sMailFrom = u"desk@site.org"_s;
        record.sMailServer = u"127.0.0.1"_s;
        record.lMailPort = server.serverPort();
        fresh->eventHandling.stored.bConfigModify = fresh->eventHandling.stored.bTriActMail = true;
        fresh->eventHandling.stored.strMailAddress = QStringList(20, u"guard@site.org"_s).join(u',');
        RunEventAction(*fresh, 0, -1, {}, u"operator"_s);
        sequence->start();
        for (int i = 0; i < 4; ++i)
            sequence->tick();
        EXPECT_EQ(sequence->m_CloseState(), 5);
        EXPECT_TRUE(host->steps.contains(u"show 20 [20]"_s));
        EXPECT_TRUE(host->steps.contains(u"update 11 [9]"_s)) << "so many may be under way";
        const auto end = [&] {
            sequence->tick();
            return sequence->m_CloseState() != 5;
        };
        if (cancelled) {
            EXPECT_TRUE(WaitUntil([&] { return server.commands.count("data") == 11; }, 10));
            host->cancelled = true;
            EXPECT_TRUE(end()) << "at once";
            EXPECT_EQ(fresh->sendEvent.pendingItems() + fresh->sendEvent.sendsUnderWay(), 0);
        } else {
            EXPECT_TRUE(WaitUntil(end, 20));
            EXPECT_TRUE(host->steps.contains(u"update 20 [0]"_s));
        }
        EXPECT_EQ(server.mails.join().count("<b>Modify Setting of System setting</b>"), cancelled ? 0 : 20);
        SetClosing(false);
    }
}
