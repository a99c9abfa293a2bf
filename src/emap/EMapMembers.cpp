#include "emap/EMapMembers.h"

#include "app/language/Languages.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kChannelWord = 55;
constexpr int kNameHead = 362;
constexpr int kGroupWord = 423;
constexpr int kTypeHead = 725;

} // namespace

EMapMembers::EMapMembers(const EMapSet& set, const RecorderSet& recorders, QObject* parent)
    : QAbstractTableModel(parent)
    , m_set(set)
    , m_recorders(recorders)
{
}

void EMapMembers::ListView_Emap_Set(const QString& key)
{
    beginResetModel();
    m_members.clear();
    const EMapNode node = NodeOf(m_set, key);
    const EMapPlaces places(m_set.edit);
    for (std::size_t i = 1; node.isMap() && i < m_set.edit.size(); ++i) {
        const EMapGroupRow& map = m_set.edit[i];
        if (map.iMap_Type != kMapRoot && places.parentOf(static_cast<int>(i)) == node.map)
            m_members.push_back(
                {map.iMap_Type == kMapRecorder ? u"NVR"_s : GetLangString(kGroupWord), map.sName, MapKey(map)});
    }
    ForEachChannel([&](int slot, int channel) {
        if (node.level >= kMapRecorder && node.isMap() && IsCamera(m_recorders, slot, channel) &&
            places.mapOf(slot, At(At(m_set.iconsEdit, slot).channels, channel)) == node.map)
            m_members.push_back({GetLangString(kChannelWord),
                                 At(At(m_recorders.SVRWorkList, slot).channels, channel).sSub_CH_Name,
                                 CameraKey(slot, channel)});
    });
    endResetModel();
}

int EMapMembers::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_members.size());
}

int EMapMembers::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EMapMembers::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Member& member = At(m_members, index.row());
    if (role == kKeyRole)
        return member.key;
    if (role != Qt::DisplayRole)
        return {};
    return index.column() == Type ? member.type : member.name;
}

QVariant EMapMembers::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return GetLangString(section == Type ? kTypeHead : kNameHead).trimmed();
}
