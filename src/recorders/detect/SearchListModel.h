#pragma once

#include "device/bridge/DiscoveryMessage.h"
#include "recorders/detect/NVRDetect.h"

#include <QAbstractTableModel>
#include <vector>

// The recorders that a search has found, as they come in. A device that the station has already is checked and cannot
// be changed; others are checked as long as the station has slots for them. Decoders are left out.
class SearchListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum SearchColumn
    {
        DeviceName, // with the check
        Address,
        Port,
        Brand,
        Model,
        ColumnCount
    };

    explicit SearchListModel(const RecorderSet& recorders, QObject* parent = nullptr);
    void clear();
    // A device that tells no name goes by its address; a longer name than a recorder's field takes is cut.
    void add(const FoundDevice& device);
    // Recorders were added to the station, or taken back: which devices it has is settled anew.
    void refresh();
    int checkedRows() const; // without the known ones
    bool known(int row) const;
    // The checked rows in order, each for the first free slot, with one login for all.
    std::vector<NVRDetectItem> chosen(const QString& user, const QString& password) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // Qt::CheckStateRole of the first column; false for a known device and when the station would be over-full.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row
    {
        FoundDevice device;
        bool known = false;
        bool checked = false;
    };
    bool room() const;
    bool inStation(const FoundDevice& device) const;

    const RecorderSet& m_recorders;
    std::vector<Row> m_rows;
};
