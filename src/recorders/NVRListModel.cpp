#include "recorders/NVRListModel.h"

#include "app/language/Languages.h"
#include "look/tables/StatusRoles.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Status StatusOf(ConnectionState::Kind kind)
{
    switch (kind) {
    case ConnectionState::Kind::None:
        break;
    case ConnectionState::Kind::Checking:
        return Status::Busy;
    case ConnectionState::Kind::Connected:
        return Status::Ok;
    case ConnectionState::Kind::Refused:
        return Status::Warning;
    case ConnectionState::Kind::Lost:
        return Status::Bad;
    }
    return Status::None;
}

} // namespace

QString ShownModel(const SVRRecord& record)
{
    const bool hidden = record.sSVR_Brand == "KEStrane"_L1 && record.sSVR_DisplayDeviceType.startsWith(u'S');
    return hidden ? u"-"_s : record.sSVR_DisplayDeviceType;
}

NVRListModel::NVRListModel(const RecorderSet& recorders, const ConnectionWatch& watch, QObject* parent)
    : QAbstractTableModel(parent)
    , m_recorders(recorders)
    , m_watch(watch)
{
    connect(&watch, &ConnectionWatch::changed, this, &NVRListModel::connectionChanged);
}

void NVRListModel::connectionChanged(int slot)
{
    const auto found = std::find(m_slots.begin(), m_slots.end(), slot);
    if (found == m_slots.end())
        return;
    const QModelIndex cell = index(static_cast<int>(found - m_slots.begin()), Connection);
    emit dataChanged(cell, cell);
}

void NVRListModel::refill()
{
    beginResetModel();
    m_slots.clear();
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (!At(m_recorders.SVRList, slot).sSVR_IP.isEmpty())
            m_slots.push_back(slot);
    }
    endResetModel();
}

void NVRListModel::retranslate()
{
    if (!m_slots.empty())
        emit dataChanged(index(0, Connection), index(rowCount() - 1, Connection));
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int NVRListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_slots.size());
}

int NVRListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant NVRListModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return {};
    const int slot = At(m_slots, index.row());
    const SVRRecord& record = At(m_recorders.SVRList, slot);
    if (role == kSlotRole)
        return slot;
    if (role == kStatusRole && index.column() == Connection)
        return static_cast<int>(StatusOf(m_watch.state(slot).kind));
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole) {
        if (index.column() == Edit)
            return QString(GetLangString(387) + u' ' + record.sSVR_Name);
        if (index.column() == Delete)
            return QString(GetLangString(386) + u' ' + record.sSVR_Name);
        if (index.column() != Connection || role == Qt::AccessibleTextRole)
            return {};
        role = Qt::DisplayRole; // the words, should the column be too narrow for them
    }
    if (role == Qt::TextAlignmentRole && (index.column() == ValidChannels || index.column() == Number))
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (role != Qt::DisplayRole && role != kSortRole)
        return {};
    switch (index.column()) {
    case Number:
        return slot + 1;
    case Name:
        return record.sSVR_Name;
    case Address:
        return QString(record.sSVR_IP + u':' + QString::number(record.iSVR_HttpPort));
    case Brand:
        return record.sSVR_Brand;
    case Model:
        return ShownModel(record);
    case ValidChannels:
        return CameraCount(record);
    case Connection: {
        const int message = m_watch.state(slot).message;
        return message == 0 ? QString() : GetLangString(message);
    }
    default:
        return {};
    }
}

QVariant NVRListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole && (section == ValidChannels || section == Number))
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Number:
        return u"NVR"_s;
    case Name:
        return GetLangString(362);
    case Address:
        return QString(GetLangString(363) + u':' + GetLangString(364));
    case Brand:
        return GetLangString(381);
    case Model:
        return GetLangString(382);
    case ValidChannels:
        return GetLangString(271);
    case Connection:
        return GetLangString(956);
    default:
        return {};
    }
}
