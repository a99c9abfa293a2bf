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

// The groups of a channel asked for at once.
struct ChannelParams
{
    QString Image;
    QString Ptz;
    QString Onvif; // empty unless it was wanted
};

inline constexpr qint32 kCgiDefaultTimeout = -1; // 60 seconds

// Every command awaits the device on behalf of `work`, whose stop ends it at once like a failure of transport.

// One request. url: path with query; body: empty for a GET. seconds: kCgiDefaultTimeout or above 0. The empty text
// stands for every failure.
QCoro::Task<QString> CgiGet(WebBridge& web, DeviceAddress device, QString url, Work& work,
                            qint32 seconds = kCgiDefaultTimeout, QString body = {});
// The same where the answer does not matter: "SUCCESSED" as soon as the device has answered at all, be it with an error
// page.
QCoro::Task<QString> CgiTell(WebBridge& web, DeviceAddress device, QString url, Work& work,
                             qint32 seconds = kCgiDefaultTimeout, QString body = {});
// Begins a request and goes on: the request number as decimal text; its end comes as WebBridge::RequestEnded.
QString CgiStart(WebBridge& web, const DeviceAddress& device, const QString& url, qint32 seconds = kCgiDefaultTimeout,
                 const QString& body = {});

// Whether the device answers (2 seconds): the reply holds "OK" in any case.
QCoro::Task<bool> CgiGetGid(WebBridge& web, DeviceAddress device, Work& work);
// Probes a camera through the recorder (180 seconds). Values go out as given; the brand may be empty.
QCoro::Task<QString> CgiDetectCamera(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                     QString password, QString brand, Work& work);
// The same for video source `camera` (from 1) of a multi-source camera, in 60 seconds.
QCoro::Task<QString> CgiDetectCameraAs(WebBridge& web, DeviceAddress device, QString ip, QString httpPort, QString user,
                                       QString password, qint16 camera, QString brand, Work& work);
QCoro::Task<QString> GetSVRCameraSearch(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiGetFwVersion(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<LoginReply> CgiLogin(WebBridge& web, DeviceAddress device, Work& work);

// Event settings. params: "&key=value…", with or without the first "&"; svr: slot number from 1.
QCoro::Task<QString> CgiSetEventHttp(WebBridge& web, DeviceAddress device, QString params, qint16 svr, Work& work);
QCoro::Task<QString> CgiGetBasicEvent(WebBridge& web, DeviceAddress device, Work& work);
QCoro::Task<QString> CgiSetBasicEvent(WebBridge& web, DeviceAddress device, QString params, Work& work);

// Preset sequence of a channel; `channel` counts from 1 here and below. The two readers throw ConversionError when
// the reply holds no "=" (an empty one included) or no number.
QCoro::Task<qint32> CgiGetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, Work& work);
QCoro::Task<bool> CgiSetPresetSeqDwell(WebBridge& web, DeviceAddress device, qint16 channel, qint32 seconds,
                                       Work& work);
QCoro::Task<bool> CgiSetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, QString list, Work& work);
QCoro::Task<QString> CgiGetPresetSeqList(WebBridge& web, DeviceAddress device, qint16 channel, Work& work);

// Parameter groups of a channel, for the readers of parameter text.
QCoro::Task<ChannelParams> CgiGetChannelParams(WebBridge& web, DeviceAddress device, qint16 channel, bool onvif,
                                               Work& work);

// None when the device does not answer with a capability (2 seconds).
QCoro::Task<std::optional<SvrCapability>> CgiGetServerCapability(WebBridge& web, DeviceAddress device, Work& work);
// Reads the reply into the record. False, with the record untouched, when it does not begin with "OK" in any case. A
// key matches anywhere in a line; a number that is none is logged and leaves its field.
bool ParseServerCapability(const QString& reply, SvrCapability& capability);
