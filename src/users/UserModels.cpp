#include "users/UserModels.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString Mark(bool on)
{
    return on ? u"✓"_s : u"–"_s;
}

QVariant CentredMark(bool on, int role)
{
    if (role == Qt::DisplayRole)
        return Mark(on);
    if (role == Qt::AccessibleTextRole)
        return GetLangString(on ? 878 : 879);
    return {};
}

} // namespace

UserListModel::UserListModel(UserSet& users, const GroupSet& groups, QObject* parent)
    : QAbstractTableModel(parent)
    , m_users(users)
    , m_groups(groups)
{
}

void UserListModel::User_Table_Set()
{
    beginResetModel();
    m_slots.clear();
    m_users.AdminCount = 0;
    for (std::size_t slot = 0; slot < m_users.edit.size(); ++slot) {
        const UserRecord& user = m_users.edit[slot];
        if (!IsListedUser(user))
            continue;
        m_slots.push_back(static_cast<int>(slot));
        if (user.iGroup == 0)
            ++m_users.AdminCount;
        Trapped("Form_Initial - User_Table_Set", [&] { At(m_groups.edit, user.iGroup); });
    }
    endResetModel();
}

int UserListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_slots.size());
}

int UserListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant UserListModel::data(const QModelIndex& index, int role) const
{
    const int slot = At(m_slots, index.row());
    const UserRecord& user = At(m_users.edit, slot);
    if (role == kSlotRole)
        return slot;
    if (index.column() >= Edit) {
        const QString text = GetLangString(index.column() == Edit ? 876 : 877);
        return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole ? QVariant(text) : QVariant();
    }
    if (role == Qt::AccessibleTextRole)
        return data(index, Qt::DisplayRole);
    if (role != Qt::DisplayRole)
        return {};
    if (index.column() == Name)
        return user.sUser;
    return user.iGroup >= 0 && user.iGroup < kGroups ? At(m_groups.edit, user.iGroup).Name : QString();
}

QVariant UserListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == Name)
        return GetLangString(362);
    return section == Group ? GetLangString(423) : QString();
}

GroupListModel::GroupListModel(const GroupSet& groups, QObject* parent)
    : QAbstractTableModel(parent)
    , m_groups(groups)
{
}

void GroupListModel::Group_Table_Set()
{
    beginResetModel();
    endResetModel();
}

int GroupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kGroups;
}

int GroupListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant GroupListModel::data(const QModelIndex& index, int role) const
{
    const GroupPrivilegeRecord& group = At(m_groups.edit, index.row());
    switch (index.column()) {
    case Group:
        return role == Qt::DisplayRole ? QVariant(group.Name) : QVariant();
    case Live:
        return CentredMark(group.Live == 1, role);
    case Setting:
        return CentredMark(group.Setting == 1, role);
    case Export:
        return CentredMark(group.Export == 1, role);
    case SVD:
        return CentredMark(group.SVDControl == 1, role);
    default:
        return role == Qt::ToolTipRole || role == Qt::AccessibleTextRole ? QVariant(GetLangString(876)) : QVariant();
    }
}

QVariant GroupListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    static constexpr std::array numbers{423, 100, 432, 740};
    if (section < static_cast<int>(numbers.size()))
        return GetLangString(At(numbers, section));
    return section == SVD ? u"SVD"_s : QString();
}

QStringList MyGroup_GetList(const GroupSet& groups)
{
    QStringList names;
    for (const GroupPrivilegeRecord& group : groups.edit)
        names << group.Name;
    return names;
}

ChannelRightsModel::ChannelRightsModel(const GroupSet& groups, const UserSet& users, const SVRRecord& recorder,
                                       int group, int slot, QObject* parent)
    : QAbstractTableModel(parent)
    , m_groups(groups)
    , m_users(users)
    , m_recorder(recorder)
    , m_group(group)
    , m_slot(slot)
    , m_rights(ParseCHPrivilege(At(At(groups.edit, group).CHPrivilege, slot)))
{
    if (group == 0) {
        m_rights.all = true;
        m_rights.masks.fill(kAllRights);
    }
    for (int channel = 0; channel < RightsChannelCount(recorder); ++channel) {
        if (!At(recorder.channels, channel).sSub_CH_Name.isEmpty())
            m_channels.push_back(channel);
    }
    for (int other = 0; other < kGroups; ++other)
        At(m_effective, other) = EffectiveRights(groups, other, slot);
}

void ChannelRightsModel::setAll(bool all)
{
    m_rights.all = all;
    if (rowCount() > 0)
        emit dataChanged(index(0, Reach), index(rowCount() - 1, Reach));
}

int ChannelRightsModel::channelOf(int row) const
{
    return At(m_channels, row);
}

bool ChannelRightsModel::isOn(const QModelIndex& index) const
{
    return (At(m_rights.masks, channelOf(index.row())) & At(kRightBits, index.column() - Live)) != 0;
}

void ChannelRightsModel::flip(const QModelIndexList& cells)
{
    give(cells, !std::all_of(cells.begin(), cells.end(),
                             [this](const QModelIndex& cell) { return !isRight(cell.column()) || isOn(cell); }));
}

void ChannelRightsModel::give(const QModelIndexList& cells, bool on)
{
    if (!editable() || cells.isEmpty())
        return;
    for (const QModelIndex& cell : cells) {
        if (cell.isValid() && isRight(cell.column()))
            m_rights.set(channelOf(cell.row()), At(kRightBits, cell.column() - Live), on);
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int ChannelRightsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_channels.size());
}

int ChannelRightsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ChannelRightsModel::data(const QModelIndex& index, int role) const
{
    const int channel = channelOf(index.row());
    const int column = index.column();
    if (isRight(column)) {
        if (role == Qt::CheckStateRole)
            return isOn(index) ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::AccessibleTextRole)
            return QString(At(m_recorder.channels, channel).sSub_CH_Name + u", "_s +
                           headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() + u": "_s +
                           GetLangString(isOn(index) ? 878 : 879));
        return {};
    }
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole &&
        !(role == Qt::ToolTipRole && (column == Reach || column == Name)))
        return {};
    switch (column) {
    case Channel:
        return channel + 1;
    case Name:
        return At(m_recorder.channels, channel).sSub_CH_Name;
    default:
        return reach(channel);
    }
}

QString ChannelRightsModel::reach(int channel) const
{
    QStringList names;
    const GroupPrivilegeRecord& own = At(m_groups.edit, m_group);
    for (const UserRecord& user : m_users.edit) {
        if (!IsListedUser(user) || user.iGroup < 0 || user.iGroup >= kGroups)
            continue;
        bool reaches = At(At(m_effective, user.iGroup), channel) != 0;
        if (user.iGroup == m_group && m_group != 0)
            reaches = own.Live == 1 && (m_rights.all || (At(m_rights.masks, channel) & kLiveRight) != 0);
        if (reaches)
            names << user.sUser;
    }
    return names.join(u", "_s);
}

QVariant ChannelRightsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Channel:
        return GetLangString(366);
    case Name:
        return GetLangString(367);
    case Live:
        return GetLangString(908);
    case PTZ:
        return GetLangString(431);
    case Playback:
        return GetLangString(430);
    case Audio:
        return GetLangString(150);
    default:
        return GetLangString(905);
    }
}

Qt::ItemFlags ChannelRightsModel::flags(const QModelIndex& index) const
{
    // A cell flips as a whole, whoever clicks it: the views' own box handling stays out of it.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

bool ChannelRightsModel::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole || !editable() || !isRight(index.column()))
        return false;
    flip({index});
    return true;
}
