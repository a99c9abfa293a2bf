#include "device/bridge/ModuleCGI.h"

#include "app/log/Module_Log.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/ReplyText.h"
#include "support/Conversions.h"

#include <QStringList>
#include <QStringTokenizer>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kQuickSeconds = 2;
constexpr qint32 kCameraProbeSeconds = 180;
constexpr qsizetype kShownText = 64;

bool BeginsWithOk(const QString& reply)
{
    return reply.startsWith("OK"_L1, Qt::CaseInsensitive);
}

// Second field of a text split at "=".
QString ValueBehindEquals(QStringView text)
{
    const qsizetype equals = text.indexOf(u'=');
    if (equals < 0)
        throw ConversionError(u"No value in '%1'"_s.arg(text.left(kShownText)));
    const QStringView behind = text.sliced(equals + 1);
    const qsizetype next = behind.indexOf(u'=');
    return behind.left(next < 0 ? behind.size() : next).toString();
}

QString CameraProbeUrl(const QString& ip, const QString& httpPort, const QString& user, const QString& password)
{
    return u"/system/detectcam.cgi?ipaddr="_s + ip + u"&httpport=" + httpPort + u"&username=" + user + u"&password=" +
           password;
}

QString GroupUrl(qint16 channel, QStringView group)
{
    return u"/param.cgi?action=get&group=camera_c"_s + QString::number(channel) + group;
}

QString SetUrl(qint16 channel, QStringView key, const QString& value)
{
    return u"/param.cgi?action=set&camera_c"_s + QString::number(channel) + key + u'=' + value;
}

QString CameraProbeAsUrl(const QString& ip, const QString& httpPort, const QString& user, const QString& password,
                         qint16 camera, const QString& brand)
{
    return CameraProbeUrl(ip, httpPort, user, password) + u"&camera=" + QString::number(camera) + u"&brand=" + brand;
}

QString EventHttpUrl(const QString& params, qint16 svr)
{
    const QString list = params.isEmpty() || params.startsWith(u'&') ? params : u'&' + params;
    return u"/event/basicevent.cgi?action=set&svr="_s + QString::number(svr) + list + u"&httpenabled=1";
}

QStringList ChannelUrls(qint16 channel, bool onvif)
{
    QStringList urls{GroupUrl(channel, u".image"), GroupUrl(channel, u".ptz")};
    if (onvif)
        urls << GroupUrl(channel, u".onvif");
    return urls;
}

ChannelParams ChannelParamsOf(const QStringList& replies)
{
    return {replies.value(0), replies.value(1), replies.value(2)};
}

qint32 SecondsOf(qint32 seconds)
{
    return seconds == kCgiDefaultTimeout ? kRestingTimeout : seconds;
}

bool HoldsOk(const QString& reply)
{
    return reply.contains("OK"_L1, Qt::CaseInsensitive);
}

LoginReply LoginReplyOf(const QString& text)
{
    if (text.contains("401"_L1))
        return {401, text};
    return {text.isEmpty() ? 404 : 1, text};
}

qint32 DwellOf(const QString& reply)
{
    return ToInt32(ValueBehindEquals(reply).left(2));
}

QString SequenceOf(const QString& reply)
{
    QString list = ValueBehindEquals(QStringView(reply).left(kMaxDeviceList));
    list.replace(u'\r', u'\n');
    return list.section(u'\n', 0, 0).trimmed();
}

const QString kGidUrl = u"/getgid.cgi"_s;
const QString kSearchUrl = u"/system/searchcam.cgi"_s;
const QString kVersionUrl = u"/getfwver.cgi"_s;
const QString kLoginUrl = u"/login.cgi"_s;
const QString kEventUrl = u"/event/basicevent.cgi?action=get"_s;
const QString kSetEventUrl = u"/event/basicevent.cgi?action=set"_s;
const QString kCapabilityUrl = u"/getsvrcapability.cgi"_s;

} // namespace

bool ParseServerCapability(const QString& reply, SvrCapability& capability)
{
    if (!BeginsWithOk(reply))
        return false;
    const auto store = [](auto& field, const QString& value) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, QString>)
            field = value.left(kMaxDeviceText);
        else if constexpr (std::is_same_v<Field, bool>)
            field = ToReal(value) == 1.0;
        else
            field = ToInt16(value);
    };
    std::array<bool, 8> told{}; // a bad value of a key is logged once
    for (const QStringView line : QStringTokenizer(ReadableLines(reply), u'\n')) {
        std::size_t index = 0;
        const auto read = [&](QLatin1String key, auto& field) {
            bool& toldOfKey = told[index++];
            if (line.contains(key)) {
                TrappedOnce(toldOfKey, "ModuleCGI - CgiGetServerCapability"_L1,
                            [&] { store(field, ValueBehindEquals(line).remove(u'\r')); });
            }
        };
        read("modelname="_L1, capability.ModelName);
        read("brand="_L1, capability.Brand);
        read("firmwareversion="_L1, capability.FirmwareVersion);
        read("maxchannelsupport="_L1, capability.MaxChannelSupport);
        read("maxhdsupport="_L1, capability.MaxHDSupport);
        read("cmssupport="_L1, capability.CMSSupport);
        read("devicetype="_L1, capability.DeviceType);
        read("customeventsupport="_L1, capability.CustomEventSupport);
    }
    return true;
}

QCoro::Task<QString> CgiGet(WebBridge& web, DeviceAddress device, QString url, Work& work, qint32 seconds, QString body)
{
    const WebReply reply = co_await web.Get(device, url, SecondsOf(seconds), work, body);
    co_return reply.text;
}

QCoro::Task<QString> CgiTell(WebBridge& web, DeviceAddress device, QString url, Work& work, qint32 seconds,
                             QString body)
{
    const WebReply reply = co_await web.Get(device, url, SecondsOf(seconds), work, body);
    const bool answered = reply.status >= 0 || reply.status <= -100; // an HTTP status is an answer, whatever it says
    co_return answered ? u"SUCCESSED"_s : QString();
}

QString CgiStart(WebBridge& web, const DeviceAddress& device, const QString& url, qint32 seconds, const QString& body)
{
    const qint32 request = web.SendCgi(device, url, SecondsOf(seconds), body);
    return QString::number(request);
}

QCoro::Task<bool> CgiGetGid(WebBridge& web, DeviceAddress device, Work& work)
{
    const QString reply = co_await CgiGet(web, device, kGidUrl, work, kQuickSeconds);
    co_return HoldsOk(reply);
}

QCoro::Task<QString> CgiDetectCamera(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                     QString password, QString brand, Work& work)
{
    return CgiGet(web, device, CameraProbeUrl(ip, httpPort, user, password) + u"&brand=" + brand, work,
                  kCameraProbeSeconds);
}

QCoro::Task<QString> CgiDetectCameraAs(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                       QString password, qint16 camera, QString brand, Work& work)
{
    return CgiGet(web, device, CameraProbeAsUrl(ip, httpPort, user, password, camera, brand), work);
}

QCoro::Task<QString> GetSVRCameraSearch(WebBridge& web, DeviceAddress device, Work& work)
{
    return CgiGet(web, device, kSearchUrl, work);
}

QCoro::Task<QString> CgiGetFwVersion(WebBridge& web, DeviceAddress device, Work& work)
{
    return CgiGet(web, device, kVersionUrl, work);
}

QCoro::Task<LoginReply> CgiLogin(WebBridge& web, DeviceAddress device, Work& work)
{
    const QString reply = co_await CgiGet(web, device, kLoginUrl, work);
    co_return LoginReplyOf(reply);
}

QCoro::Task<QString> CgiSetEventHttp(WebBridge& web, DeviceAddress device, QString params, qint16 svr, Work& work)
{
    return CgiGet(web, device, EventHttpUrl(params, svr), work);
}

QCoro::Task<QString> CgiGetBasicEvent(WebBridge& web, DeviceAddress device, Work& work)
{
    return CgiGet(web, device, kEventUrl, work);
}

QCoro::Task<QString> CgiSetBasicEvent(WebBridge& web, DeviceAddress device, QString params, Work& work)
{
    return CgiGet(web, device, kSetEventUrl + params, work);
}

QCoro::Task<qint32> CgiGetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, Work& work)
{
    const QString reply = co_await CgiGet(web, device, GroupUrl(channel, u".ptz.presetseqdwell"), work);
    co_return DwellOf(reply);
}

QCoro::Task<bool> CgiSetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, qint32 seconds, Work& work)
{
    const QString url = SetUrl(channel, u".ptz.presetseqdwell", QString::number(seconds));
    const QString reply = co_await CgiGet(web, device, url, work);
    co_return BeginsWithOk(reply);
}

QCoro::Task<bool> CgiSetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, QString list, Work& work)
{
    const QString reply = co_await CgiGet(web, device, SetUrl(channel, u".ptz.presetseqlist", list), work);
    co_return BeginsWithOk(reply);
}

QCoro::Task<QString> CgiGetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, Work& work)
{
    const QString reply = co_await CgiGet(web, device, GroupUrl(channel, u".ptz.presetseqlist"), work);
    co_return SequenceOf(reply);
}

QCoro::Task<ChannelParams> CgiGetChannelParams(WebBridge& web, DeviceAddress device, qint16 channel, bool onvif,
                                               Work& work)
{
    std::vector<QCoro::Task<QString>> asked; // all under way at once
    const QStringList urls = ChannelUrls(channel, onvif);
    for (const QString& url : urls)
        asked.push_back(CgiGet(web, device, url, work));
    QStringList replies;
    for (QCoro::Task<QString>& reply : asked)
        replies += co_await reply;
    co_return ChannelParamsOf(replies);
}

QCoro::Task<std::optional<SvrCapability>> CgiGetServerCapability(WebBridge& web, DeviceAddress device, Work& work)
{
    const QString reply = co_await CgiGet(web, device, kCapabilityUrl, work, kQuickSeconds);
    SvrCapability capability;
    std::optional<SvrCapability> read;
    if (ParseServerCapability(reply, capability))
        read = capability;
    co_return read;
}
