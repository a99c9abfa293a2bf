#include "recorders/detect/DetectStatusModel.h"

#include "app/language/Languages.h"
#include "look/tables/StatusRoles.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

DetectStatusModel::DetectStatusModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    m_tell.setSingleShot(true);
    m_tell.setInterval(30);
    connect(&m_tell, &QTimer::timeout, this,
            [this] { emit dataChanged(index(m_firstChanged, Channels), index(m_lastChanged, Status)); });
}

void DetectStatusModel::setItems(std::vector<NVRDetectItem> items)
{
    beginResetModel();
    m_tell.stop();
    m_items = std::move(items);
    m_rows.assign(m_items.size(), {});
    endResetModel();
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

int DetectStatusModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int DetectStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DetectStatusModel::text(int row, int column) const
{
    const NVRDetectItem& item = At(m_items, row);
    const Row& state = At(m_rows, row);
    switch (column) {
    case DeviceName:
        return item.sName;
    case Address:
        return item.sIP;
    case Port:
        return item.iPort;
    case Model:
        return item.sModel;
    case Channels:
        return state.channels < 0 ? QVariant() : QVariant(state.channels);
    case Status:
        return state.started ? QString(GetLangString(state.status.message) + state.status.suffix) : GetLangString(872);
    default:
        return {};
    }
}

QVariant DetectStatusModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return {};
    const Row& row = At(m_rows, index.row());
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && (index.column() == Port || index.column() == Channels))
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (index.column() != Status || !row.started)
        return {};
    if (role == Qt::ToolTipRole) // the words, should the column be too narrow for them
        return text(index.row(), Status);
    const DetectStatus::State state = row.status.state;
    if (role == kStatusRole) {
        if (state == DetectStatus::State::Running)
            return static_cast<int>(::Status::Busy);
        return static_cast<int>(state == DetectStatus::State::Done ? ::Status::Ok : ::Status::Bad);
    }
    if (role == kProgressRole && state == DetectStatus::State::Running)
        return row.status.percent;
    return {};
}

QVariant DetectStatusModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<int, ColumnCount> heads{278, 363, 364, 382, 280, 403};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole && (section == Port || section == Channels))
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    return role == Qt::DisplayRole ? QVariant(GetLangString(At(heads, section))) : QVariant();
}
