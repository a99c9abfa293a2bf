#include "events/ChannelEvents.h"

#include "store/TableAccess.h"
#include "store/TableRows.h"
#include "store/tables/Tables.h"

#include <algorithm>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kGetSource("Module_DB_Access - GetEventInfo");
constexpr QLatin1String kSetSource("Module_DB_Access - SetEventInfo");

// A table of settings and the arrays it fills.
struct DetectionTable
{
    QLatin1String name;
    PerChannel<qint16> IntelligentSettings::*enable;
    PerChannel<qint32> IntelligentSettings::*sensitivity;
};
constexpr std::array kTables{
    DetectionTable{QLatin1String("MotionSettings"), &IntelligentSettings::bMotionEnable,
                   &IntelligentSettings::iMotionSensitivity},
    DetectionTable{QLatin1String("MaliciousAttackSettings"), &IntelligentSettings::bThreatEnable,
                   &IntelligentSettings::iThreatSensitivity},
    DetectionTable{QLatin1String("ObjectLossSettings"), &IntelligentSettings::bObjectLossEnable,
                   &IntelligentSettings::iObjectLossSensitivity},
    DetectionTable{QLatin1String("TripwireSettings"), &IntelligentSettings::bTripwireEnable,
                   &IntelligentSettings::iTripwireSensitivity}};

// Calls `work(slot, channel, analysis id)` for every channel that takes part in analysis.
template <class Work>
void ForEachAnalysed(const RecorderSet& recorders, Work&& work)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& recorder = At(recorders.SVRList, slot);
        for (int channel = 0; channel < kMaxChannel && !recorder.sSVR_IP.isEmpty(); ++channel) {
            const qint32 id = At(recorder.lSub_CH_IntelligentID, channel);
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
    const IntelligentSettings defaults;
    for (const DetectionTable& table : kTables) {
        const QString statement = u"Select * From "_s + table.name + u" ORDER BY Channel ASC"_s;
        const qint16 read = ReadRows(databases, table.name, statement, kGetSource, [&](Recordset& rows) {
            TableAccess<ChannelSettingRow> access(rows, ChannelSettingColumns, kGetSource);
            for (; !rows.eof(); rows.moveNext()) {
                ChannelSettingRow row;
                row.Sensitivity = (defaults.*table.sensitivity)[0]; // stays where the field cannot be read
                access.read(row);
                const auto found = channels.find(row.Channel);
                if (found == channels.end())
                    continue;
                const auto [slot, channel] = found->second;
                At(At(set.stored, slot).*table.enable, channel) = row.Enable;
                At(At(set.stored, slot).*table.sensitivity, channel) = row.Sensitivity;
            }
        });
        if (read == 0)
            return 0;
    }
    return 1;
}

qint16 SetEventInfo(Databases& databases, const ChannelEventSet& set, const RecorderSet& recorders)
{
    for (const DetectionTable& table : kTables) {
        const qint16 written = ReplaceRows(
            databases, table.name, kSetSource,
            [&] { OpenStatement(databases, u"Delete * From "_s + table.name + u' ', LockType::Optimistic); },
            [&](Recordset& rows) {
                TableAccess<ChannelSettingRow> access(rows, ChannelSettingColumns, kSetSource);
                ForEachAnalysed(recorders, [&](int slot, int channel, qint32 id) {
                    Trapped(kSetSource, [&] {
                        const IntelligentSettings& settings = At(set.stored, slot);
                        rows.addNew();
                        access.write(
                            {id, At(settings.*table.enable, channel), At(settings.*table.sensitivity, channel)});
                        rows.update();
                    });
                });
            });
        if (written == 0)
            return 0;
    }
    return 1;
}

void ResetDetection(ChannelEventSet& set, int slot, const SVRRecord& recorder)
{
    IntelligentSettings& settings = At(set.edit, slot);
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel) {
        settings.reset(channel);
        if (recorder.lSub_CH_IntelligentID[channel] > 0)
            settings.bChanged[channel] = true;
    }
}

void NameChannelEvents(ChannelEventSet& set, int slot, const SVRRecord& recorder)
{
    PerChannel<ChannelEventRecord>& events = At(set.events, slot);
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel) {
        events[channel] = ChannelEventRecord();
        if (!recorder.sSub_CH_IP[channel].isEmpty())
            events[channel].sName = recorder.sSub_CH_Name[channel];
    }
}

RecordFamily EventSettingsFamily(Databases& databases, ChannelEventSet& set, const RecorderSet& recorders)
{
    return {FamilyOrder::EventSettings, 2,
            [&set] {
                return std::any_of(set.edit.begin(), set.edit.end(), [](const IntelligentSettings& settings) {
                    return std::find(settings.bChanged.begin(), settings.bChanged.end(), true) !=
                           settings.bChanged.end();
                });
            },
            [&databases, &set, &recorders] {
                for (IntelligentSettings& settings : set.edit)
                    settings.bChanged.fill(false);
                set.stored = set.edit;
                SetEventInfo(databases, set, recorders);
            },
            [&set] { set.edit = set.stored; }};
}
