#include "device/bridge/DeviceBridge.h"

#include "app/log/Module_Log.h"
#include "device/bridge/ModuleCGI.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/ReplyText.h"
#include "support/Conversions.h"

#include <QStringTokenizer>
#include <limits>
#include <optional>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

// Lines of "prefix.key=value"; the value is everything behind the first "=".
class ParameterLines
{
public:
    ParameterLines(const QString& reply, const QString& prefix)
        : m_reply(reply)
        , m_prefix(prefix)
    {
    }

    std::optional<QString> text(QLatin1String key) const
    {
        const QString begin = m_prefix + u'.' + key + u'=';
        for (const QStringView line : QStringTokenizer(ReadableLines(m_reply), u'\n')) {
            if (line.startsWith(begin))
                return line.sliced(begin.size()).toString().remove(u'\r');
        }
        return std::nullopt;
    }

    // A number that is none is logged and counts as not told.
    template <class Number>
    void number(QLatin1String key, std::optional<Number>& target) const
    {
        const QString value = text(key).value_or(QString());
        if (value.isEmpty())
            return;
        Trapped("DeviceBridge - ParameterLines", [&] {
            if constexpr (std::is_same_v<Number, qint16>)
                target = ToInt16(value);
            else
                target = ToInt32(value);
        });
    }

private:
    QString m_reply;
    QString m_prefix;
};

QString ChannelKey(qint16 channel)
{
    return u"camera_c"_s + QString::number(channel);
}

QString EscapedValue(const QString& value)
{
    const QString escaped = Escape(value);
    if (escaped.isEmpty() && !value.isEmpty())
        throw std::invalid_argument("Value cannot be escaped");
    return escaped;
}

QString ActionName(PtzAction action)
{
    switch (action) {
    case PtzAction::Move:
        return u"move"_s;
    case PtzAction::Zoom:
        return u"zoom"_s;
    case PtzAction::Focus:
        return u"focus"_s;
    case PtzAction::Iris:
        return u"iris"_s;
    }
    return {};
}

const QString kSystemUrl = u"/param.cgi?action=get&group=system"_s;
constexpr QLatin1String kDevice("device");
constexpr QLatin1String kFishEye("fisheye");

QString GroupOf(qint16 channel, QLatin1String group)
{
    return ChannelKey(channel) + u'.' + group;
}

QString GroupUrl(qint16 channel, QLatin1String group)
{
    return u"/param.cgi?action=get&group="_s + GroupOf(channel, group);
}

std::optional<RecorderFacts> FactsOf(const QString& reply)
{
    const ParameterLines lines(reply, u"system"_s);
    if (!lines.text("videoport"_L1))
        return std::nullopt;
    RecorderFacts read;
    lines.number("videoport"_L1, read.VideoPort);
    lines.number("timezone"_L1, read.TimeZone);
    lines.number("summertime"_L1, read.SummerTime);
    return read;
}

std::optional<RecorderChannel> ChannelOf(const QString& reply, qint16 channel)
{
    const ParameterLines lines(reply, GroupOf(channel, kDevice));
    const std::optional<QString> ip = lines.text("ip"_L1);
    if (!ip)
        return std::nullopt;
    RecorderChannel read;
    read.Name = lines.text("name"_L1).value_or(QString());
    read.IP = ip->trimmed();
    lines.number("httpport"_L1, read.HttpPort);
    read.UserName = lines.text("username"_L1).value_or(QString());
    read.Password = lines.text("password"_L1).value_or(QString());
    lines.number("format"_L1, read.Format);
    read.Resolution = lines.text("resolution"_L1).value_or(QString());
    lines.number("brand"_L1, read.Brand);
    return read;
}

QString SetUrl(qint16 channel, const ChannelParameters& settings, ChannelForm form)
{
    QString url = u"/param.cgi?action=set"_s;
    const auto put = [&](QLatin1String key, const QString& onWire) {
        url += u'&' + GroupOf(channel, kDevice) + u'.' + key + u'=' + onWire;
    };
    const auto putIfSet = [&](QLatin1String key, const QString& value) {
        if (!value.isEmpty())
            put(key, EscapedValue(value));
    };
    put("name"_L1, settings.Name);
    put("ip"_L1, EscapedValue(settings.IP));
    put("httpport"_L1, EscapedValue(settings.HttpPort));
    put("username"_L1, EscapedValue(settings.UserName));
    put("password"_L1, EscapedValue(settings.Password));
    put("brand"_L1, EscapedValue(settings.Brand));
    putIfSet("videoid"_L1, settings.VideoID);
    if (form == ChannelForm::Both) {
        putIfSet("format"_L1, settings.Format);
        putIfSet("resolution"_L1, settings.Resolution);
        putIfSet("fps"_L1, settings.FPS);
        putIfSet("ratectrl"_L1, settings.RateCtrl);
        putIfSet("bitrate"_L1, settings.BitRate);
        putIfSet("quality"_L1, settings.Quality);
    }
    return url;
}

QString CommandUrl(qint16 channel, const QString& rest)
{
    return u"/ptz.cgi?channel="_s + QString::number(channel) + u"&action=" + rest;
}

QString GotoText(qint16 preset, qint32 speed)
{
    return u"goto&preset="_s + QString::number(preset) + u"&speed=" + QString::number(speed);
}

QString SetPresetText(qint16 preset, const QString& name)
{
    return u"setpreset&preset="_s + QString::number(preset) + u"&name=" + EscapedValue(name);
}

QString MoveText(PtzAction action, qint32 direction, qint32 speed)
{
    return ActionName(action) + u"&direction=" + QString::number(direction) + u"&speed=" + QString::number(speed);
}

QString FishEyeModeOf(const QString& reply, qint16 channel)
{
    return ParameterLines(reply, GroupOf(channel, kFishEye)).text("mode"_L1).value_or(QString()).trimmed();
}

} // namespace

DeviceBridge::DeviceBridge(WebBridge& web, DevicePoller& poller, QObject* parent)
    : QObject(parent)
    , m_web(web)
    , m_poller(poller)
{
}

QCoro::Task<std::optional<RecorderFacts>> DeviceBridge::GetSystemFacts(DeviceAddress device, Work& work)
{
    const QString reply = co_await CgiGet(m_web, device, kSystemUrl, work);
    co_return FactsOf(reply);
}

QCoro::Task<std::optional<RecorderChannel>> DeviceBridge::GetChannel(DeviceAddress device, qint16 channel, Work& work)
{
    const QString reply = co_await CgiGet(m_web, device, GroupUrl(channel, kDevice), work);
    co_return ChannelOf(reply, channel);
}

QCoro::Task<QString> DeviceBridge::SetChannel(DeviceAddress device, qint16 channel, ChannelParameters settings,
                                              ChannelForm form, Work& work)
{
    const QString reply = co_await CgiGet(m_web, device, SetUrl(channel, settings, form), work);
    co_return reply;
}

bool DeviceBridge::DeviceTook(const QString& reply)
{
    return reply.contains("RET=\"0\""_L1);
}

QCoro::Task<bool> DeviceBridge::command(DeviceAddress device, qint16 channel, QString rest, Work& work)
{
    const QString reply = co_await CgiGet(m_web, device, CommandUrl(channel, rest), work);
    co_return DeviceTook(reply);
}

QCoro::Task<bool> DeviceBridge::GotoPreset(DeviceAddress device, qint16 channel, qint16 preset, qint32 speed,
                                           Work& work)
{
    return command(device, channel, GotoText(preset, speed), work);
}

QCoro::Task<bool> DeviceBridge::SetPreset(DeviceAddress device, qint16 channel, qint16 preset, QString name, Work& work)
{
    const bool took = co_await command(device, channel, SetPresetText(preset, name), work);
    co_return took;
}

QCoro::Task<bool> DeviceBridge::MovePtz(DeviceAddress device, qint16 channel, PtzAction action, qint32 direction,
                                        qint32 speed, Work& work)
{
    return command(device, channel, MoveText(action, direction, speed), work);
}

QCoro::Task<bool> DeviceBridge::StopPtz(DeviceAddress device, qint16 channel, Work& work)
{
    return command(device, channel, u"stop"_s, work);
}

QCoro::Task<QString> DeviceBridge::GetFishEyeMode(DeviceAddress device, qint16 channel, Work& work)
{
    const QString reply = co_await CgiGet(m_web, device, GroupUrl(channel, kFishEye), work);
    co_return FishEyeModeOf(reply, channel);
}

qint16 DeviceBridge::AddService(const QString& address, qint32 httpPort, const QString& user, const QString& password,
                                const QString&)
{
    qint16 number = 0;
    for (const auto& [taken, service] : m_services) {
        if (taken != number)
            break;
        if (number == std::numeric_limits<qint16>::max())
            return -1;
        ++number;
    }
    const auto told = [this, number](const ConnectionState& state) { polled(number, state); };
    m_services[number].asked = std::make_unique<DevicePoller::Subscription>(
        m_poller, DeviceAddress{address, httpPort, user, password}, m_serviceTimeout, told);
    return number;
}

void DeviceBridge::RemoveService(qint16 number)
{
    m_services.erase(number);
}

void DeviceBridge::polled(qint16 number, const ConnectionState& state)
{
    Service& service = m_services.at(number);
    const qint32 status = state.kind == ConnectionState::Kind::Connected ? 1 : 0;
    if (service.status == status)
        return;
    service.status = status;
    emit OnNotifyServiceStatus(number, status);
}
