#pragma once

#include "recorders/RecorderSet.h"

#include <QAbstractTableModel>

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
    // The switches of the cameras' own events; no value: the recorder has none. Changing one is a change of this list
    // only, until it is written.
    void setCameraEvents(const std::optional<PerChannel<bool>>& switches);
    const std::optional<PerChannel<bool>>& cameraEvents() const { return m_events; }
    int cameras() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Qt::CheckStateRole of CameraEvent.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
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
