#include "recorders/detect/SearchListModel.h"

#include "app/language/Languages.h"
#include "device/protocol/ReplyText.h"
#include "support/Conversions.h"

#include <algorithm>

SearchListModel::SearchListModel(const RecorderSet& recorders, QObject* parent)
    : QAbstractTableModel(parent)
    , m_recorders(recorders)
{
}

void SearchListModel::clear()
{
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

bool SearchListModel::inStation(const FoundDevice& device) const
{
    return std::any_of(m_recorders.SVRWorkList.begin(), m_recorders.SVRWorkList.end(), [&](const SVRRecord& record) {
        return !record.sSVR_IP.isEmpty() && record.sSVR_IP == device.Address && record.iSVR_HttpPort == device.Port;
    });
}

void SearchListModel::add(const FoundDevice& device)
{
    if (device.IsSvd)
        return;
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_rows.push_back({device, inStation(device), false});
    for (auto text : {&FoundDevice::Address, &FoundDevice::Brand, &FoundDevice::Model})
        (m_rows.back().device.*text).truncate(kMaxDeviceText);
    QString& name = m_rows.back().device.Name;
    name = name.simplified().left(kRecorderNameLength).trimmed();
    if (name.isEmpty())
        name = device.Address.left(kRecorderNameLength);
    endInsertRows();
}

void SearchListModel::refresh()
{
    for (Row& row : m_rows) {
        row.known = inStation(row.device);
        row.checked = row.checked && !row.known;
    }
    if (!m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int SearchListModel::checkedRows() const
{
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const Row& row) { return !row.known && row.checked; }));
}

bool SearchListModel::known(int row) const
{
    return At(m_rows, row).known;
}

std::vector<NVRDetectItem> SearchListModel::chosen(const QString& user, const QString& password) const
{
    std::vector<NVRDetectItem> items;
    for (const Row& row : m_rows) {
        if (row.known || !row.checked)
            continue;
        NVRDetectItem item;
        item.sName = row.device.Name;
        item.sIP = row.device.Address;
        item.iPort = row.device.Port;
        item.sModel = row.device.Model;
        item.sUser = user;
        item.sPassword = password;
        items.push_back(item);
    }
    return items;
}

bool SearchListModel::room() const
{
    return OccupiedSlots(m_recorders.SVRWorkList) + checkedRows() < kMaxSVR;
}

int SearchListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int SearchListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SearchListModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return {};
    const Row& row = At(m_rows, index.row());
    if (role == Qt::CheckStateRole && index.column() == DeviceName)
        return row.known || row.checked ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::TextAlignmentRole && index.column() == Port)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case DeviceName:
        return row.device.Name;
    case Address:
        return row.device.Address;
    case Port:
        return row.device.Port;
    case Brand:
        return row.device.Brand;
    case Model:
        return row.device.Model;
    default:
        return {};
    }
}

bool SearchListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !hasIndex(index.row(), index.column()) || index.column() != DeviceName)
        return false;
    Row& row = At(m_rows, index.row());
    const bool checked = value.toInt() == Qt::Checked;
    if (row.known || (checked && !row.checked && !room()))
        return false;
    row.checked = checked;
    emit dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags SearchListModel::flags(const QModelIndex& index) const
{
    if (!hasIndex(index.row(), index.column()) || At(m_rows, index.row()).known)
        return Qt::NoItemFlags;
    const Qt::ItemFlags usual = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return index.column() == DeviceName ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant SearchListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<int, ColumnCount> heads{278, 363, 364, 381, 382};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole && section == Port)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    return role == Qt::DisplayRole ? QVariant(GetLangString(At(heads, section))) : QVariant();
}
