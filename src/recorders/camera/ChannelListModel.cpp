#include "recorders/camera/ChannelListModel.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"

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
    : TableModel(parent)
    , m_recorders(recorders)
{
    using Kind = TableColumn::Kind;
    const auto named = [this](int message, int channel) {
        return QString(GetLangString(message) + u' ' + at(channel).sSub_CH_Name).trimmed();
    };
    setColumns({
        {.head = 55, .width = 64, .kind = Kind::Number, .text = [](int channel) { return channel + 1; }},
        {.head = Message::kAddress,
         .width = 150,
         .kind = Kind::Figures,
         .text = Of(recorders.SVREdit.channels, &SVRChannel::sSub_CH_IP),
         .sort = [this](int channel) { return AddressSortKey(at(channel).sSub_CH_IP); }},
        {.head = Message::kPort,
         .width = 76,
         .kind = Kind::Number,
         .text = [this](int channel) { return occupied(channel) ? at(channel).iSub_CH_HttpPort : QVariant(); }},
        {.head = 579,
         .text = Of(recorders.SVREdit.channels, &SVRChannel::sSub_CH_Name),
         .icon =
             [this](int channel) {
                 const bool dome = m_recorders.SVREdit.sSVR_DeviceType == kFamilyOmluPro;
                 return !occupied(channel) ? QString() : dome ? u"camera-dome"_s : u"camera"_s;
             }},
        {.head = Message::kStatus,
         .width = 190,
         .kind = Kind::State,
         .text = [this](int channel) { return stateText(channel); },
         .status =
             [this](int channel) {
                 const bool fresh = at(channel).bSub_CH_Modified || (occupied(channel) && m_detected);
                 return fresh ? Status::Ok : Status::None;
             }},
        {.head = 781,
         .width = 110,
         .kind = Kind::Check,
         .words = [this,
                   named](int channel) { return occupied(channel) && m_events ? named(781, channel) : QString(); },
         .checked = [this](int channel) -> std::optional<bool> {
             return occupied(channel) && m_events ? std::optional(At(*m_events, channel)) : std::nullopt;
         },
         .check = [this](int channel, bool on) { return switchOn(channel, on); }},
        {.kind = Kind::Open,
         .words = [this,
                   named](int channel) { return named(occupied(channel) ? Message::kModify : Message::kAdd, channel); },
         .icon = [this](int channel) { return occupied(channel) ? u"edit"_s : u"add"_s; }},
        {.kind = Kind::Remove,
         .words = [this,
                   named](int channel) { return occupied(channel) ? named(Message::kRemove, channel) : QString(); }},
    });
    refill();
}

void ChannelListModel::refill()
{
    setRecordCount(qBound(0, static_cast<int>(m_recorders.SVREdit.iSVR_Maxchannel), kMaxChannel));
}

void ChannelListModel::refreshChannel(int channel)
{
    if (m_events && !occupied(channel))
        At(*m_events, channel) = false;
    recordChanged(channel);
}

void ChannelListModel::setDetected(bool detected)
{
    m_detected = detected;
    allChanged();
}

void ChannelListModel::setCameraEvents(bool supported)
{
    m_events.reset();
    if (supported) {
        m_events.emplace();
        std::ranges::transform(m_recorders.SVREdit.channels, m_events->begin(), &SVRChannel::bSub_CH_Cam_MD_Enabled);
    }
    allChanged();
}

bool ChannelListModel::switchOn(int channel, bool on)
{
    if (on && !At(*m_events, channel) && cameraEventsOn() >= kCameraEventLimit) {
        emit limitReached();
        return false;
    }
    At(*m_events, channel) = on;
    return true;
}

std::vector<std::pair<int, bool>> ChannelListModel::switched() const
{
    std::vector<std::pair<int, bool>> changes;
    for (int channel = 0; m_events && channel < rowCount(); ++channel) {
        const bool on = At(*m_events, channel);
        if (occupied(channel) && on != at(channel).bSub_CH_Cam_MD_Enabled)
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

QString ChannelListModel::stateText(int channel) const
{
    if (at(channel).bSub_CH_Modified)
        return GetLangString(967);
    if (!occupied(channel))
        return GetLangString(966);
    return GetLangString(m_detected ? 968 : 969);
}
