#include "device/picture/CoreBridge.h"
#include "device/picture/JpegBridge.h"
#include "device/picture/LivePicture.h"
#include "tests/device/ScriptedDevice.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

using Pictures = ScriptedDevice;

QByteArray Picture(QRgb colour)
{
    QImage frame(32, 24, QImage::Format_RGB32);
    frame.fill(colour);
    return EncodeJpeg(frame);
}

} // namespace

TEST_F(Pictures, JpegsOfDevicesAreReadAndOnlyJpegs)
{
    const QByteArray good = Picture(qRgb(200, 30, 30));
    EXPECT_EQ(DecodeJpeg(good).size(), QSize(32, 24));
    EXPECT_GT(qRed(DecodeJpeg(good).pixel(5, 5)), 180);
    QByteArray giant = good; // the frame header claims 65500 x 65500
    const qsizetype header = giant.indexOf("\xff\xc0");
    ASSERT_GT(header, 0);
    giant.replace(header + 5, 4, "\xff\xdc\xff\xdc");
    for (const QByteArray& bad : {QByteArray(), QByteArray("BM\x10"), good.left(20), giant, QByteArray(5000, '\xff')})
        EXPECT_TRUE(DecodeJpeg(bad).isNull());
    EXPECT_TRUE(EncodeJpeg(QImage()).isEmpty());
    EXPECT_FALSE(SaveJpeg(QImage(8, 8, QImage::Format_RGB32), station.path(u"\\no\\folder.jpg")));
}

TEST_F(Pictures, SnapshotsAreWrittenWholeOrNotAtAll)
{
    CoreBridge core(com);
    QSignalSpy written(&core, &CoreBridge::OnGetSnapshot);
    QSignalSpy failed(&core, &CoreBridge::OnSnapshotFailed);
    const QByteArray picture = Picture(qRgb(0, 0, 200));
    const QString path = station.path(u"\\Images\\PresetImage\\imgPreset_0_4_1_1.jpg");
    server.answerWith(picture);
    core.GetSnapshot(device(), 5, 4, 1, path);
    EXPECT_TRUE(WaitUntil([&] { return !written.empty(); }, 5));
    EXPECT_EQ(server.lastTarget(), "/snapshot.cgi?channel=5");
    EXPECT_EQ(written.front(), (QList<QVariant>{4, 1, path}));
    EXPECT_EQ(station.read(u"\\Images\\PresetImage\\imgPreset_0_4_1_1.jpg"), picture);

    // What is no picture leaves the file as it was.
    server.answerWith("<html>login</html>");
    core.GetSnapshot(device(), 5, 4, 1, path);
    EXPECT_TRUE(WaitUntil([&] { return !failed.empty(); }, 5));
    EXPECT_EQ(station.read(u"\\Images\\PresetImage\\imgPreset_0_4_1_1.jpg"), picture);

    server.fallSilent();
    core.GetSnapshot(device(), 5, 4, 1, path);
    com.Unload();
    EXPECT_EQ(com.http.open(), 0);
    core.GetSnapshot(device(), 5, 4, 1, path);
    EXPECT_EQ(com.http.open(), 0);
    EXPECT_EQ(written.size() + failed.size(), 2);
}

TEST_F(Pictures, ALivePictureAsksOnAtMostTenTimesASecondAndComesBack)
{
    LivePicture live(com.http);
    QSignalSpy arrived(&live, &LivePicture::PictureArrived);
    QSignalSpy lost(&live, &LivePicture::PictureLost);
    server.answerWith(Picture(qRgb(0, 200, 0)));
    QElapsedTimer timer;
    timer.start();
    live.Start(device(), 2);
    EXPECT_TRUE(WaitUntil([&] { return arrived.size() >= 4; }, 5));
    EXPECT_GE(timer.elapsed(), 280);
    EXPECT_EQ(live.Picture().size(), QSize(32, 24));

    server.answerWith("gone");
    EXPECT_TRUE(WaitUntil([&] { return !lost.empty(); }, 5));
    server.answerWith(Picture(qRgb(0, 200, 0)));
    const qsizetype before = arrived.size();
    EXPECT_TRUE(WaitUntil([&] { return arrived.size() > before; }, 5));
    EXPECT_EQ(lost.size(), 1);

    CoreBridge core(com);
    QSignalSpy written(&core, &CoreBridge::OnGetSnapshot);
    core.SaveCurrentPicture(live, 1, 8, station.path(u"\\Images\\now.bmp"));
    live.Stop();
    EXPECT_TRUE(WaitUntil([&] { return !written.empty(); }, 5));
    EXPECT_EQ(station.read(u"\\Images\\now.bmp"), live.Jpeg());
    EXPECT_EQ(com.http.open(), 0);
}
