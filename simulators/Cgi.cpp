#include "simulators/Commands.h"
#include "simulators/DeviceText.h"
#include "simulators/Snapshot.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

HttpReply lines(const CommandContext& context, const QStringList& text)
{
    HttpReply reply;
    for (const QString& line : text)
        reply.body += line.toUtf8() + context.profile.lineEnd;
    return reply;
}

HttpReply ret(const CommandContext& context, int value)
{
    return lines(context, {value == 0 ? u"OK"_s : u"ERROR"_s, u"RET=\"%1\""_s.arg(value)});
}

HttpReply loginReply(const CommandContext& context)
{
    QStringList text{u"OK"_s};
    if (context.account.securityLevel >= 0)
        text += u"securitylevel=%1"_s.arg(context.account.securityLevel);
    if (context.account.group >= 0)
        text += u"group=%1"_s.arg(context.account.group);
    return lines(context, text);
}

HttpReply capability(const CommandContext& context)
{
    const DeviceProfile& profile = context.profile;
    return lines(context,
                 {u"OK"_s, u"modelname="_s + profile.modelName, u"brand="_s + profile.brand,
                  u"firmwareversion="_s + profile.firmware,
                  u"maxchannelsupport="_s + QString::number(profile.maxChannels),
                  u"maxhdsupport="_s + QString::number(profile.maxHd),
                  u"cmssupport="_s + QString::number(profile.cmsSupport), u"devicetype="_s + profile.deviceType,
                  u"customeventsupport="_s + QString::number(profile.customEventSupport)});
}

QString bitsText(int bits)
{
    return bits == 3 ? u"1,2"_s : bits == 0 ? QString() : QString::number(bits);
}

// "", "0", "1", "2", "1,2"; -1 for anything else.
int bitsOf(const QString& text)
{
    if (text.isEmpty() || text == u"0"_s)
        return 0;
    if (text == u"1,2"_s)
        return 3;
    return text == u"1"_s ? 1 : text == u"2"_s ? 2 : -1;
}

HttpReply basicEventSet(CommandContext& context, const Query& query)
{
    if (const int barrier = context.writeBarrier())
        return ret(context, barrier);
    if (context.state.upnpMissing)
        return lines(context, {u"Error -5341"_s});
    QStringList failed;
    for (const QueryItem& item : query.items()) {
        if (item.key == "action")
            continue;
        if (item.key == "svr") {
            context.state.eventSlot = item.value().toInt();
            continue;
        }
        if (item.key == "httpenabled") {
            context.state.eventHttp = item.value() == u"1"_s;
            continue;
        }
        const int own = channelOfKey(item.key, "camera_c");
        const int custom = channelOfKey(item.key, "customevent_c");
        const int number = own ? own : custom;
        const int bits = bitsOf(item.value());
        if (number == 0 || bits < 0)
            return lines(context, {u"Error unknown parameter"_s});
        Channel* channel = context.channel(number);
        if (!channel || channel->camera.ip.isEmpty()) {
            if (bits != 0)
                return lines(context, {u"channel %1 has no camera"_s.arg(number)});
            continue;
        }
        if (context.state.refusedEventChannels.count(number)) {
            failed += QString::number(number);
            continue;
        }
        channel->cameraEvents = bits;
        if (custom)
            channel->customEvents = bits;
        Channel& saved = context.saved.channels[static_cast<size_t>(number - 1)];
        saved.cameraEvents = channel->cameraEvents;
        saved.customEvents = channel->customEvents;
    }
    context.saved.eventSlot = context.state.eventSlot;
    context.saved.eventHttp = context.state.eventHttp;
    return lines(context,
                 failed.isEmpty() ? QStringList{u"OK"_s} : QStringList{u"OK"_s, u"failed="_s + failed.join(u',')});
}

HttpReply basicEvent(CommandContext& context, const Query& query)
{
    if (query.value("action") == u"set"_s)
        return basicEventSet(context, query);
    if (query.value("action") != u"get"_s)
        return ret(context, kRetUnknownCommand);
    QStringList text{u"OK"_s};
    for (size_t i = 0; i < context.state.channels.size(); ++i)
        if (!context.state.channels[i].camera.ip.isEmpty())
            text += u"camera_c%1=%2;"_s.arg(i + 1).arg(bitsText(context.state.channels[i].cameraEvents));
    return lines(context, text);
}

// One page from the asked time on: "OK continue=T", "time=T", the entries; on the last page "OK" and the entries.
HttpReply searchEvents(CommandContext& context, const Query& query)
{
    bool ok = false;
    const qint64 from = query.value("time").toLongLong(&ok);
    if (!ok)
        return ret(context, kRetBadValue);
    const auto& events = context.state.events;
    auto at =
        std::find_if(events.begin(), events.end(), [from](const StoredEvent& event) { return event.time >= from; });
    QString entries;
    // A page ends between two times, never inside one, so that the next begins where this one stopped.
    for (int taken = 0; at != events.end(); ++at, ++taken) {
        if (taken >= context.state.eventPage && at->time != std::prev(at)->time)
            break;
        entries +=
            u"%1:%2:%3:%4:%5,"_s.arg(at->time).arg(at->channel).arg(at->type).arg(at->trigger).arg(escaped(at->name));
    }
    if (at == events.end())
        return lines(context, {u"OK"_s, entries});
    const QString next = QString::number(at->time);
    return lines(context, {u"OK continue="_s + next, u"time="_s + next, entries});
}

HttpReply movePtz(CommandContext& context, const Query& query)
{
    if (const int barrier = context.writeBarrier())
        return ret(context, barrier);
    Channel* channel = context.channel(query.number("channel"));
    const QString action = query.value("action");
    if (!channel || channel->camera.ip.isEmpty() || !channel->camera.ptz.enable)
        return ret(context, kRetNotFound);
    const int speed = query.number("speed", -1);
    const int preset = query.number("preset");
    const auto found = std::find_if(channel->presets.begin(), channel->presets.end(),
                                    [&](const Preset& one) { return one.id == preset; });
    if (action == u"stop"_s) {
        channel->moving = false;
        return ret(context, 0);
    }
    if (action == u"setpreset"_s) {
        if (preset < 1 || preset > 8)
            return ret(context, kRetBadValue);
        const Preset stored{preset,
                            query.value("name"),
                            false,
                            QString::number(channel->position.pan),
                            QString::number(channel->position.tilt),
                            QString::number(channel->position.zoom),
                            QString::number(channel->position.focus)};
        if (found != channel->presets.end())
            *found = stored;
        else
            channel->presets.push_back(stored);
        context.saved.channels[static_cast<size_t>(query.number("channel") - 1)].presets = channel->presets;
        return ret(context, 0);
    }
    if (!speedFits(channel->camera, speed))
        return ret(context, kRetBadValue);
    if (action == u"goto"_s) {
        if (found == channel->presets.end())
            return ret(context, kRetNotFound);
        recallPreset(*channel, *found);
        return ret(context, 0);
    }
    static const QStringList kAxes{u"move"_s, u"zoom"_s, u"focus"_s, u"iris"_s}; // in the order of PtzAxis
    const qsizetype axis = kAxes.indexOf(action);
    if (axis < 0)
        return ret(context, kRetUnknownCommand);
    if (!moveCamera(channel->position, static_cast<PtzAxis>(axis), query.number("direction", -1), speed))
        return ret(context, kRetBadValue);
    channel->moving = true;
    return ret(context, 0);
}

HttpReply searchCameras(const CommandContext& context)
{
    QStringList text{u"OK"_s};
    for (const Camera& camera : context.state.network)
        text += u"ip=%1,httpport=%2,brand=%3,model=%4"_s.arg(camera.ip)
                    .arg(camera.httpPort)
                    .arg(camera.manufacturer, camera.model);
    return lines(context, text);
}

HttpReply snapshot(const CommandContext& context, const Query& query)
{
    const int number = query.number("channel");
    const Channel* channel = context.channel(number);
    HttpReply reply;
    if (!channel || channel->camera.ip.isEmpty()) {
        reply.status = 404;
        reply.body = "No camera\n";
        return reply;
    }
    reply.contentType = "image/jpeg";
    reply.body = snapshotJpeg(number, channel->position.pan);
    return reply;
}

} // namespace

std::optional<HttpReply> runCgi(CommandContext& context, const QByteArray& path, const Query& query)
{
    const Family family = context.profile.family;
    const bool recorder = family != Family::Svd;
    if (path == "/login.cgi")
        return loginReply(context);
    if (path == "/getgid.cgi")
        return lines(context, {u"OK"_s, u"gid=1"_s});
    if (path == "/getfwver.cgi")
        return lines(context, {u"OK"_s, u"version="_s + context.profile.firmware});
    if (path == "/getsvrcapability.cgi")
        return capability(context);
    if (recorder && path == "/event/basicevent.cgi")
        return basicEvent(context, query);
    if (recorder && path == "/snapshot.cgi")
        return snapshot(context, query);
    if ((family == Family::Svr || family == Family::OmluPro) && path == "/param.cgi")
        return parameterText(context, query);
    if (family != Family::Svr)
        return std::nullopt;
    if (path == "/ptz.cgi")
        return movePtz(context, query);
    if (path == "/event/searchevent.cgi")
        return searchEvents(context, query);
    if (path == "/system/searchcam.cgi")
        return searchCameras(context);
    if (path == "/system/detectcam.cgi")
        return probeCamera(context, query);
    return std::nullopt;
}

} // namespace simulators
