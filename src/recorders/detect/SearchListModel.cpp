#include "recorders/detect/SearchListModel.h"

#include "app/shell/Messages.h"
#include "device/protocol/ReplyText.h"

#include <algorithm>

SearchListModel::SearchListModel(const RecorderSet& recorders, QObject* parent)
    : TableModel(parent)
    , m_recorders(recorders)
{
    const auto device = [this](auto member) {
        return [this, member](int row) { return QVariant(At(m_rows, row).device.*member); };
    };
    setColumns({
        {.head = Message::kDeviceName,
         .kind = TableColumn::Kind::Check,
         .text = device(&FoundDevice::Name),
         .checked = [this](int row) { return known(row) || At(m_rows, row).checked; },
         .check = [this](int row, bool on) { return check(At(m_rows, row), on); }},
        {.head = Message::kAddress,
         .width = 150,
         .kind = TableColumn::Kind::Figures,
         .text = device(&FoundDevice::Address)},
        {.head = Message::kPort, .width = 80, .kind = TableColumn::Kind::Number, .text = device(&FoundDevice::Port)},
        {.head = Message::kBrand, .width = 130, .text = device(&FoundDevice::Brand)},
        {.head = Message::kModel, .width = 180, .text = device(&FoundDevice::Model)},
    });
}

bool SearchListModel::check(Row& row, bool on)
{
    if (on && !row.checked && !room())
        return false;
    row.checked = on;
    return true;
}

void SearchListModel::clear()
{
    setRecords({});
    m_rows.clear();
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
    m_rows.push_back({device, inStation(device), false});
    for (auto text : {&FoundDevice::Address, &FoundDevice::Brand, &FoundDevice::Model})
        (m_rows.back().device.*text).truncate(kMaxDeviceText);
    QString& name = m_rows.back().device.Name;
    name = name.simplified().left(kRecorderNameLength).trimmed();
    if (name.isEmpty())
        name = device.Address.left(kRecorderNameLength);
    addRecord(static_cast<int>(m_rows.size()) - 1);
}

void SearchListModel::refresh()
{
    for (Row& row : m_rows) {
        row.known = inStation(row.device);
        row.checked = row.checked && !row.known;
    }
    allChanged();
}

int SearchListModel::checkedRows() const
{
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const Row& row) { return !row.known && row.checked; }));
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
