#pragma once

#include "app/shell/TableModel.h"
#include "device/bridge/DiscoveryMessage.h"
#include "recorders/detect/NVRDetect.h"

// The recorders that a search has found, as they come in. A device that the station has already is checked and cannot
// be changed; others are checked as long as the station has slots for them. Decoders are left out.
class SearchListModel : public TableModel
{
    Q_OBJECT

public:
    enum SearchColumn
    {
        DeviceName, // with the check
        Address,
        Port,
        Brand,
        Model
    };

    explicit SearchListModel(const RecorderSet& recorders, QObject* parent = nullptr);
    void clear();
    // A device that tells no name goes by its address; a longer name than a recorder's field takes is cut.
    void add(const FoundDevice& device);
    // Recorders were added to the station, or taken back: which devices it has is settled anew.
    void refresh();
    int checkedRows() const; // without the known ones
    bool known(int device) const { return At(m_rows, device).known; }
    // The checked rows in order, each for the first free slot, with one login for all.
    std::vector<NVRDetectItem> chosen(const QString& user, const QString& password) const;

protected:
    bool enabled(int device) const override { return !known(device); }

private:
    struct Row
    {
        FoundDevice device;
        bool known = false;
        bool checked = false;
    };
    bool check(Row& row, bool on); // false when the station would be over-full
    bool room() const;
    bool inStation(const FoundDevice& device) const;

    const RecorderSet& m_recorders;
    std::vector<Row> m_rows;
};
