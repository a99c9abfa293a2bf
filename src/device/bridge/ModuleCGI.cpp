#include "device/bridge/ModuleCGI.h"

#include "app/log/Module_Log.h"
#include "device/bridge/WebBridge.h"
#include "support/Conversions.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kQuickSeconds = 2;
constexpr qint32 kCameraProbeSeconds = 180;

bool BeginsWithOk(const QString& reply)
{
    return reply.startsWith("OK"_L1, Qt::CaseInsensitive);
}

// Second field of a text split at "=".
QString ValueBehindEquals(const QString& text)
{
    return At(text.split(u'='), 1);
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

} // namespace

QString CgiRequest(WebBridge& web, const DeviceAddress& device, const QString& url, const QString& fileName,
                   qint32& timeout, const QString& body, qint32 mode, qint32& outCode, bool noRead)
{
    if (timeout == kCgiDefaultTimeout)
        timeout = kRestingTimeout;
    web.SetTimeout(timeout);
    const qint32 request =
        web.SendCgi(device.address, device.port, device.user, device.password, 1, url, fileName, body, mode, outCode);
    const bool answered = request >= 0 || request <= -400; // an HTTP status is an answer, whatever it says
    if (mode == kCgiSynchronous && noRead && answered)
        return u"SUCCESSED"_s;

    QString result;
    if (request >= 0 && mode == kCgiSynchronous) {
        result = web.GetCgiReply(request);
        web.ReleaseRequest(kReleaseCgi, request);
    } else if (request >= 0) {
        result = QString::number(request);
    }
    web.SetTimeout(kRestingTimeout);
    return result;
}

QString CgiGet(WebBridge& web, const DeviceAddress& device, const QString& url, qint32 seconds)
{
    qint32 outCode = 1;
    return CgiRequest(web, device, url, u"-"_s, seconds, {}, kCgiSynchronous, outCode, false);
}

bool CgiGetGid(WebBridge& web, const DeviceAddress& device)
{
    return CgiGet(web, device, u"/getgid.cgi"_s, kQuickSeconds).contains("OK"_L1, Qt::CaseInsensitive);
}

QString CgiDetectCamera(WebBridge& web, const DeviceAddress& device, const QString& ip, const QString& httpPort,
                        const QString& user, const QString& password, const QString& brand)
{
    const QString url = CameraProbeUrl(ip, httpPort, user, password) + u"&brand=" + brand;
    return CgiGet(web, device, url, kCameraProbeSeconds);
}

QString CgiDetectCameraAs(WebBridge& web, const DeviceAddress& device, const QString& ip, const QString& httpPort,
                          const QString& user, const QString& password, qint16 camera, const QString& brand)
{
    return CgiGet(web, device,
                  CameraProbeUrl(ip, httpPort, user, password) + u"&camera=" + QString::number(camera) + u"&brand=" +
                      brand);
}

QString GetSVRCameraSearch(WebBridge& web, const DeviceAddress& device)
{
    return CgiGet(web, device, u"/system/searchcam.cgi"_s);
}

QString CgiGetFwVersion(WebBridge& web, const DeviceAddress& device)
{
    return CgiGet(web, device, u"/getfwver.cgi"_s);
}

qint32 CgiLogin(WebBridge& web, const DeviceAddress& device, QString& reply)
{
    reply = CgiGet(web, device, u"/login.cgi"_s);
    if (reply.contains("401"_L1))
        return 401;
    return reply.isEmpty() ? 404 : 1;
}

QString CgiSetEventHttp(WebBridge& web, const DeviceAddress& device, const QString& params, qint16 svr)
{
    QString list = params;
    if (!list.isEmpty() && !list.startsWith(u'&'))
        list.prepend(u'&');
    return CgiGet(web, device,
                  u"/event/basicevent.cgi?action=set&svr="_s + QString::number(svr) + list + u"&httpenabled=1");
}

QString CgiGetBasicEvent(WebBridge& web, const DeviceAddress& device)
{
    return CgiGet(web, device, u"/event/basicevent.cgi?action=get"_s);
}

QString CgiSetBasicEvent(WebBridge& web, const DeviceAddress& device, const QString& params, qint32 mode)
{
    qint32 timeout = kCgiDefaultTimeout;
    qint32 outCode = 1;
    return CgiRequest(web, device, u"/event/basicevent.cgi?action=set"_s + params, u"-"_s, timeout, {}, mode, outCode,
                      false);
}

qint32 CgiGetPresetSeqDwell(WebBridge& web, const DeviceAddress& device, qint16 channel)
{
    const QString reply = CgiGet(web, device, GroupUrl(channel, u".ptz.presetseqdwell"));
    return ToInt32(ValueBehindEquals(reply).left(2));
}

bool CgiSetPresetSeqDwell(WebBridge& web, const DeviceAddress& device, qint16 channel, qint32 seconds)
{
    return BeginsWithOk(CgiGet(web, device, SetUrl(channel, u".ptz.presetseqdwell", QString::number(seconds))));
}

bool CgiSetPresetSeqList(WebBridge& web, const DeviceAddress& device, qint16 channel, const QString& list)
{
    return BeginsWithOk(CgiGet(web, device, SetUrl(channel, u".ptz.presetseqlist", list)));
}

QString CgiGetPresetSeqList(WebBridge& web, const DeviceAddress& device, qint16 channel)
{
    QString list = ValueBehindEquals(CgiGet(web, device, GroupUrl(channel, u".ptz.presetseqlist")));
    list.replace(u'\r', u'\n');
    return list.section(u'\n', 0, 0).trimmed();
}

QString CgiGetOnvifParam(WebBridge& web, const DeviceAddress& device, qint16 channel)
{
    return CgiGet(web, device, GroupUrl(channel, u".onvif"));
}

QString CgiGetImageParam(WebBridge& web, const DeviceAddress& device, qint16 channel)
{
    return CgiGet(web, device, GroupUrl(channel, u".image"));
}

QString CgiGetPtzParam(WebBridge& web, const DeviceAddress& device, qint16 channel)
{
    return CgiGet(web, device, GroupUrl(channel, u".ptz"));
}

ChannelParams CgiGetChannelParams(WebBridge& web, const DeviceAddress& device, qint16 channel, bool onvif)
{
    QStringList urls{GroupUrl(channel, u".image"), GroupUrl(channel, u".ptz")};
    if (onvif)
        urls << GroupUrl(channel, u".onvif");
    web.SetTimeout(kRestingTimeout);
    const QStringList replies = web.GetTogether(device.address, device.port, device.user, device.password, urls);
    return {replies[0], replies[1], onvif ? replies[2] : QString()};
}

qint32 CgiGetServerCapability(WebBridge& web, const DeviceAddress& device, SvrCapability& capability)
{
    const QString reply = CgiGet(web, device, u"/getsvrcapability.cgi"_s, kQuickSeconds);
    return ParseServerCapability(reply, capability) ? 1 : -1;
}

bool ParseServerCapability(const QString& reply, SvrCapability& capability)
{
    if (!BeginsWithOk(reply))
        return false;
    const auto store = [](auto& field, const QString& value) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, QString>)
            field = value;
        else if constexpr (std::is_same_v<Field, bool>)
            field = ToReal(value) == 1.0;
        else
            field = ToInt16(value);
    };
    const QStringList lines = reply.split(u'\n');
    for (const QString& line : lines) {
        const auto read = [&](QLatin1String key, auto& field) {
            if (line.contains(key)) {
                Trapped("ModuleCGI - CgiGetServerCapability",
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
