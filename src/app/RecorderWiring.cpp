#include "app/RecorderWiring.h"

#include "app/Station.h"
#include "app/log/Module_Log.h"
#include "screens/SVRChange.h"
#include "screens/UserRows.h"
#include "support/Conversions.h"

void WireRecorderEvents(Station& station)
{
    RecorderEvents& events = station.events;
    const auto recorder = [&station](int slot) -> const SVRRecord& { return At(station.recorders.SVRWorkList, slot); };
    const auto repairScreens = [&station] {
        RepairAfterSVRChange(station.databases, station.screens, station.recorders, CurrentUser());
    };

    events.added.subscribe([&station](int slot) { GrantNewRecorder(station.groups, slot); });
    events.added.subscribe(
        [&station, recorder](int slot) { AddRecorderMap(station.emap, slot, recorder(slot).sSVR_Name); });
    events.added.subscribe(
        [&station, recorder](int slot) { ResetDetection(station.channelEvents, slot, recorder(slot)); });
    events.added.subscribe(
        [&station, recorder](int slot) { NameChannelEvents(station.channelEvents, slot, recorder(slot)); });

    events.readAgain.subscribe(
        [&station, recorder](int slot) { NameChannelEvents(station.channelEvents, slot, recorder(slot)); });
    events.readAgain.subscribe([repairScreens](int) { repairScreens(); });

    events.renamed.subscribe(
        [&station](int slot, const QString& name) { RenameRecorderMap(station.emap, slot, name); });

    events.removed.subscribe([&station](int slot, const SVRRecord&) { GrantNewRecorder(station.groups, slot); });
    events.removed.subscribe([&station, recorder](int slot, const SVRRecord&) {
        NameChannelEvents(station.channelEvents, slot, recorder(slot));
    });
    events.removed.subscribe(
        [&station](int slot, const SVRRecord& held) { ResetDetection(station.channelEvents, slot, held); });
    events.removed.subscribe([&station](int slot, const SVRRecord&) { RemoveRecorderMaps(station.emap, slot); });
    events.removed.subscribe([repairScreens](int, const SVRRecord&) { repairScreens(); });

    events.channelChanged.subscribe(
        [&station, recorder](int slot, int) { NameChannelEvents(station.channelEvents, slot, recorder(slot)); });

    events.channelGone.subscribe([&station, recorder](int slot, int, const SVRChannel&) {
        NameChannelEvents(station.channelEvents, slot, recorder(slot));
    });
    events.channelGone.subscribe([&station](int slot, int channel, const SVRChannel& held) {
        ResetDetection(station.channelEvents, slot, channel, held);
    });
    events.channelGone.subscribe([&station, recorder](int slot, int channel, const SVRChannel&) {
        if (At(recorder(slot).channels, channel).sSub_CH_IP.isEmpty()) // another camera stands in its place
            RemoveCameraIcon(station.emap, slot, channel);
    });
    events.channelGone.subscribe([&station](int, int, const SVRChannel&) {
        RepairAfterChannelGone(station.databases, station.screens, station.recorders, CurrentUser());
    });

    events.usersGone.subscribe([&station](const QStringList& left) { DeleteRowsOfOthers(station.databases, left); });
    events.usersSaved.subscribe([&station](const QStringList& users) {
        AddFirstStarts(station.databases, users, station.screens.iMonitorCount);
    });
}
