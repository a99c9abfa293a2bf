#pragma once

#include "device/bridge/DevicePoller.h"
#include "platform/Work.h"

#include <QObject>
#include <map>
#include <memory>
#include <optional>

class WebBridge;

// What family "SVR" says about itself; what it does not tell has no value.
struct RecorderFacts
{
    std::optional<qint32> VideoPort;
    std::optional<qint16> TimeZone;
    std::optional<qint16> SummerTime;
};

// One channel as family "SVR" describes it. A channel without a camera has an empty IP. What it does not tell has no
// value, or is a null text.
struct RecorderChannel
{
    QString Name; // escaped, as on the wire
    QString IP;
    std::optional<qint32> HttpPort;
    QString UserName;
    QString Password;
    std::optional<qint32> Format; // 256 MJPEG, 768 MPEG4, 1024 H.264
    QString Resolution;
    std::optional<qint16> Brand;
};

// What is written to a channel. A value without text is left out, except the six that name the camera.
struct ChannelParameters
{
    QString Name; // escaped, as on the wire
    QString IP;
    QString HttpPort;
    QString UserName;
    QString Password;
    QString Brand;
    QString VideoID; // source of a multi-source camera, from 1
    QString Format;  // code, and so the codes below
    QString Resolution;
    QString FPS;
    QString RateCtrl;
    QString BitRate;
    QString Quality;
};

enum class ChannelForm
{
    Both,  // the camera and its stream
    Simple // the camera only
};

enum class PtzAction
{
    Move,
    Zoom,
    Focus,
    Iris
};

// The devices' own parameter text, and the station's services at them. `channel` counts from 1.
class DeviceBridge : public QObject
{
    Q_OBJECT

public:
    DeviceBridge(WebBridge& web, DevicePoller& poller, QObject* parent = nullptr);

    // Every call awaits the device on behalf of `work`, whose stop ends it at once like a failure of transport.
    // No record without an answer. A number that is none is logged and counts as not told.
    QCoro::Task<std::optional<RecorderFacts>> GetSystemFacts(DeviceAddress device, Work& work);
    QCoro::Task<std::optional<RecorderChannel>> GetChannel(DeviceAddress device, qint16 channel, Work& work);

    // Reply text of the device; it took the values when DeviceTook() says so. Values are escaped on the way, the name
    // is not (it comes escaped). Throws std::invalid_argument, when it is awaited, for a value that cannot be escaped,
    // with nothing sent.
    QCoro::Task<QString> SetChannel(DeviceAddress device, qint16 channel, ChannelParameters settings, ChannelForm form,
                                    Work& work);
    static bool DeviceTook(const QString& reply);

    // Presets (from 1) and movement; true when the device took the command.
    QCoro::Task<bool> GotoPreset(DeviceAddress device, qint16 channel, qint16 preset, qint32 speed, Work& work);
    QCoro::Task<bool> SetPreset(DeviceAddress device, qint16 channel, qint16 preset, QString name, Work& work);
    QCoro::Task<bool> MovePtz(DeviceAddress device, qint16 channel, PtzAction action, qint32 direction, qint32 speed,
                              Work& work);
    QCoro::Task<bool> StopPtz(DeviceAddress device, qint16 channel, Work& work);

    // Present fish-eye mode as the device says it.
    QCoro::Task<QString> GetFishEyeMode(DeviceAddress device, qint16 channel, Work& work);

    // Silence that counts as no answer of a service's device, in seconds; services added later take it.
    qint32 ServiceTimeout() const { return m_serviceTimeout; }
    void SetServiceTimeout(qint32 seconds) { m_serviceTimeout = seconds; }

    // Registers a service: its device is asked /getgid.cgi from now on. The lowest free number from 0, or -1 when
    // there is none.
    qint16 AddService(const QString& address, qint32 httpPort, const QString& user, const QString& password,
                      const QString& application);
    void RemoveService(qint16 service);

signals:
    // 1: the device answers, 0: it does not. Emitted for the first poll and for every change.
    void OnNotifyServiceStatus(qint16 service, qint32 status);

private:
    struct Service
    {
        std::unique_ptr<DevicePoller::Subscription> asked;
        qint32 status = -1; // unknown yet
    };

    QCoro::Task<bool> command(DeviceAddress device, qint16 channel, QString rest, Work& work);
    void polled(qint16 number, const ConnectionState& state);

    WebBridge& m_web;
    DevicePoller& m_poller;
    std::map<qint16, Service> m_services;
    qint32 m_serviceTimeout = 60;
};
