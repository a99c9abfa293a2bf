#include "recorders/data/SVRStore.h"

#include "store/TableAccess.h"
#include "store/tables/SVRTable.h"

#include <algorithm>

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

} // namespace

qint16 SaveMySVR(Databases& databases, RecorderSet& set, int slot)
{
    const bool deleted = Trapped(kSaveSource, [&] {
        At(set.SVRList, slot);
        OpenStatement(databases, u"Delete * From SVR Where iSVR_Num="_s + QString::number(slot + 1),
                      LockType::Optimistic);
    });
    // With the old rows still there, new ones would stand beside them.
    if (!deleted || OpenRecset(databases, u"SVR"_s) == 0)
        return 0;
    const bool ok = Trapped(kSaveSource, [&] {
        Recordset& rows = *databases.DBRec;
        SVRRecord& record = At(set.SVRList, slot);
        SVRAccess access(rows, kSaveSource);
        for (int channel = 0; channel < record.iSVR_Maxchannel; ++channel) {
            if (At(record.channels, channel).sSub_CH_IP.isEmpty())
                continue;
            Trapped(kSaveSource, [&] {
                const SVRRow row{&record, &At(set.SVRProList, slot), channel};
                rows.addNew();
                access.base.write(row);
                if (IsProFamily(record.sSVR_DeviceType))
                    access.pro.write(row);
                access.presets.write(row);
                rows.update();
            });
        }
    });
    Trapped(kSaveSource, [&] { databases.DBRec->close(); });
    return ok ? 1 : 0;
}

void GetSVREx(Databases& databases, RecorderSet& set)
{
    if (OpenRecset(databases, u"SVR"_s) == 0)
        return;
    const bool read = Trapped(kGetSource, [&] {
        Recordset& rows = *databases.DBRec;
        const qint64 count = rows.recordCount();
        if (count == 0)
            return;
        SVRAccess access(rows, kGetSource);
        const int numberField = rows.fieldIndex(u"iSVR_Num"_s);
        const int channelField = rows.fieldIndex(u"iSub_Channel"_s);
        for (qint64 i = 0; i < count; ++i) {
            rows.moveFirst();
            rows.move(i);
            ReadRow(rows, access, numberField, channelField, set);
        }
    });
    Trapped(kGetSource, [&] { databases.DBRec->close(); });
    if (!read)
        return;

    Trapped(kGetSource, [&] {
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            for (int channel = 0; channel < At(set.SVRList, slot).iSVR_Maxchannel; ++channel) {
                SVRRecord& work = At(set.SVRWorkList, slot);
                if (At(work.channels, channel).sSub_CH_IP.isEmpty())
                    ClearChannel(work, At(set.SVRProWorkList, slot), channel);
            }
        }
        set.iSVR_MaxChannelAll = 0;
        for (const SVRRecord& record : set.SVRList) {
            if (!record.sSVR_IP.isEmpty())
                set.iSVR_MaxChannelAll = qMax(set.iSVR_MaxChannelAll, record.iSVR_Maxchannel);
        }
    });
}

RecordFamily SVRFamily(Databases& databases, RecorderSet& set)
{
    return {FamilyOrder::SVR, 1,
            [&set] {
                return std::any_of(set.SVRWorkList.begin(), set.SVRWorkList.end(),
                                   [](const SVRRecord& record) { return record.bSVR_Changed; });
            },
            [&databases, &set] {
                for (int slot = 0; slot < kMaxSVR; ++slot) {
                    SVRRecord& work = At(set.SVRWorkList, slot);
                    if (!work.bSVR_Changed)
                        continue;
                    work.bSVR_ConnChanged = false;
                    work.bSVR_Changed = false;
                    At(set.SVRList, slot) = work;
                    At(set.SVRProList, slot) = At(set.SVRProWorkList, slot);
                    SaveMySVR(databases, set, slot);
                }
            },
            [&set] {
                set.SVRWorkList = set.SVRList;
                set.SVRProWorkList = set.SVRProList;
            }};
}
