#pragma once

#include "app/shell/TableModel.h"
#include "recorders/data/RecorderSet.h"

#include <optional>
#include <utility>
#include <vector>

inline constexpr int kCameraEventLimit = 32; // channels of the whole station with their camera's events on

// The channels (from 0) of the recorder in the edit pair, up to iSVR_Maxchannel, with or without a camera.
class ChannelListModel : public TableModel
{
    Q_OBJECT

public:
    enum ChannelColumn
    {
        Number,
        Address,
        Port,
        Name, // with an icon that tells the family
        State,
        CameraEvent, // check; only while switches are set
        Edit,
        Delete // where there is a camera
    };

    explicit ChannelListModel(const RecorderSet& recorders, QObject* parent = nullptr);
    void refill();                    // the edit pair was replaced
    void refreshChannel(int channel); // one channel of it has changed
    // The channels are as the recorder has just told them, until the list is opened anew.
    void setDetected(bool detected);
    // The switches of the cameras' own events as the edit pair has them; false: the recorder has none. A switch that is
    // set here differs from the record until it is written.
    void setCameraEvents(bool supported);
    bool hasCameraEvents() const { return m_events.has_value(); }
    // The channels (from 0) whose switch differs from the record, and what it is to be.
    std::vector<std::pair<int, bool>> switched() const;
    int cameras() const;

signals:
    void limitReached();

private:
    int cameraEventsOn() const; // in the whole station, with the switches as they stand here
    const SVRChannel& at(int channel) const { return At(m_recorders.SVREdit.channels, channel); }
    bool occupied(int channel) const { return !at(channel).sSub_CH_IP.isEmpty(); }
    QString stateText(int channel) const;
    bool switchOn(int channel, bool on); // refused (with limitReached) where the station would have too many

    const RecorderSet& m_recorders;
    std::optional<PerChannel<bool>> m_events;
    bool m_detected = false;
};

// A text that sorts addresses by their numbers: each part of an IPv4 address in three digits, names as they are.
QString AddressSortKey(const QString& address);
