#include "device/picture/ui/LiveView.h"
#include "app/language/Languages.h"
#include "device/picture/JpegBridge.h"
#include "tests/Await.h"
#include "tests/LoopWatch.h"
#include "tests/TestMain.h"
#include "tests/device/ScriptedServer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray LargePicture()
{
    QImage frame(3840, 2160, QImage::Format_RGB32);
    for (int y = 0; y < frame.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(frame.scanLine(y));
        for (int x = 0; x < frame.width(); ++x)
            line[x] = qRgb(x * 7 % 255, y * 3 % 255, (x ^ y) % 255);
    }
    frame.setPixel(0, 0, qRgb(255, 0, 0));
    return EncodeJpeg(frame);
}

} // namespace

TEST(LiveView, ShowsWhatComesSaysWhatDoesNotAndAsksOnlyWhileOnShow)
{
    const TemporaryStation station;
    SetLanguage(1);
    HttpClient http;
    ScriptedServer server;
    server.answerWith(LargePicture());
    LiveView view;
    view.resize(320, 180);
    view.Start(http, {u"127.0.0.1"_s, server.serverPort(), {}, {}}, 3);
    EXPECT_EQ(http.open(), 0) << "a view that is not on show asks";
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    const LoopWatch watch;
    EXPECT_TRUE(WaitUntil([&] { return view.stateText() == u"Live 3840 × 2160"_s; }, 20))
        << qPrintable(view.stateText());
    const std::size_t begun = server.requests.size();
    EXPECT_TRUE(WaitUntil([&] { return server.requests.size() > begun + 2; }, 20));
    EXPECT_EQ(server.lastTarget(), "/snapshot.cgi?channel=3");
    EXPECT_EQ(view.picture()->Picture().size(), QSize(320, 180));
    EXPECT_LT(watch.longest(), 400) << "decoding holds the window up";

    // Each reason is told, and the next picture ends it.
    const auto status = [](const char* line) {
        return [line](const ScriptedServer::Seen&) { return ScriptedServer::Answer{ScriptedServer::page("no", line)}; };
    };
    const auto noPicture = [](const ScriptedServer::Seen&) {
        return ScriptedServer::Answer{ScriptedServer::page("<html>")};
    };
    const std::pair<std::function<ScriptedServer::Answer(const ScriptedServer::Seen&)>, QString> cases[] = {
        {status("401 Unauthorized"), u"No picture: Login refused"_s},
        {status("404 Not Found"), u"No picture: No camera"_s},
        {noPicture, u"No picture: Unexpected answer"_s},
    };
    for (const auto& [answer, words] : cases) {
        server.answer = answer;
        EXPECT_TRUE(WaitUntil([&] { return view.stateText() == words; }, 5)) << qPrintable(view.stateText());
    }
    EXPECT_EQ(view.accessibleDescription(), view.stateText());
    server.answerWith(LargePicture());
    EXPECT_TRUE(WaitUntil([&] { return !view.lost(); }, 5));

    view.hide();
    EXPECT_EQ(http.open(), 0);
    view.show();
    EXPECT_TRUE(WaitUntil([&] { return http.open() > 0; }, 5));
    view.Stop();
    EXPECT_EQ(http.open(), 0);
    EXPECT_TRUE(view.stateText().isEmpty());
}
