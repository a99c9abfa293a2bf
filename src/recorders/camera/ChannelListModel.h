#pragma once

#include "recorders/data/RecorderSet.h"

#include <QAbstractTableModel>
#include <optional>
#include <utility>
#include <vector>

inline constexpr int kCameraEventLimit = 32; // channels of the whole station with their camera's events on

// The channels of the recorder in the edit pair, one row each up to iSVR_Maxchannel, with or without a camera.
class ChannelListModel : public QAbstractTableModel
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
        Edit,        // icon
        Delete,      // icon, where there is a camera
        ColumnCount
    };
    static constexpr int kChannelRole = Qt::UserRole; // channel of the row, from 0
    static constexpr int kSortRole = Qt::UserRole + 1;
    static constexpr int kIconRole = Qt::UserRole + 2; // name of the cell's icon; empty for none

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

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Qt::CheckStateRole of CameraEvent; refused (with limitReached) where the station would have too many switched on.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    void limitReached();

private:
    int cameraEventsOn() const; // in the whole station, with the switches as they stand here
    bool occupied(int channel) const;
    QString iconName(int channel, int column) const;
    QString stateText(int channel) const;
    int stateOf(int channel) const;
    QVariant shown(int channel, int column) const;
    QVariant spoken(int channel, int column) const;

    const RecorderSet& m_recorders;
    std::optional<PerChannel<bool>> m_events;
    bool m_detected = false;
};

// A text that sorts addresses by their numbers: each part of an IPv4 address in three digits, names as they are.
QString AddressSortKey(const QString& address);
