#pragma once

#include "app/shell/TableModel.h"
#include "device/bridge/ConnectionWatch.h"
#include "recorders/data/RecorderSet.h"

// The list of recorders: one row for each occupied slot (from 0) of the stored generation.
class NVRListModel : public TableModel
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
        Edit,
        Delete,
        Connection
    };

    NVRListModel(const RecorderSet& recorders, const ConnectionWatch& watch, QObject* parent = nullptr);
    void refill(); // after the stored generation has changed

private:
    const RecorderSet& m_recorders;
};

// What column "Model" shows: one brand's older models are shown as "-".
QString ShownModel(const SVRRecord& record);
