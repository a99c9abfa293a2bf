#include "recorders/data/SVRStore.h"

#include "store/Family.h"
#include "store/tables/SVRTable.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSaveSource("Module_DB_Access - SaveMySVR");
constexpr QLatin1String kGetSource("Module_DB_Access - GetSVREx");

// The three column groups of the table found in one recordset.
struct SVRAccess
{
    explicit SVRAccess(Recordset& rows, QLatin1String source)
        : base(rows, SVRColumns, source)
        , pro(rows, SVRProColumns, source)
        , presets(rows, SVRPresetColumns, source)
    {
    }
    TableAccess<SVRRow> base;
    TableAccess<SVRRow> pro;
    TableAccess<SVRRow> presets;
};

void ReadRow(Recordset& rows, SVRAccess& access, int numberField, int channelField, RecorderSet& set)
{
    const int slot = Int16Field(rows.value(numberField)) - 1;
    SVRRecord& record = At(set.SVRList, slot);
    SVRProRecord& pro = At(set.SVRProList, slot);
    record.iSVR_Num = static_cast<qint16>(slot + 1);
    record.iSVRId = record.iSVR_Num;

    SVRRow row{&record, &pro, Int16Field(rows.value(channelField)) - 1};
    std::vector<FishEyeMode>& modes = At(record.channels, row.channel).FishEyeModes;
    access.base.read(row);
    Trapped(kGetSource,
            [&] { FishEyeModeListPaser(modes, At(record.channels, row.channel).sSub_CH_MD_FishEyeModeList); });
    access.presets.read(row);
    if (IsProFamily(record.sSVR_DeviceType))
        access.pro.read(row);
}

// Replaces the rows of some slots. Recorders of the Pro families and others set different columns.
qint16 SaveSlots(Databases& databases, RecorderSet& set, const std::vector<int>& indices)
{
    QStringList numbers;
    for (const int slot : indices)
        numbers << QString::number(slot + 1);
    const QString deleteRows = u"Delete * From SVR Where iSVR_Num In (%1)"_s.arg(numbers.join(u','));
    return ReplaceRows(databases, u"SVR"_s, deleteRows, kSaveSource, [&](Recordset& rows) {
        std::optional<TableInsert<SVRRow>> plain;
        std::optional<TableInsert<SVRRow>> pro;
        for (const int slot : indices) {
            SVRRecord& record = At(set.SVRList, slot);
            const bool isPro = IsProFamily(record.sSVR_DeviceType);
            if (isPro && !pro)
                pro.emplace(rows, kSaveSource, SVRColumns, SVRProColumns, SVRPresetColumns);
            if (!isPro && !plain)
                plain.emplace(rows, kSaveSource, SVRColumns, SVRPresetColumns);
            for (int channel = 0; channel < record.iSVR_Maxchannel; ++channel) {
                if (!At(record.channels, channel).sSub_CH_IP.isEmpty())
                    SaveRow(kSaveSource, [&] {
                        (isPro ? pro : plain)->add({&record, &At(set.SVRProList, slot), channel});
                    });
            }
        }
    });
}

} // namespace

qint16 SaveMySVR(Databases& databases, RecorderSet& set, int slot)
{
    return SaveSlots(databases, set, {slot});
}

qint16 GetSVREx(Databases& databases, RecorderSet& set)
{
    const qint16 read = ReadRows(databases, u"SVR"_s, u"Select * From SVR"_s, kGetSource, [&](Recordset& rows) {
        SVRAccess access(rows, kGetSource);
        const int numberField = rows.fieldIndex(u"iSVR_Num"_s);
        const int channelField = rows.fieldIndex(u"iSub_Channel"_s);
        for (; !rows.eof(); rows.moveNext())
            ReadRow(rows, access, numberField, channelField, set);
        if (!access.base.complete() || !access.pro.complete() || !access.presets.complete())
            throw StoreError(u"SVR lacks a column"_s);
    });
    if (read == 0)
        return 0;

    Trapped(kGetSource, [&] {
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            for (int channel = 0; channel < At(set.SVRList, slot).iSVR_Maxchannel; ++channel) {
                if (At(At(set.SVRList, slot).channels, channel).sSub_CH_IP.isEmpty())
                    ClearChannel(At(set.SVRList, slot), At(set.SVRProList, slot), channel);
                if (At(At(set.SVRWorkList, slot).channels, channel).sSub_CH_IP.isEmpty())
                    ClearChannel(At(set.SVRWorkList, slot), At(set.SVRProWorkList, slot), channel);
            }
        }
        set.iSVR_MaxChannelAll = 0;
        for (const SVRRecord& record : set.SVRList) {
            if (!record.sSVR_IP.isEmpty())
                set.iSVR_MaxChannelAll = qMax(set.iSVR_MaxChannelAll, record.iSVR_Maxchannel);
        }
    });
    return 1;
}

namespace {

// The two copies of the recorders: only marked slots are taken over, which is what is written.
struct SlotGenerations
{
    struct Slot
    {
        int index;
        SVRRecord svr;
        SVRProRecord pro;
    };
    RecorderSet& set;

    bool isMarked() const { return std::ranges::any_of(set.SVRWorkList, &SVRRecord::bSVR_Changed); }
    std::vector<Slot> commit() const
    {
        std::vector<Slot> before;
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            const SVRRecord& work = At(set.SVRWorkList, slot);
            if (!work.bSVR_Changed)
                continue;
            SVRRecord& stored = At(set.SVRList, slot);
            before.push_back({slot, std::exchange(stored, work),
                              std::exchange(At(set.SVRProList, slot), At(set.SVRProWorkList, slot))});
            stored.bSVR_ConnChanged = stored.bSVR_Changed = false;
        }
        return before;
    }
    void putBack(std::vector<Slot>&& before) const
    {
        for (Slot& slot : before) {
            At(set.SVRList, slot.index) = std::move(slot.svr);
            At(set.SVRProList, slot.index) = std::move(slot.pro);
        }
    }
    void clearMarks() const
    {
        for (SVRRecord& work : set.SVRWorkList) {
            if (work.bSVR_Changed)
                work.bSVR_ConnChanged = work.bSVR_Changed = false;
        }
    }
    void revert() const
    {
        set.SVRWorkList = set.SVRList;
        set.SVRProWorkList = set.SVRProList;
    }
};

// The channels of the marked slots in one copy.
std::vector<FamilyRow<SVRRow>> ChannelRows(RecorderSet& set, std::array<SVRRecord, kMaxSVR>& list,
                                           std::array<SVRProRecord, kMaxSVR>& pro)
{
    std::vector<FamilyRow<SVRRow>> rows;
    ForEachChannel([&](int slot, int channel) {
        if (At(set.SVRWorkList, slot).bSVR_Changed)
            rows.push_back({ChannelKey(slot, channel), ChannelLabel(set, slot, channel),
                            SVRRow{&At(list, slot), &At(pro, slot), channel}, channel == 0});
    });
    return rows;
}

} // namespace

RecordFamily SVRFamily(Databases& databases, RecorderSet& set)
{
    return MakeFamily(
        databases, {FamilyOrder::SVR, 1, 361, {u"SVR"_s}, kSaveSource}, SlotGenerations{set},
        [&databases, &set]() -> qint16 {
            std::vector<int> indices;
            for (int slot = 0; slot < kMaxSVR; ++slot) {
                if (At(set.SVRWorkList, slot).bSVR_Changed)
                    indices.push_back(slot);
            }
            return SaveSlots(databases, set, indices);
        },
        [&set](auto& list) {
            const auto before = ChannelRows(set, set.SVRList, set.SVRProList);
            const auto after = ChannelRows(set, set.SVRWorkList, set.SVRProWorkList);
            Compare(list, before, after, SVRColumns);
            Compare(list, before, after, SVRProColumns);
            Compare(list, before, after, SVRPresetColumns);
        });
}
