#include "recorders/camera/CameraSearchModel.h"

#include "app/language/Languages.h"
#include "recorders/camera/ChannelListModel.h"
#include "support/Conversions.h"

void CameraSearchModel::setCameras(std::vector<FoundCamera> cameras)
{
    beginResetModel();
    m_cameras = std::move(cameras);
    endResetModel();
}

const FoundCamera& CameraSearchModel::camera(int row) const
{
    return At(m_cameras, row);
}

int CameraSearchModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_cameras.size());
}

int CameraSearchModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CameraSearchModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return {};
    const FoundCamera& found = camera(index.row());
    if (role == Qt::TextAlignmentRole && index.column() == Port)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (role != Qt::DisplayRole && role != kSortRole)
        return {};
    switch (index.column()) {
    case Address:
        return role == kSortRole ? AddressSortKey(found.IP) : found.IP;
    case Brand:
        return found.Manufacturer;
    case Model:
        return found.Model;
    case Port:
        return found.HTTPPort;
    default:
        return {};
    }
}

QVariant CameraSearchModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<int, ColumnCount> heads{379, 381, 382, 551};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole && section == Port)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    return role == Qt::DisplayRole ? QVariant(GetLangString(At(heads, section))) : QVariant();
}
