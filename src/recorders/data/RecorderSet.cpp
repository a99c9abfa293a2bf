#include "recorders/data/RecorderSet.h"

#include "support/Conversions.h"

#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

int CameraCount(const SVRRecord& record)
{
    return static_cast<int>(std::ranges::count_if(
        record.channels, [](const SVRChannel& channel) { return !channel.sSub_CH_IP.isEmpty(); }));
}

int OccupiedSlots(const std::array<SVRRecord, kMaxSVR>& list)
{
    return static_cast<int>(
        std::count_if(list.begin(), list.end(), [](const SVRRecord& record) { return !record.sSVR_IP.isEmpty(); }));
}

int CameraTotal(const std::array<SVRRecord, kMaxSVR>& list)
{
    int total = 0;
    for (const SVRRecord& record : list) {
        if (!record.sSVR_IP.isEmpty())
            total += CameraCount(record);
    }
    return total;
}

int FirstFreeSlot(const std::array<SVRRecord, kMaxSVR>& list)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (At(list, slot).sSVR_IP.isEmpty())
            return slot;
    }
    return -1;
}

QString ChannelKey(int slot, int channel)
{
    return QString::number(slot + 1) + u'/' + QString::number(channel + 1);
}

QString ChannelLabel(const RecorderSet& set, int slot, int channel)
{
    const SVRRecord& recorder = At(set.SVRWorkList, slot);
    const QString& camera = At(recorder.channels, channel).sSub_CH_Name;
    if (recorder.sSVR_Name.isEmpty())
        return ChannelKey(slot, channel);
    return recorder.sSVR_Name + u": "_s + (camera.isEmpty() ? QString::number(channel + 1) : camera);
}

void DropNewRecorders(RecorderSet& recorders)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (!At(recorders.SVRList, slot).sSVR_IP.isEmpty())
            continue;
        At(recorders.SVRWorkList, slot) = SVRRecord();
        At(recorders.SVRProWorkList, slot) = SVRProRecord();
    }
}

void ClearChannel(SVRRecord& record, SVRProRecord& pro, int channel)
{
    At(record.channels, channel) = SVRChannel();
    At(record.channels, channel).iSub_Channel = static_cast<qint16>(channel + 1);
    At(pro.channels, channel) = SVRProChannel();
}

QString GetsDeviceType(const QString& deviceType, qint16 maxHdSupport)
{
    if (deviceType.isEmpty() || deviceType == kFamilySVR || deviceType == "TXR500"_L1)
        return kFamilySVR;
    if (deviceType == kFamilyOmluPro && maxHdSupport != 5)
        return kFamilyOmluPro;
    return kFamilyTXR632;
}

void FishEyeModeListPaser(std::vector<FishEyeMode>& modes, const QString& text)
{
    if (text.trimmed().isEmpty())
        return;
    const QStringList entries = text.split(u';');
    modes.assign(static_cast<std::size_t>(entries.size()), {});
    for (qsizetype i = 0; i < entries.size(); ++i) {
        FishEyeMode& mode = At(modes, i);
        const QStringList pieces = entries[i].split(u':');
        mode.sModeName = pieces[0];
        const QStringList values = At(pieces, 1).split(u',');
        mode.iModeValue1 = ToInt16(values[0]);
        mode.iModeValue2 = ToInt16(At(values, 1));
        const int mask = ToInt16(At(values, 2));
        for (std::size_t bit = 0; bit < mode.bModeFlag.size(); ++bit)
            mode.bModeFlag[bit] = (mask & (1 << bit)) != 0;
    }
}
