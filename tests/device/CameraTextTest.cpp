#include "device/protocol/CameraText.h"

#include "device/protocol/RelativeFormat.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

namespace {

TEST(RelativeFormat, EachListOfTheFirstEntryThatHoldsTheResolution)
{
    const QString rule = u"{640x480<1|2><3|4>,320x240<0>}{}{1280x720<><6>,640x480<5,320x240<1|1>}"_s;
    constexpr auto rates = RelativeList::FrameRate;
    constexpr auto bits = RelativeList::BitRate;
    const std::tuple<QString, int, QString, RelativeList, std::optional<QStringList>> cases[] = {
        {rule, 0, u"640x480"_s, rates, QStringList{u"1"_s, u"2"_s}},
        {rule, 0, u"640x480"_s, bits, QStringList{u"3"_s, u"4"_s}},
        {rule, 0, u"320x240"_s, bits, std::nullopt},              // an entry without a second list
        {rule, 0, u"40x4"_s, rates, QStringList{u"1"_s, u"2"_s}}, // holding is enough
        {rule, 0, u"1920x1080"_s, rates, std::nullopt},
        {rule, 1, u"640x480"_s, rates, std::nullopt}, // an empty block
        {rule, 2, u"1280x720"_s, rates, QStringList()},
        {rule, 2, u"640x480"_s, rates, QStringList{u"5"_s}}, // a bracket that never closes
        {rule, 3, u"640x480"_s, rates, std::nullopt},
        {rule, 7, u"640x480"_s, rates, std::nullopt},
        {rule, -1, u"640x480"_s, rates, std::nullopt},
        {rule, 0, QString(), rates, std::nullopt},
        {u"{}{}{}"_s, 0, u"640x480"_s, rates, std::nullopt},
        {QString(), 0, u"640x480"_s, rates, std::nullopt},
        {u"640x480<1>"_s, 0, u"640x480"_s, rates, QStringList{u"1"_s}},
        {QString(kMaxRelativeFormat + 1, u'{'), 0, u"640x480"_s, rates, std::nullopt},
        {u"{640x480<"_s + QString(2 * kMaxListEntries, u'|') + u"7"_s, 0, u"640x480"_s, rates, QStringList{u"7"_s}},
    };
    for (const auto& [text, format, resolution, list, values] : cases)
        EXPECT_EQ(RelativeFormatValues(text, format, resolution, list), values)
            << qPrintable(text.left(80)) << ' ' << format << ' ' << qPrintable(resolution);
}

TEST(CameraProbe, ClosestKeyOfTheAskedSourceWins)
{
    const QString reply =
        u"OK\r\nmaxvideochan=2\r\nbrand=Veltrano\r\nresolutionlist=1x1\r\n"
        "v1.resolutionlist=640x480;;\r\nv2.resolutionlist=320x240;;\r\n"
        "v2.multi.resolutionlist=800x600;;1280x720\r\nv2.resolutionlist=9x9\r\n"
        "v1.relativeformat={640x480<1=2>}{}{}\r\nvx.fpsrange=1\r\nxqualityrange=4\r\nqualityrange\r\n"_s;
    const auto first = ReadDetectedCamera(reply, 1);
    const auto second = ReadDetectedCamera(reply, 2);
    ASSERT_TRUE(first && second);
    EXPECT_EQ(first->VideoSources, 2);
    EXPECT_EQ(first->Brand, u"Veltrano"_s);
    EXPECT_EQ(first->ResolutionList, u"640x480;;"_s);
    EXPECT_EQ(first->RelativeFormat, u"{640x480<1=2>}{}{}"_s);
    EXPECT_FALSE(first->MultiStream);
    EXPECT_EQ(second->ResolutionList, u"800x600;;1280x720"_s);
    EXPECT_TRUE(second->MultiStream);
    EXPECT_TRUE(second->RelativeFormat.isEmpty());
    EXPECT_TRUE(first->FPSRange.isEmpty());
    EXPECT_TRUE(first->QualityRange.isEmpty()); // neither a longer name nor a key without a value
    EXPECT_TRUE(DescribesSource(reply, 2));
    EXPECT_FALSE(DescribesSource(reply, 3));

    EXPECT_FALSE(ReadDetectedCamera(u"Error -2"_s, 1));
    EXPECT_FALSE(ReadDetectedCamera({}, 1));
    const std::pair<QString, int> counts[] = {{u"0"_s, 1}, {u"-3"_s, 1}, {u"x"_s, 1}, {u"99999"_s, 64}};
    for (const auto& [text, count] : counts)
        EXPECT_EQ(ReadDetectedCamera(u"OK\nmaxvideochan="_s + text, 1)->VideoSources, count) << qPrintable(text);
    const QString huge = u"OK\nbrand="_s + QString(kMaxCameraValue + 1, u'x');
    EXPECT_TRUE(ReadDetectedCamera(huge, 1)->Brand.isEmpty());
}

TEST(CameraSearchText, OneCameraALine)
{
    const auto found = ReadCameraSearch(u"OK\r\nip=10.0.0.1,httpport=8081,brand=Veltrano,model=VC-1\r\n"
                                        "brand=nobody\r\nip=10.0.0.2,junk,httpport=x\r\n"_s);
    ASSERT_TRUE(found);
    ASSERT_EQ(found->size(), 2U);
    EXPECT_EQ(found->front().HTTPPort, 8081);
    EXPECT_EQ(found->front().Model, u"VC-1"_s);
    EXPECT_EQ(found->back().HTTPPort, 0);
    EXPECT_FALSE(ReadCameraSearch(u"401 Unauthorized"_s));
    EXPECT_EQ(ReadCameraSearch(u"OK\n"_s + u"ip=1.1.1.1\n"_s.repeated(5000))->size(), kMaxFoundCameras);
}

TEST(CameraEventText, TwoBitsAChannelBothWays)
{
    const auto bits = ReadCameraEvents(
        u"OK\r\ncamera_c1=1,2;\r\ncamera_c2=2;camera_c3=1;\ncamera_c4=;camera_c64=1\ncamera_c65=1\ncamera_c0=1\n"_s);
    ASSERT_TRUE(bits);
    EXPECT_THAT(std::vector<qint16>(bits->begin(), bits->begin() + 5), ElementsAre(3, 2, 1, 0, 0));
    EXPECT_EQ(bits->back(), 1);
    EXPECT_EQ(std::count(bits->begin(), bits->end(), 0), 60);
    EXPECT_FALSE(ReadCameraEvents(u"Error"_s));
    EXPECT_EQ(ReadCameraEvents(u"camera_c2=2"_s)->at(1), 2);

    EXPECT_EQ(CameraEventParameters(*bits, {0, 1, 2, 3}), u"camera_c1=1,2&camera_c2=2&camera_c3=1&camera_c4="_s);
    EXPECT_EQ(CameraEventParameters(*bits, {}), QString());
    EXPECT_THAT(RefusedChannels(u"OK\r\nfailed=3, 5,x,65,-1\r\n"_s), ElementsAre(3, 5));
    EXPECT_THAT(RefusedChannels(u"OK\r\n"_s), ElementsAre());
}

} // namespace
