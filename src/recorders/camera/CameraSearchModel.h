#pragma once

#include "app/shell/TableModel.h"
#include "device/protocol/ReplyRecords.h"

// The cameras that a recorder sees on its network.
class CameraSearchModel : public TableModel
{
    Q_OBJECT

public:
    enum SearchColumn
    {
        Address,
        Brand,
        Model,
        Port
    };

    explicit CameraSearchModel(QObject* parent = nullptr);
    void setCameras(std::vector<FoundCamera> cameras);
    const FoundCamera& camera(int record) const { return At(m_cameras, record); }

private:
    std::vector<FoundCamera> m_cameras;
};
