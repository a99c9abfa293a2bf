#include "emap/EMapNodes.h"

#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kLetters{u'\0', u'G', u'S', u'T'};

} // namespace

QString MapKey(const EMapGroupRow& map)
{
    if (map.iMap_Type < kMapGroup || map.iMap_Type > kMapSub)
        return kMainMapName;
    return At(kLetters, map.iMap_Type) + QString::number(map.iMap_ID);
}

QString CameraKey(int slot, int channel)
{
    return u"C_%1_%2"_s.arg(slot + 1).arg(channel + 1);
}

int SlotOf(const EMapGroupRow& map)
{
    int number = 0;
    if (map.iMap_Type == kMapRecorder)
        number = map.iMap_ID;
    else if (map.iMap_Type == kMapSub && map.sParent.startsWith(u'S'))
        number = QStringView(map.sParent).mid(1).toInt();
    return number >= 1 && number <= kMaxSVR ? number - 1 : -1;
}

EMapNode NodeOf(const EMapSet& set, const QString& key)
{
    if (key == kMainMapName)
        return {kMapRoot, 0};
    if (key.startsWith(u"C_")) {
        const QStringList parts = key.split(u'_');
        const int slot = parts.value(1).toInt() - 1;
        const int channel = parts.value(2).toInt() - 1;
        if (parts.size() != 3 || slot < 0 || slot >= kMaxSVR || channel < 0 || channel >= kMaxChannel)
            return {};
        return {kCameraLevel, -1, slot, channel};
    }
    for (std::size_t i = 1; i < set.edit.size(); ++i) {
        const EMapGroupRow& map = set.edit[i];
        if (map.iMap_Type != kMapRoot && MapKey(map) == key)
            return {map.iMap_Type, static_cast<int>(i), SlotOf(map)};
    }
    return {};
}

bool IsCamera(const RecorderSet& recorders, int slot, int channel)
{
    const SVRRecord& recorder = At(recorders.SVRWorkList, slot);
    return !recorder.sSVR_IP.isEmpty() && channel < recorder.iSVR_Maxchannel &&
           !At(recorder.channels, channel).sSub_CH_Name.isEmpty();
}

EMapPlaces::EMapPlaces(const std::vector<EMapGroupRow>& maps)
    : m_maps(maps)
{
    m_recorderMaps.fill(-1);
    for (int i = static_cast<int>(maps.size()) - 1; i > 0; --i) { // the first of a name counts
        const EMapGroupRow& map = At(maps, i);
        if (map.iMap_Type == kMapGroup)
            m_groups.insert(map.sName, i);
        else if (map.iMap_Type == kMapSub)
            m_subs.insert(map.sName, i);
        else if (map.iMap_Type == kMapRecorder) {
            m_recorderKeys.insert(MapKey(map), i);
            if (const int slot = SlotOf(map); slot >= 0)
                At(m_recorderMaps, slot) = i;
        }
    }
}

int EMapPlaces::recorderMap(int slot) const
{
    return At(m_recorderMaps, slot);
}

int EMapPlaces::mapOf(int slot, const EMapIcon& icon) const
{
    if (icon.sParent.isEmpty())
        return -1;
    const int own = recorderMap(slot);
    return own > 0 && At(m_maps, own).sName == icon.sParent ? own : m_subs.value(icon.sParent, -1);
}

int EMapPlaces::parentOf(int map) const
{
    const EMapGroupRow& row = At(m_maps, map);
    if (row.iMap_Type == kMapRecorder)
        return m_groups.value(row.sParent, 0);
    return row.iMap_Type == kMapSub ? m_recorderKeys.value(row.sParent, 0) : 0;
}
