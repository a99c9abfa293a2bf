#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/Work.h"

#include <QString>

class WebBridge;

// The plain CGI commands of the devices. A reply is text: "OK" at its beginning means success, values are lines of
// key=value. Failures of transport give the empty text.

// Reply of /getsvrcapability.cgi.
struct SvrCapability
{
    QString ModelName;
    QString Brand;
    QString FirmwareVersion;
    qint16 MaxChannelSupport = 0;
    qint16 MaxHDSupport = 0;
    bool CMSSupport = false;
    QString DeviceType;
    bool CustomEventSupport = false;
};

// Result of /login.cgi.
struct LoginReply
{
    qint32 result = 404; // 401 when the text holds "401", else 1 when there is a text, else 404
    QString text;
};

inline constexpr qint32 kCgiDefaultTimeout = -1; // 60 seconds
inline constexpr qint32 kCgiSynchronous = 1;
inline constexpr qint32 kCgiAsynchronous = 0;

// One request. url: path with query; body: empty for a GET.
// timeout: seconds; -1 becomes 60 (in the caller's variable too). mode kCgiSynchronous waits and gives the reply text;
// kCgiAsynchronous gives the request number as decimal text, its end comes as WebBridge::RequestEnded. With noRead a
// synchronous request gives "SUCCESSED" as soon as the device has answered at all, be it with an error page. The
// empty text stands for every failure. The bridge's time-out rests at 60 afterwards, save after noRead.
QString CgiRequest(WebBridge& web, const DeviceAddress& device, const QString& url, const QString& fileName,
                   qint32& timeout, const QString& body, qint32 mode, qint32& outCode, bool noRead);
// The usual synchronous request without file and body. seconds: kCgiDefaultTimeout or above 0.
QString CgiGet(WebBridge& web, const DeviceAddress& device, const QString& url, qint32 seconds = kCgiDefaultTimeout);

// Whether the device answers (2 seconds): the reply holds "OK" in any case.
bool CgiGetGid(WebBridge& web, const DeviceAddress& device);
// Probes a camera through the recorder (180 seconds). Values go out as given; the brand may be empty.
QString CgiDetectCamera(WebBridge& web, const DeviceAddress& device, const QString& ip, const QString& httpPort,
                        const QString& user, const QString& password, const QString& brand);
// The same for video source `camera` (from 1) of a multi-source camera, in 60 seconds.
QString CgiDetectCameraAs(WebBridge& web, const DeviceAddress& device, const QString& ip, const QString& httpPort,
                          const QString& user, const QString& password, qint16 camera, const QString& brand);
QString GetSVRCameraSearch(WebBridge& web, const DeviceAddress& device);
QString CgiGetFwVersion(WebBridge& web, const DeviceAddress& device);
// 401 when the reply holds "401", else 1 when there is a reply, else 404.
qint32 CgiLogin(WebBridge& web, const DeviceAddress& device, QString& reply);

// Event settings. params: "&key=value…", with or without the first "&"; svr: slot number from 1.
QString CgiSetEventHttp(WebBridge& web, const DeviceAddress& device, const QString& params, qint16 svr);
QString CgiGetBasicEvent(WebBridge& web, const DeviceAddress& device);
QString CgiSetBasicEvent(WebBridge& web, const DeviceAddress& device, const QString& params, qint32 mode);

// Preset sequence of a channel; `channel` counts from 1 here and below. The two readers throw ConversionError when
// the reply holds no "=" (an empty one included) or no number.
qint32 CgiGetPresetSeqDwell(WebBridge& web, const DeviceAddress& device, qint16 channel);
bool CgiSetPresetSeqDwell(WebBridge& web, const DeviceAddress& device, qint16 channel, qint32 seconds);
bool CgiSetPresetSeqList(WebBridge& web, const DeviceAddress& device, qint16 channel, const QString& list);
QString CgiGetPresetSeqList(WebBridge& web, const DeviceAddress& device, qint16 channel);

// Parameter groups of a channel, for the readers of parameter text.
QString CgiGetOnvifParam(WebBridge& web, const DeviceAddress& device, qint16 channel);
QString CgiGetImageParam(WebBridge& web, const DeviceAddress& device, qint16 channel);
QString CgiGetPtzParam(WebBridge& web, const DeviceAddress& device, qint16 channel);
// The groups of a channel asked for at once.
struct ChannelParams
{
    QString Image;
    QString Ptz;
    QString Onvif; // empty unless it was wanted
};
ChannelParams CgiGetChannelParams(WebBridge& web, const DeviceAddress& device, qint16 channel, bool onvif);

// 1 and the record on success, -1 otherwise (2 seconds).
qint32 CgiGetServerCapability(WebBridge& web, const DeviceAddress& device, SvrCapability& capability);
// Reads the reply into the record. False, with the record untouched, when it does not begin with "OK" in any case. A
// key matches anywhere in a line; a number that is none is logged and leaves its field.
bool ParseServerCapability(const QString& reply, SvrCapability& capability);

// The same commands for coroutines: they await the device on behalf of `work`, and its stop ends them at once like a
// failure of transport. The capability is none where the waiting
// call gives -1; the readers of preset sequences throw as above.
QCoro::Task<QString> CgiGet(WebBridge& web, DeviceAddress device, QString url, Work& work,
                            qint32 seconds = kCgiDefaultTimeout);
QCoro::Task<bool> CgiGetGid(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiDetectCamera(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                     QString password, QString brand, Work& work);
QCoro::Task<QString> CgiDetectCameraAs(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                       QString password, qint16 camera, QString brand, Work& work);
QCoro::Task<QString> GetSVRCameraSearch(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiGetFwVersion(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<LoginReply> CgiLogin(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiSetEventHttp(WebBridge& web, DeviceAddress device, QString params, qint16 svr, Work& work);
QCoro::Task<QString> CgiGetBasicEvent(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiSetBasicEvent(WebBridge& web, DeviceAddress device, QString params, Work& work);
QCoro::Task<qint32> CgiGetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, Work& work);
QCoro::Task<bool> CgiSetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, qint32 seconds,
                                       Work& work);
QCoro::Task<bool> CgiSetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, QString list, Work& work);
QCoro::Task<QString> CgiGetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, Work& work);
QCoro::Task<ChannelParams> CgiGetChannelParams(WebBridge& web, DeviceAddress device, qint16 channel, bool onvif,
                                               Work& work);
QCoro::Task<std::optional<SvrCapability>> CgiGetServerCapability(WebBridge& web, DeviceAddress device, Work& work);
