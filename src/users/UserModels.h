#pragma once

#include "app/shell/TableModel.h"
#include "users/ChannelRights.h"

// The users by their slot in the edit generation.
class UserListModel : public TableModel
{
    Q_OBJECT
public:
    enum ListColumn
    {
        Name,
        Group,
        Edit,
        Delete
    };

    UserListModel(UserSet& users, const GroupSet& groups, QObject* parent = nullptr);
    // Fills the list from the edit generation and counts AdminCount anew. A group outside 0 to 6 costs one log line
    // and shows no name.
    void User_Table_Set();

private:
    UserSet& m_users;
    const GroupSet& m_groups;
};

// The groups by their index, with their rights.
class GroupListModel : public TableModel
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
        Edit
    };

    explicit GroupListModel(const GroupSet& groups, QObject* parent = nullptr);
    void Group_Table_Set() { setRecordCount(kGroups); }
};

// The seven names of the edit generation, in order.
QStringList MyGroup_GetList(const GroupSet& groups);

// The logins that are tried on devices, by their element.
class AccountListModel : public TableModel
{
    Q_OBJECT
public:
    enum ListColumn
    {
        User,
        Delete
    };

    explicit AccountListModel(const std::vector<NVRAccountRecord>& accounts, QObject* parent = nullptr);
    void refill();

private:
    const std::vector<NVRAccountRecord>& m_accounts;
};

// The recorders with a name, by slot, and on how many of its cameras a group may see live pictures.
class GroupRecorderModel : public TableModel
{
    Q_OBJECT
public:
    enum ListColumn
    {
        Number,
        Name,
        Privilege,
        Edit
    };

    GroupRecorderModel(const GroupSet& groups, const RecorderSet& recorders, QObject* parent = nullptr);
    void refill(int group); // from 0

private:
    QString privilege(int slot) const;

    const GroupSet& m_groups;
    const RecorderSet& m_recorders;
    int m_group = 0;
};

// The cameras that a user reaches, and what the user may do with each.
class ReachModel : public TableModel
{
    Q_OBJECT
public:
    ReachModel(const UserRecord& user, const GroupSet& groups, const RecorderSet& recorders, QObject* parent = nullptr);

private:
    std::vector<ReachedCamera> m_cameras;
};

// The cameras of one recorder that have a name, by channel, with the four rights of one group on each and the users
// that reach it. A right flips as a whole cell, whoever clicks it: the views' own box handling stays out of it.
class ChannelRightsModel : public TableModel
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
        Reach
    };

    ChannelRightsModel(const GroupSet& groups, const UserSet& users, const SVRRecord& recorder, int group, int slot,
                       QObject* parent = nullptr);
    static bool isRight(int column) { return column >= Live && column <= Audio; }
    const ChannelRights& rights() const { return m_rights; }
    void setAll(bool all);
    bool editable() const { return m_group != 0; }

    // One click: all of the cells become off when all are on, else on. Cells that are no rights count for nothing.
    void flip(const QModelIndexList& cells);
    void give(const QModelIndexList& cells, bool on);
    bool setData(const QModelIndex& index, const QVariant& value, int role) override; // flips one, Qt::CheckStateRole

private:
    bool isOn(int channel, int column) const;
    QString reach(int channel) const;

    const GroupSet& m_groups;
    const UserSet& m_users;
    int m_group;
    ChannelRights m_rights;
    std::array<std::array<quint8, kMaxChannel>, kGroups> m_effective{}; // as stored, by group and channel
};
