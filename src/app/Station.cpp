#include "app/Station.h"

#include "app/RecorderWiring.h"
#include "app/log/Module_Log.h"
#include "emap/EMapStore.h"
#include "platform/Clock.h"
#include "recorders/data/SVRStore.h"
#include "screens/LayoutStore.h"
#include "screens/PatternStore.h"
#include "screens/StartStore.h"
#include "screens/WallStore.h"
#include "store/SystemLog.h"
#include "support/Conversions.h"
#include "support/TimeSeconds.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSystemExport = 12;
constexpr int kSystemStart = 13;
constexpr int kSystemStop = 14;
constexpr int kSoftTrigger = 15;
constexpr int kNVRTrigger = 16;

// Texts of the actions 0 to 12, never translated.
constexpr std::array<const char*, 13> kAuditTexts{"Modify Setting of System",
                                                  "Modify Setting of NVR",
                                                  "Modify Setting of Intelligent",
                                                  "Modify Setting of User Group",
                                                  "Modify Setting of Event handling",
                                                  "Modify Setting of Event Server",
                                                  "Modify Setting of Emap",
                                                  "Modify Setting of Screen Layout",
                                                  "Modify Setting of Startup",
                                                  "Modify Setting of VideoWall",
                                                  "Modify Setting of SVD",
                                                  "Export Event",
                                                  "System Log Export"};

void NotifyChannel(Station& station, int key, const QString& text)
{
    const int slot = key / kMaxChannel;
    const int channel = key % kMaxChannel;
    const QString name = At(At(station.recorders.SVRList, slot).channels, channel).sSub_CH_Name;
    if (name.isEmpty())
        return;
    station.sendEvent.SendQueueStr_Set(
        text + u" NVR -"_s + QString::number(slot) + u" CH-"_s + QString::number(channel) + u' ' + name, false);
}

} // namespace

Station::Station()
{
    families.add(BasicDefaultFamily(databases, basicDefault));
    families.add(SVRFamily(databases, recorders));
    families.add(GroupFamily(databases, groups,
                             [this](int slot) { return !At(recorders.SVRWorkList, slot).sSVR_Name.isEmpty(); }));
    families.add(EventSettingsFamily(databases, channelEvents, recorders));
    families.add(EMapGroupFamily(databases, emap));
    families.add(EMapIconFamily(databases, emap, recorders));
    families.add(UserFamily(databases, users, events));
    families.add(ScreenLayoutFamily(databases, screens));
    families.add(DefaultStartFamily(databases, screens));
    families.add(PatternFamily(databases, screens, [this] { return !Loading; }));
    families.add(VideoWallFamily(databases, screens));
    families.add(EventServerFamily(databases, eventServers));
    families.add(EventHandlingFamily(databases, eventHandling));
    WireRecorderEvents(*this);
}

const GroupPrivilegeRecord& Station::currentGroup() const
{
    return At(groups.stored, CurrentGroupIndex);
}

GroupPrivilegeRecord Station::currentRights() const
{
    GroupPrivilegeRecord rights;
    Trapped("Form_Initial - Timer_PrivilegeCheck", [&] { rights = currentGroup(); });
    return rights;
}

bool SaveCheck(Station& station)
{
    return station.families.SaveCheck([&](int page) {
        station.m_bDataSaved = true;
        RunEventAction(station, page, -1, {}, CurrentUser());
    });
}

void RunEventAction(Station& station, int action, int key, const QString& text, const QString& operatorName)
{
    Trapped("Module_PublicFunction - RunEventAction", [&] {
        const EventHandlingRecord& handling = station.eventHandling.stored;
        if (action >= 0 && action <= kSystemExport) {
            QString line = QString::fromLatin1(kAuditTexts[static_cast<std::size_t>(action)]);
            SaveSystemLog(station.databases, TimeToUtcSeconds(Now()), operatorName, line);
            if (action == 0)
                line += u" setting"_s;
            if (handling.bConfigModify)
                station.sendEvent.SendQueueStr_Set(line, false);
        } else if (action == kSystemStart || action == kSystemStop) {
            if (handling.bSystemStartup)
                station.sendEvent.SendQueueStr_Set(action == kSystemStart ? u"System Start"_s : u"System Stop"_s,
                                                   false);
        } else if (action == kSoftTrigger && handling.bSoftTrigger) {
            NotifyChannel(station, key, text);
        } else if (action == kNVRTrigger && handling.bNVRTrigger) {
            NotifyChannel(station, key, text);
        }
    });
}
