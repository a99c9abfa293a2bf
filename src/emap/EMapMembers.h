#pragma once

#include "emap/EMapEdit.h"

#include <QAbstractTableModel>

// What a node of the tree holds: of the root its groups and recorders' maps, of a group its recorders' maps, of a
// recorder's map or sub-map its sub-maps and cameras.
class EMapMembers : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum MemberColumn
    {
        Type,
        Name,
        ColumnCount
    };
    static constexpr int kKeyRole = Qt::UserRole; // key of the member's node

    EMapMembers(const EMapSet& set, const RecorderSet& recorders, QObject* parent = nullptr);
    void ListView_Emap_Set(const QString& key); // the members of this node

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Member
    {
        QString type;
        QString name;
        QString key;
    };

    const EMapSet& m_set;
    const RecorderSet& m_recorders;
    std::vector<Member> m_members;
};
