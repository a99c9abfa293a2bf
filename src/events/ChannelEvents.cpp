#include "events/ChannelEvents.h"

#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kGetSource("Module_DB_Access - GetEventInfo");
constexpr QLatin1String kSetSource("Module_DB_Access - SetEventInfo");

// A table of settings and the members it fills.
struct DetectionTable
{
    QLatin1String name;
    qint16 IntelligentChannel::*enable;
    qint32 IntelligentChannel::*sensitivity;
};
constexpr std::array kTables{DetectionTable{QLatin1String("MotionSettings"), &IntelligentChannel::bMotionEnable,
                                            &IntelligentChannel::iMotionSensitivity},
                             DetectionTable{QLatin1String("MaliciousAttackSettings"),
                                            &IntelligentChannel::bThreatEnable,
                                            &IntelligentChannel::iThreatSensitivity},
                             DetectionTable{QLatin1String("ObjectLossSettings"), &IntelligentChannel::bObjectLossEnable,
                                            &IntelligentChannel::iObjectLossSensitivity},
                             DetectionTable{QLatin1String("TripwireSettings"), &IntelligentChannel::bTripwireEnable,
                                            &IntelligentChannel::iTripwireSensitivity}};

// Calls `work(slot, channel, analysis id)` for every channel that takes part in analysis.
template <class Work>
void ForEachAnalysed(const RecorderSet& recorders, Work&& work)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& recorder = At(recorders.SVRList, slot);
        for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_IP.isEmpty(); ++channel) {
            const qint32 id = At(recorder.channels, channel).lSub_CH_IntelligentID;
            if (id > 0)
                work(slot, channel, id);
        }
    }
}

} // namespace

qint16 GetEventInfo(Databases& databases, ChannelEventSet& set, const RecorderSet& recorders)
{
    set.stored.fill(IntelligentSettings());
    std::unordered_map<qint32, std::pair<int, int>> channels; // the first channel of an id has its row
    ForEachAnalysed(recorders,
                    [&](int slot, int channel, qint32 id) { channels.emplace(id, std::pair(slot, channel)); });
    const IntelligentChannel defaults;
    for (const DetectionTable& table : kTables) {
        ChannelSettingRow fresh;
        fresh.Sensitivity = defaults.*table.sensitivity; // stays where the field cannot be read
        const auto take = [&](ChannelSettingRow&& row) {
            const auto found = channels.find(row.Channel);
            if (found == channels.end())
                return;
            const auto [slot, channel] = found->second;
            IntelligentChannel& settings = At(At(set.stored, slot).channels, channel);
            settings.*table.enable = row.Enable;
            settings.*table.sensitivity = row.Sensitivity;
        };
        if (ReadTable(databases, table.name, u"Select * From "_s + table.name + u" ORDER BY Channel ASC"_s,
                      ChannelSettingColumns, kGetSource, take, fresh) == 0)
            return 0;
    }
    return 1;
}

qint16 SetEventInfo(Databases& databases, const ChannelEventSet& set, const RecorderSet& recorders)
{
    return AsOneStep(databases, kSetSource, [&]() -> qint16 {
        for (const DetectionTable& table : kTables) {
            const auto fill = [&](auto&& add) {
                ForEachAnalysed(recorders, [&](int slot, int channel, qint32 id) {
                    const IntelligentChannel& settings = At(At(set.stored, slot).channels, channel);
                    add({id, settings.*table.enable, settings.*table.sensitivity});
                });
            };
            if (ReplaceTable(databases, table.name, u"Delete * From "_s + table.name + u' ', ChannelSettingColumns,
                             kSetSource, fill) == 0)
                return 0;
        }
        return 1;
    });
}

void ResetDetection(ChannelEventSet& set, int slot, int channel, const SVRChannel& held)
{
    IntelligentChannel& settings = At(At(set.edit, slot).channels, channel);
    const bool changed = settings.bChanged || held.lSub_CH_IntelligentID > 0;
    settings = IntelligentChannel();
    settings.bChanged = changed;
}

void ResetDetection(ChannelEventSet& set, int slot, const SVRRecord& recorder)
{
    for (int channel = 0; channel < kMaxChannel; ++channel)
        ResetDetection(set, slot, channel, At(recorder.channels, channel));
}

void NameChannelEvents(ChannelEventSet& set, int slot, const SVRRecord& recorder)
{
    PerChannel<ChannelEventRecord>& events = At(set.events, slot);
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel) {
        events[channel] = ChannelEventRecord();
        if (!recorder.channels[channel].sSub_CH_IP.isEmpty())
            events[channel].sName = recorder.channels[channel].sSub_CH_Name;
    }
}

namespace {

// The settings of one table as rows; their analysis id is the recorders' business, so it is left at 0.
std::vector<FamilyRow<ChannelSettingRow>> SettingRows(const std::array<IntelligentSettings, kMaxSVR>& generation,
                                                      const DetectionTable& table, const RecorderSet& recorders)
{
    std::vector<FamilyRow<ChannelSettingRow>> rows;
    ForEachChannel([&](int slot, int channel) {
        const IntelligentChannel& settings = At(At(generation, slot).channels, channel);
        rows.push_back({ChannelKey(slot, channel),
                        ChannelLabel(recorders, slot, channel) + u", "_s + table.name,
                        {0, settings.*table.enable, settings.*table.sensitivity}});
    });
    return rows;
}

} // namespace

RecordFamily EventSettingsFamily(Databases& databases, ChannelEventSet& set, const RecorderSet& recorders)
{
    QStringList tables;
    for (const DetectionTable& table : kTables)
        tables << table.name;
    return MakeFamily(
        databases, {FamilyOrder::EventSettings, 2, 399, tables, kSetSource},
        Generations<std::array<IntelligentSettings, kMaxSVR>>{set.stored, set.edit},
        [&databases, &set, &recorders] { return SetEventInfo(databases, set, recorders); },
        [&set, &recorders](auto& list) {
            for (const DetectionTable& table : kTables)
                Compare(list, SettingRows(set.stored, table, recorders), SettingRows(set.edit, table, recorders),
                        ChannelSettingColumns);
        });
}
