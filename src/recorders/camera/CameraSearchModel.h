#pragma once

#include "device/protocol/ReplyRecords.h"

#include <QAbstractTableModel>
#include <vector>

// The cameras that a recorder sees on its network.
class CameraSearchModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum SearchColumn
    {
        Address,
        Brand,
        Model,
        Port,
        ColumnCount
    };
    static constexpr int kSortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;
    void setCameras(std::vector<FoundCamera> cameras);
    const FoundCamera& camera(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<FoundCamera> m_cameras;
};
