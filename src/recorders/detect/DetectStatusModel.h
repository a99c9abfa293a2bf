#pragma once

#include "app/shell/TableModel.h"
#include "recorders/detect/NVRDetect.h"

#include <QTimer>

// The running status of the recorders being detected, one row an item. Views are told of changes every 30 ms at most: a
// quick recorder goes through its steps faster than a screen shows them.
class DetectStatusModel : public TableModel
{
    Q_OBJECT

public:
    enum StatusColumn
    {
        DeviceName,
        Address,
        Port,
        Model,
        Channels,
        Status
    };

    explicit DetectStatusModel(QObject* parent = nullptr);
    void setItems(std::vector<NVRDetectItem> items); // all waiting
    const NVRDetectItem& item(int row) const;
    // Whatever is not done waits again, for another login.
    void tryAgain(const QString& user, const QString& password);
    void setStatus(int row, const DetectStatus& status);
    void setChannels(int row, int channels);
    bool waits(int row) const;
    int finishedRows() const; // done or failed
    int doneRows() const;
    int failedRows() const;

private:
    struct Row
    {
        bool started = false;
        DetectStatus status;
        int channels = -1;
    };
    QString stateText(int row) const;
    ::Status stateOf(int row) const;
    int rowsIn(DetectStatus::State state) const;
    void changed(int row);

    std::vector<NVRDetectItem> m_items;
    std::vector<Row> m_rows;
    QTimer m_tell;
    int m_firstChanged = 0; // rows that the views do not know yet, while m_tell runs
    int m_lastChanged = 0;
};
