#pragma once

#include "users/ChannelRights.h"

#include <QAbstractTableModel>

// The lists of the user page. Edit and delete are columns of their own: what a click there does is the page's affair.

class UserListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum ListColumn
    {
        Name,
        Group,
        Edit,
        Delete,
        ColumnCount
    };
    static constexpr int kSlotRole = Qt::UserRole; // slot of the row in the edit generation

    UserListModel(UserSet& users, const GroupSet& groups, QObject* parent = nullptr);
    // Fills the list from the edit generation and counts AdminCount anew. A group outside 0 to 6 costs one log line
    // and shows no name.
    void User_Table_Set();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    UserSet& m_users;
    const GroupSet& m_groups;
    std::vector<int> m_slots;
};

class GroupListModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum ListColumn
    {
        Group,
        Live,
        Setting,
        Export,
        SVD,
        Edit,
        ColumnCount
    };

    explicit GroupListModel(const GroupSet& groups, QObject* parent = nullptr);
    void Group_Table_Set();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const GroupSet& m_groups;
};

// The seven names of the edit generation, in order.
QStringList MyGroup_GetList(const GroupSet& groups);

// The cameras of one recorder that have a name, with the four rights of one group on each and the users that reach it.
class ChannelRightsModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum GridColumn
    {
        Channel,
        Name,
        Live,
        PTZ,
        Playback,
        Audio,
        Reach,
        ColumnCount
    };

    ChannelRightsModel(const GroupSet& groups, const UserSet& users, const SVRRecord& recorder, int group, int slot,
                       QObject* parent = nullptr);
    static bool isRight(int column) { return column >= Live && column <= Audio; }
    const ChannelRights& rights() const { return m_rights; }
    void setAll(bool all);
    bool editable() const { return m_group != 0; }
    int channelOf(int row) const;

    // One click: all of the cells become off when all are on, else on. Cells that are no rights count for nothing.
    void flip(const QModelIndexList& cells);
    void give(const QModelIndexList& cells, bool on);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    bool isOn(const QModelIndex& index) const;
    QString reach(int channel) const;

    const GroupSet& m_groups;
    const UserSet& m_users;
    const SVRRecord& m_recorder;
    int m_group;
    int m_slot;
    ChannelRights m_rights;
    std::vector<int> m_channels;
    std::array<std::array<quint8, kMaxChannel>, kGroups> m_effective{}; // as stored, by group and channel
};
