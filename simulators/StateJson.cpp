#include "simulators/StateJson.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

QJsonObject channelJson(int number, const Channel& channel)
{
    const Camera& camera = channel.camera;
    QJsonArray presets;
    for (const Preset& preset : channel.presets)
        presets.append(QJsonObject{{u"id"_s, preset.id}, {u"name"_s, preset.name}});
    QJsonArray sequence;
    for (const SequenceStep& step : channel.sequence)
        sequence.append(QJsonObject{{u"preset"_s, step.preset}, {u"dwell"_s, step.dwell}});
    return {{u"ch"_s, number},
            {u"name"_s, camera.name},
            {u"ip"_s, camera.ip},
            {u"httpPort"_s, camera.httpPort},
            {u"user"_s, camera.user},
            {u"password"_s, camera.password},
            {u"brand"_s, camera.brandCode},
            {u"videoNumber"_s, camera.videoNumber},
            {u"model"_s, camera.model},
            {u"format"_s, camera.live.format},
            {u"size"_s, camera.live.size},
            {u"fps"_s, camera.live.fps},
            {u"quality"_s, camera.live.quality},
            {u"rateControl"_s, camera.live.rateControl},
            {u"bitrate"_s, camera.live.bitrate},
            {u"gop"_s, camera.live.gop},
            {u"lensMode"_s, camera.lensMode},
            {u"presets"_s, presets},
            {u"sequence"_s, sequence},
            {u"sequenceList"_s, channel.sequenceList},
            {u"dwellIndex"_s, channel.dwellIndex},
            {u"cameraEvents"_s, channel.cameraEvents},
            {u"customEvents"_s, channel.customEvents},
            {u"motionEnabled"_s, channel.motionEnabled},
            {u"moving"_s, channel.moving},
            {u"gotoPreset"_s, channel.gotoPreset}};
}

} // namespace

QJsonObject stateJson(const Device& device)
{
    const DeviceState& state = device.state();
    QJsonArray channels;
    for (size_t i = 0; i < state.channels.size(); ++i)
        if (!state.channels[i].camera.ip.isEmpty())
            channels.append(channelJson(static_cast<int>(i) + 1, state.channels[i]));
    QJsonArray actions;
    for (const Action& action : state.actions)
        actions.append(
            QJsonObject{{u"ch"_s, action.channel}, {u"event"_s, action.event}, {u"enable"_s, action.enable}});
    return {{u"name"_s, state.name},           {u"family"_s, familyName(device.profile().family)},
            {u"timeZone"_s, state.timeZone},   {u"summerTime"_s, state.summerTime},
            {u"eventSlot"_s, state.eventSlot}, {u"eventHttp"_s, state.eventHttp},
            {u"channels"_s, channels},         {u"actions"_s, actions}};
}

QJsonObject logJson(const Device& device)
{
    QJsonArray requests;
    for (const LoggedRequest& request : device.log())
        requests.append(QJsonObject{{u"method"_s, QString::fromUtf8(request.method)},
                                    {u"target"_s, QString::fromUtf8(request.target)},
                                    {u"body"_s, QString::fromUtf8(request.body)},
                                    {u"user"_s, request.user},
                                    {u"cmd"_s, request.cmd},
                                    {u"status"_s, request.status}});
    return {{u"requests"_s, requests}};
}

} // namespace simulators
