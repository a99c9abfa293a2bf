#include "recorders/camera/ChannelListModel.h"

#include "app/language/Languages.h"
#include "look/tables/StatusRoles.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

QString AddressSortKey(const QString& address)
{
    const QStringList parts = address.split(u'.');
    QString key;
    for (const QString& part : parts) {
        bool number = false;
        part.toUInt(&number);
        if (parts.size() != 4 || !number || part.size() > 3)
            return address;
        key += part.rightJustified(3, u'0');
    }
    return key;
}

ChannelListModel::ChannelListModel(const RecorderSet& recorders, QObject* parent)
    : QAbstractTableModel(parent)
    , m_recorders(recorders)
{
}

void ChannelListModel::refill()
{
    beginResetModel();
    endResetModel();
}

void ChannelListModel::refreshChannel(int channel)
{
    if (channel < 0 || channel >= rowCount())
        return;
    if (m_events && !occupied(channel))
        At(*m_events, channel) = false;
    emit dataChanged(index(channel, 0), index(channel, ColumnCount - 1));
}

void ChannelListModel::setDetected(bool detected)
{
    m_detected = detected;
    if (rowCount() > 0)
        emit dataChanged(index(0, State), index(rowCount() - 1, State));
}

void ChannelListModel::setCameraEvents(bool supported)
{
    m_events.reset();
    if (supported) {
        m_events.emplace();
        std::ranges::transform(m_recorders.SVREdit.channels, m_events->begin(), &SVRChannel::bSub_CH_Cam_MD_Enabled);
    }
    if (rowCount() > 0)
        emit dataChanged(index(0, CameraEvent), index(rowCount() - 1, CameraEvent));
}

std::vector<std::pair<int, bool>> ChannelListModel::switched() const
{
    std::vector<std::pair<int, bool>> changes;
    for (int channel = 0; m_events && channel < rowCount(); ++channel) {
        const bool on = At(*m_events, channel);
        if (occupied(channel) && on != At(m_recorders.SVREdit.channels, channel).bSub_CH_Cam_MD_Enabled)
            changes.emplace_back(channel, on);
    }
    return changes;
}

int ChannelListModel::cameraEventsOn() const
{
    int total = 0;
    for (std::size_t channel = 0; channel < kMaxChannel; ++channel)
        total += (*m_events)[channel] && !m_recorders.SVREdit.channels[channel].sSub_CH_IP.isEmpty() ? 1 : 0;
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& other = At(m_recorders.SVRWorkList, slot);
        if (slot + 1 != m_recorders.SVREdit.iSVR_Num && !other.sSVR_IP.isEmpty())
            total += static_cast<int>(std::ranges::count_if(other.channels, [](const SVRChannel& channel) {
                return channel.bSub_CH_Cam_MD_Enabled && !channel.sSub_CH_IP.isEmpty();
            }));
    }
    return total;
}

int ChannelListModel::cameras() const
{
    int count = 0;
    for (int channel = 0; channel < rowCount(); ++channel)
        count += occupied(channel) ? 1 : 0;
    return count;
}

bool ChannelListModel::occupied(int channel) const
{
    return !At(m_recorders.SVREdit.channels, channel).sSub_CH_IP.isEmpty();
}

int ChannelListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : qBound(0, static_cast<int>(m_recorders.SVREdit.iSVR_Maxchannel), kMaxChannel);
}

int ChannelListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ChannelListModel::iconName(int channel, int column) const
{
    switch (column) {
    case Name:
        if (!occupied(channel))
            return {};
        return m_recorders.SVREdit.sSVR_DeviceType == kFamilyOmluPro ? u"camera-dome"_s : u"camera"_s;
    case Edit:
        return occupied(channel) ? u"edit"_s : u"add"_s;
    case Delete:
        return occupied(channel) ? u"delete"_s : QString();
    default:
        return {};
    }
}

int ChannelListModel::stateOf(int channel) const
{
    const bool fresh = At(m_recorders.SVREdit.channels, channel).bSub_CH_Modified || (occupied(channel) && m_detected);
    return static_cast<int>(fresh ? Status::Ok : Status::None);
}

QString ChannelListModel::stateText(int channel) const
{
    if (At(m_recorders.SVREdit.channels, channel).bSub_CH_Modified)
        return GetLangString(967);
    if (!occupied(channel))
        return GetLangString(966);
    return GetLangString(m_detected ? 968 : 969);
}

QVariant ChannelListModel::shown(int channel, int column) const
{
    const SVRRecord& record = m_recorders.SVREdit;
    switch (column) {
    case Number:
        return channel + 1;
    case Address:
        return At(record.channels, channel).sSub_CH_IP;
    case Port:
        return occupied(channel) ? QVariant(At(record.channels, channel).iSub_CH_HttpPort) : QVariant();
    case Name:
        return At(record.channels, channel).sSub_CH_Name;
    case State:
        return stateText(channel);
    default:
        return {};
    }
}

// What assistive technology says, and the tool tip, of cells that show a picture.
QVariant ChannelListModel::spoken(int channel, int column) const
{
    const QString name = At(m_recorders.SVREdit.channels, channel).sSub_CH_Name;
    switch (column) {
    case Edit:
        return QString(GetLangString(occupied(channel) ? 387 : 385) + u' ' + name).trimmed();
    case Delete:
        return occupied(channel) ? QVariant(QString(GetLangString(386) + u' ' + name)) : QVariant();
    case CameraEvent:
        return occupied(channel) && m_events ? QVariant(QString(GetLangString(781) + u' ' + name)) : QVariant();
    default:
        return {};
    }
}

QVariant ChannelListModel::data(const QModelIndex& index, int role) const
{
    const int channel = index.row();
    const int column = index.column();
    if (!hasIndex(channel, column))
        return {};
    switch (role) {
    case kChannelRole:
        return channel;
    case kIconRole:
        return iconName(channel, column);
    case kStatusRole:
        return stateOf(channel);
    case kSortRole:
        if (column == Address)
            return AddressSortKey(At(m_recorders.SVREdit.channels, channel).sSub_CH_IP);
        if (column == CameraEvent)
            return m_events && At(*m_events, channel);
        return shown(channel, column);
    case Qt::CheckStateRole:
        if (column != CameraEvent || !m_events || !occupied(channel))
            return {};
        return At(*m_events, channel) ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return spoken(channel, column);
    case Qt::TextAlignmentRole:
        return column == Number || column == Port ? QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight) : QVariant();
    case Qt::DisplayRole:
        return shown(channel, column);
    default:
        return {};
    }
}

bool ChannelListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid() || index.column() != CameraEvent || !m_events ||
        !occupied(index.row()))
        return false;
    const bool on = value.toInt() == Qt::Checked;
    if (on && !At(*m_events, index.row()) && cameraEventsOn() >= kCameraEventLimit) {
        emit limitReached();
        return false;
    }
    At(*m_events, index.row()) = on;
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags ChannelListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags usual = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    return index.column() == CameraEvent && m_events && occupied(index.row()) ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant ChannelListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr std::array<int, ColumnCount> heads{55, 363, 364, 579, 403, 781, 0, 0};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (role == Qt::TextAlignmentRole && (section == Number || section == Port))
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    const int head = At(heads, section);
    return role == Qt::DisplayRole && head != 0 ? QVariant(GetLangString(head)) : QVariant();
}
