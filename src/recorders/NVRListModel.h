#pragma once

#include "device/bridge/ConnectionWatch.h"
#include "recorders/data/RecorderSet.h"

#include <QAbstractTableModel>
#include <vector>

// The list of recorders: one row for each occupied slot of the stored generation.
class NVRListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum ListColumn
    {
        Number,
        Name,
        Address,
        Brand,
        Model,
        ValidChannels,
        Edit,   // icon
        Delete, // icon
        Connection,
        ColumnCount
    };
    static constexpr int kSlotRole = Qt::UserRole; // slot of the row, from 0
    static constexpr int kSortRole = Qt::UserRole + 1;

    NVRListModel(const RecorderSet& recorders, const ConnectionWatch& watch, QObject* parent = nullptr);
    void refill();      // after the stored generation has changed
    void retranslate(); // after the language has changed

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void connectionChanged(int slot);

    const RecorderSet& m_recorders;
    const ConnectionWatch& m_watch;
    std::vector<int> m_slots;
};

// What column "Model" shows: one brand's older models are shown as "-".
QString ShownModel(const SVRRecord& record);
