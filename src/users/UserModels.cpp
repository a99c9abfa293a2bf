#include "users/UserModels.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using Kind = TableColumn::Kind;

namespace {

constexpr std::array kRightNames{908, 431, 430, 150}; // as the bits in kRightBits

QString RecorderHead()
{
    return u"NVR"_s;
}

QString YesOrNo(bool on)
{
    return GetLangString(on ? Message::kYes : Message::kNo);
}

// A tick where a group has the right, a dash where not.
TableColumn RightColumn(const GroupSet& groups, qint16 GroupPrivilegeRecord::*right, int head, int width)
{
    return {.head = head,
            .width = width,
            .text = Of(groups.edit, [right](const auto& group) { return group.*right == 1 ? u"✓"_s : u"–"_s; }),
            .words = [&groups, right](int group) { return YesOrNo(At(groups.edit, group).*right == 1); }};
}

} // namespace

UserListModel::UserListModel(UserSet& users, const GroupSet& groups, QObject* parent)
    : TableModel(parent)
    , m_users(users)
    , m_groups(groups)
{
    const auto group = [&groups](const UserRecord& user) {
        return user.iGroup >= 0 && user.iGroup < kGroups ? At(groups.edit, user.iGroup).Name : QString();
    };
    setColumns({{.head = Message::kName, .text = Of(users.edit, &UserRecord::sUser)},
                {.head = Message::kGroup, .width = 300, .text = Of(users.edit, group)},
                {.kind = Kind::Open},
                {.kind = Kind::Remove}});
}

void UserListModel::User_Table_Set()
{
    std::vector<int> listed;
    m_users.AdminCount = 0;
    for (std::size_t slot = 0; slot < m_users.edit.size(); ++slot) {
        const UserRecord& user = m_users.edit[slot];
        if (!IsListedUser(user))
            continue;
        listed.push_back(static_cast<int>(slot));
        if (user.iGroup == 0)
            ++m_users.AdminCount;
        Trapped("Form_Initial - User_Table_Set", [&] { At(m_groups.edit, user.iGroup); });
    }
    setRecords(std::move(listed));
}

GroupListModel::GroupListModel(const GroupSet& groups, QObject* parent)
    : TableModel(parent)
{
    TableColumn svd = RightColumn(groups, &GroupPrivilegeRecord::SVDControl, 0, 100);
    svd.headText = [] { return u"SVD"_s; };
    setColumns({{.head = Message::kGroup, .text = Of(groups.edit, &GroupPrivilegeRecord::Name)},
                RightColumn(groups, &GroupPrivilegeRecord::Live, 100, 150),
                RightColumn(groups, &GroupPrivilegeRecord::Setting, 432, 130),
                RightColumn(groups, &GroupPrivilegeRecord::Export, 740, 130),
                std::move(svd),
                {.kind = Kind::Open}});
}

QStringList MyGroup_GetList(const GroupSet& groups)
{
    QStringList names;
    for (const GroupPrivilegeRecord& group : groups.edit)
        names << group.Name;
    return names;
}

AccountListModel::AccountListModel(const std::vector<NVRAccountRecord>& accounts, QObject* parent)
    : TableModel(parent)
    , m_accounts(accounts)
{
    setColumns({{.head = Message::kUser, .text = Of(accounts, &NVRAccountRecord::sUser)}, {.kind = Kind::Remove}});
}

void AccountListModel::refill()
{
    std::vector<int> named;
    for (std::size_t element = 0; element < m_accounts.size(); ++element) {
        if (!m_accounts[element].sUser.isEmpty())
            named.push_back(static_cast<int>(element));
    }
    setRecords(std::move(named));
}

GroupRecorderModel::GroupRecorderModel(const GroupSet& groups, const RecorderSet& recorders, QObject* parent)
    : TableModel(parent)
    , m_groups(groups)
    , m_recorders(recorders)
{
    setColumns(
        {{.headText = RecorderHead, .width = 80, .text = [](int slot) { return slot + 1; }},
         {.head = Message::kName, .text = Of(recorders.SVRWorkList, &SVRRecord::sSVR_Name)},
         {.head = Message::kChannelPrivilege, .width = 240, .text = [this](int slot) { return privilege(slot); }},
         {.kind = Kind::Open}});
}

void GroupRecorderModel::refill(int group)
{
    m_group = group;
    std::vector<int> named;
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (!At(m_recorders.SVRWorkList, slot).sSVR_Name.isEmpty())
            named.push_back(slot);
    }
    setRecords(std::move(named));
}

QString GroupRecorderModel::privilege(int slot) const
{
    const SVRRecord& recorder = At(m_recorders.SVRWorkList, slot);
    const ChannelRights rights = ParseCHPrivilege(At(At(m_groups.edit, m_group).CHPrivilege, slot));
    const bool whole = m_group == 0 || rights.all;
    int cameras = 0;
    int live = 0;
    for (int channel = 0; channel < RightsChannelCount(recorder); ++channel) {
        if (At(recorder.channels, channel).sSub_CH_Name.isEmpty())
            continue;
        ++cameras;
        live += whole || (At(rights.masks, channel) & kLiveRight) != 0 ? 1 : 0;
    }
    return (whole ? u"✓  "_s : QString()) + GetLangString(Message::kChannelsOf).arg(live).arg(cameras);
}

ReachModel::ReachModel(const UserRecord& user, const GroupSet& groups, const RecorderSet& recorders, QObject* parent)
    : TableModel(parent)
    , m_cameras(CamerasOf(groups, user.iGroup, recorders.SVRWorkList))
{
    const auto& list = recorders.SVRWorkList;
    const auto recorder = [&list](const ReachedCamera& camera) {
        return QString(QString::number(camera.slot + 1) + u" · "_s + At(list, camera.slot).sSVR_Name);
    };
    const auto name = [&list](const ReachedCamera& camera) {
        return At(At(list, camera.slot).channels, camera.channel).sSub_CH_Name;
    };
    const auto rights = [](const ReachedCamera& camera) {
        QStringList names;
        for (std::size_t i = 0; i < kRightNames.size(); ++i) {
            if ((camera.mask & kRightBits[i]) != 0)
                names << GetLangString(kRightNames[i]);
        }
        return names.join(u", "_s);
    };
    setColumns({{.headText = RecorderHead, .width = 190, .text = Of(m_cameras, recorder)},
                {.head = Message::kChannel,
                 .width = 80,
                 .text = Of(m_cameras, [](const auto& camera) { return camera.channel + 1; })},
                {.head = Message::kChannelName, .width = 180, .text = Of(m_cameras, name)},
                {.head = Message::kChannelPrivilege, .text = Of(m_cameras, rights)}});
    setRecordCount(static_cast<int>(m_cameras.size()));
}

ChannelRightsModel::ChannelRightsModel(const GroupSet& groups, const UserSet& users, const SVRRecord& recorder,
                                       int group, int slot, QObject* parent)
    : TableModel(parent)
    , m_groups(groups)
    , m_users(users)
    , m_group(group)
    , m_rights(ParseCHPrivilege(At(At(groups.edit, group).CHPrivilege, slot)))
{
    const auto name = [&recorder](int channel) { return At(recorder.channels, channel).sSub_CH_Name; };
    const auto reached = [this](int channel) { return reach(channel); };
    std::vector<TableColumn> columns{
        {.head = Message::kChannel, .width = 64, .text = [](int channel) { return channel + 1; }},
        {.head = Message::kChannelName, .width = 210, .text = name, .words = name},
    };
    static constexpr std::array widths{92, 92, 104, 92};
    for (int column = Live; column <= Audio; ++column) {
        const int head = At(kRightNames, column - Live);
        columns.push_back({.head = head,
                           .width = At(widths, column - Live),
                           .words =
                               [this, name, head, column](int channel) {
                                   return QString(name(channel) + u", "_s + GetLangString(head) + u": "_s +
                                                  YesOrNo(isOn(channel, column)));
                               },
                           .checked = [this, column](int channel) { return isOn(channel, column); }});
    }
    columns.push_back({.head = 905, .text = reached, .words = reached});
    setColumns(std::move(columns));
    if (group == 0) {
        m_rights.all = true;
        m_rights.masks.fill(kAllRights);
    }
    for (int other = 0; other < kGroups; ++other)
        At(m_effective, other) = EffectiveRights(groups, other, slot);
    std::vector<int> named;
    for (int channel = 0; channel < RightsChannelCount(recorder); ++channel) {
        if (!name(channel).isEmpty())
            named.push_back(channel);
    }
    setRecords(std::move(named));
}

void ChannelRightsModel::setAll(bool all)
{
    m_rights.all = all;
    allChanged();
}

bool ChannelRightsModel::isOn(int channel, int column) const
{
    return (At(m_rights.masks, channel) & At(kRightBits, column - Live)) != 0;
}

void ChannelRightsModel::flip(const QModelIndexList& cells)
{
    give(cells, !std::all_of(cells.begin(), cells.end(), [this](const QModelIndex& cell) {
             return !isRight(cell.column()) || isOn(cell.data(kRecordRole).toInt(), cell.column());
         }));
}

void ChannelRightsModel::give(const QModelIndexList& cells, bool on)
{
    if (!editable() || cells.isEmpty())
        return;
    for (const QModelIndex& cell : cells) {
        if (cell.isValid() && isRight(cell.column()))
            m_rights.set(cell.data(kRecordRole).toInt(), At(kRightBits, cell.column() - Live), on);
    }
    allChanged();
}

bool ChannelRightsModel::setData(const QModelIndex& index, const QVariant&, int role)
{
    if (role != Qt::CheckStateRole || !editable() || !isRight(index.column()))
        return false;
    flip({index});
    return true;
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
