#include "recorders/NVRListModel.h"

#include "app/language/Languages.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

QString ShownModel(const SVRRecord& record)
{
    const bool hidden = record.sSVR_Brand == "KEStrane"_L1 && record.sSVR_DisplayDeviceType.startsWith(u'S');
    return hidden ? u"-"_s : record.sSVR_DisplayDeviceType;
}

NVRListModel::NVRListModel(const RecorderSet& recorders, QObject* parent)
    : QAbstractTableModel(parent)
    , m_recorders(recorders)
{
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
    const int slot = At(m_slots, index.row());
    const SVRRecord& record = At(m_recorders.SVRList, slot);
    if (role == kSlotRole)
        return slot;
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole) {
        if (index.column() == Edit)
            return QString(GetLangString(387) + u' ' + record.sSVR_Name);
        if (index.column() == Delete)
            return QString(GetLangString(386) + u' ' + record.sSVR_Name);
        return {};
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
    default:
        return {};
    }
}
