#include "recorders/detect/DetectStatusModel.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"

#include <algorithm>

namespace {
constexpr int kWaiting = 872;
} // namespace

DetectStatusModel::DetectStatusModel(QObject* parent)
    : TableModel(parent)
{
    using Kind = TableColumn::Kind;
    setColumns({
        {.head = Message::kDeviceName, .width = 170, .text = Of(m_items, &NVRDetectItem::sName)},
        {.head = Message::kAddress, .width = 140, .kind = Kind::Figures, .text = Of(m_items, &NVRDetectItem::sIP)},
        {.head = Message::kPort, .width = 70, .kind = Kind::Number, .text = Of(m_items, &NVRDetectItem::iPort)},
        {.head = Message::kModel, .width = 120, .text = Of(m_items, &NVRDetectItem::sModel)},
        {.head = 280,
         .width = 70,
         .kind = Kind::Number,
         .text =
             [this](int row) {
                 const int channels = At(m_rows, row).channels;
                 return channels < 0 ? QVariant() : QVariant(channels);
             }},
        {.head = Message::kStatus,
         .kind = Kind::State,
         .text = [this](int row) { return stateText(row); },
         .status = [this](int row) { return stateOf(row); },
         .progress = [this](int row) { return stateOf(row) == ::Status::Busy ? At(m_rows, row).status.percent : -1; }},
    });
    m_tell.setSingleShot(true);
    m_tell.setInterval(30);
    connect(&m_tell, &QTimer::timeout, this, [this] { rowsChanged(m_firstChanged, m_lastChanged); });
}

void DetectStatusModel::setItems(std::vector<NVRDetectItem> items)
{
    m_tell.stop();
    m_items = std::move(items);
    m_rows.assign(m_items.size(), {});
    setRecordCount(static_cast<int>(m_items.size()));
}

void DetectStatusModel::setStatus(int row, const DetectStatus& status)
{
    if (!hasIndex(row, Status))
        return;
    At(m_rows, row).started = true;
    At(m_rows, row).status = status;
    changed(row);
}

void DetectStatusModel::changed(int row)
{
    const bool first = !m_tell.isActive();
    m_firstChanged = first ? row : qMin(m_firstChanged, row);
    m_lastChanged = first ? row : qMax(m_lastChanged, row);
    if (first)
        m_tell.start();
}

void DetectStatusModel::setChannels(int row, int channels)
{
    if (!hasIndex(row, Channels))
        return;
    At(m_rows, row).channels = channels;
    changed(row);
}

const NVRDetectItem& DetectStatusModel::item(int row) const
{
    return At(m_items, row);
}

void DetectStatusModel::tryAgain(const QString& user, const QString& password)
{
    for (int row = 0; row < rowCount(); ++row) {
        if (At(m_rows, row).started && At(m_rows, row).status.state == DetectStatus::State::Done)
            continue;
        At(m_rows, row) = {};
        At(m_items, row).sUser = user;
        At(m_items, row).sPassword = password;
        changed(row);
    }
}

bool DetectStatusModel::waits(int row) const
{
    return !At(m_rows, row).started;
}

int DetectStatusModel::rowsIn(DetectStatus::State state) const
{
    return static_cast<int>(std::count_if(
        m_rows.begin(), m_rows.end(), [state](const Row& row) { return row.started && row.status.state == state; }));
}

int DetectStatusModel::finishedRows() const
{
    return doneRows() + failedRows();
}

int DetectStatusModel::doneRows() const
{
    return rowsIn(DetectStatus::State::Done);
}

int DetectStatusModel::failedRows() const
{
    return rowsIn(DetectStatus::State::Failed);
}

QString DetectStatusModel::stateText(int row) const
{
    const Row& state = At(m_rows, row);
    return state.started ? QString(GetLangString(state.status.message) + state.status.suffix) : GetLangString(kWaiting);
}

::Status DetectStatusModel::stateOf(int row) const
{
    const Row& state = At(m_rows, row);
    if (!state.started)
        return ::Status::None;
    if (state.status.state == DetectStatus::State::Running)
        return ::Status::Busy;
    return state.status.state == DetectStatus::State::Done ? ::Status::Ok : ::Status::Bad;
}
