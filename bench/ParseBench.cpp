#include "bench/Bench.h"
#include "device/protocol/ReplyParsers.h"

#include <memory>
#include <pugixml.hpp>

// Reading the channel list of a full recorder (64 channels) against the floor: pugixml's bare load of the same bytes.

namespace {

QByteArray FullReply()
{
    QByteArray sizes;
    for (const char* size : {"1920x1080", "1280x720", "640x480", "320x240"})
        sizes += QByteArray(R"(<Size FPSLower="1" FPSUpper="30" BPSLower="1" BPSUpper="8">)") + size + "</Size>";
    QByteArray formats;
    for (const char* format : {"jpeg", "mpeg4", "h264"})
        formats += QByteArray(R"(<Format FMT=")") + format + R"(" QualityLower="1" QualityUpper="5" RateControl="1">)" +
                   sizes + "</Format>";
    QByteArray reply = R"(<RESPONSE RET="0"><UserData>CMS_Core</UserData><CHList>)";
    for (int channel = 1; channel <= 64; ++channel) {
        const QByteArray number = QByteArray::number(channel);
        reply += R"(<CH ID=")" + number + R"("><Name>Camera )" + number + " &amp;amp; gate</Name><IP>192.168.1." +
                 number +
                 "</IP><HTTPPort>80</HTTPPort><StartConfig>0</StartConfig><System><UserName>root</UserName>"
                 "<Password>secret</Password><Manufacturer>Maker</Manufacturer><Model>Dome 2000</Model>"
                 "<MACAddress>00:11:22:33:44:55</MACAddress><NumberVideo>1</NumberVideo><VideoNumber>1</VideoNumber>"
                 "<RtspPort>554</RtspPort><BrandCode>55</BrandCode><NumberDI>1</NumberDI><NumberDO>1</NumberDO>"
                 "<MotionDetect>1</MotionDetect><DITriggerType>0</DITriggerType></System><Video><FMT>h264</FMT>"
                 "<Size>1920x1080</Size><FPS>25</FPS><Quality>3</Quality><RateControl>1</RateControl>"
                 "<Bitrate>6</Bitrate><GOP>30</GOP><LensMode>Normal</LensMode><LeftDisplayMode/><RightDisplayMode/>"
                 "<SupportFMT>" +
                 formats +
                 "</SupportFMT><FMTList>jpeg mpeg4 h264</FMTList><SizeList>1920x1080 1280x720</SizeList>"
                 "<LensModeList><Mode>Normal</Mode><Mode>Wide</Mode></LensModeList></Video><Audio><FMT>g711</FMT>"
                 "<CapAudioIn>1</CapAudioIn><CapAudioOut>1</CapAudioOut><FMTList>g711</FMTList></Audio><PTZ>"
                 "<PTZEnable>1</PTZEnable><PTZABS>1</PTZABS><AutoPan>0</AutoPan><SpeedLower>1</SpeedLower>"
                 "<SpeedUpper>10</SpeedUpper><SpeedStep>1</SpeedStep><MoveCont>1</MoveCont><ZoomCont>1</ZoomCont>"
                 "<FocusCont>1</FocusCont><IrisCont>1</IrisCont><SyncPreset>1</SyncPreset><Move>8</Move>"
                 "<SetPreset>1</SetPreset></PTZ></CH>";
    }
    return reply + "</CHList></RESPONSE>";
}

} // namespace

int main()
{
    const QByteArray bytes = FullReply();
    const QString text = QString::fromUtf8(bytes);
    const auto svr = std::make_unique<SVRRecord>();
    const auto pro = std::make_unique<SVRProRecord>();
    bench::Require(ParseChannelList(bytes, *svr, *pro) == 1 && !svr->channels[63].sSub_CH_IP.isEmpty(),
                   "the reply was not read");
    const auto load = [&] {
        pugi::xml_document document;
        document.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    };
    bench::Compare(
        "channel list of 64 channels", 2.2, [&] { ParseChannelList(bytes, *svr, *pro); }, load);
    bench::Compare(
        "channel list of 64 channels, as text", 3, [&] { ParseChannelList(text, *svr, *pro); }, load);
    return 0;
}
