#include "users/ChannelRights.h"

#include "app/log/Module_Log.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1String kSource("Form_GroupPrivilege - Grid_ChannelPrivilege_Draw");
}

void ChannelRights::set(int channel, quint8 right, bool on)
{
    quint8& mask = At(masks, channel);
    if (on)
        mask = static_cast<quint8>(mask | right | kLiveRight);
    else
        mask = right == kLiveRight ? quint8(0) : static_cast<quint8>(mask & ~right);
}

ChannelRights ParseCHPrivilege(const QString& text)
{
    ChannelRights rights;
    if (text.isEmpty())
        return rights;
    const qsizetype colon = text.indexOf(u':');
    const QStringView view(text);
    rights.all = view.left(colon < 0 ? text.size() : colon).trimmed() == "1"_L1;
    if (colon < 0) {
        LogTrap(kSource, u"Rights without masks: '%1'"_s.arg(text.left(64)));
        return rights;
    }
    int channel = 0;
    bool faulty = false;
    for (const QStringView part : view.mid(colon + 1).split(u',')) {
        if (part.isEmpty() && channel >= kMaxChannel)
            break;
        bool number = false;
        const int mask = part.trimmed().toInt(&number);
        if (channel >= kMaxChannel) {
            faulty = true;
            break;
        }
        if (number && mask >= 0 && mask <= kAllRights)
            rights.masks[static_cast<std::size_t>(channel)] = static_cast<quint8>(mask);
        else
            faulty = faulty || !part.isEmpty();
        ++channel;
    }
    if (faulty)
        LogTrap(kSource, u"Rights with values that are no masks: '%1'"_s.arg(text.left(64)));
    return rights;
}

int RightsChannelCount(const SVRRecord& recorder)
{
    return std::clamp<int>(recorder.iSVR_Maxchannel, 0, kMaxChannel);
}

QString FormCHPrivilege(const ChannelRights& rights, const SVRRecord& recorder)
{
    QStringList masks;
    for (int channel = 0; channel < RightsChannelCount(recorder); ++channel) {
        const bool named = !At(recorder.channels, channel).sSub_CH_Name.isEmpty();
        masks << QString::number(named ? At(rights.masks, channel) : kAllRights);
    }
    return QString::number(rights.all ? 1 : 0) + u':' + masks.join(u',');
}

qint16 DeriveLiveAll(const GroupPrivilegeRecord& group, const std::array<SVRRecord, kMaxSVR>& recorders)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (At(recorders, slot).sSVR_Name.isEmpty())
            continue;
        if (At(group.CHPrivilege, slot).section(u':', 0, 0).trimmed() != "1"_L1)
            return 0;
    }
    return 1;
}

std::array<quint8, kMaxChannel> EffectiveRights(const GroupSet& groups, int groupIndex, int slot)
{
    std::array<quint8, kMaxChannel> masks{};
    const GroupPrivilegeRecord& group = At(groups.edit, groupIndex);
    if (groupIndex != 0 && group.Live != 1)
        return masks;
    const bool everything = groupIndex == 0 || group.Live_all == 1;
    const ChannelRights rights = everything ? ChannelRights{} : ParseCHPrivilege(At(group.CHPrivilege, slot));
    if (everything || rights.all) {
        masks.fill(kAllRights);
        return masks;
    }
    for (std::size_t channel = 0; channel < masks.size(); ++channel) {
        if ((rights.masks[channel] & kLiveRight) != 0)
            masks[channel] = rights.masks[channel];
    }
    return masks;
}

std::vector<ReachedCamera> CamerasOf(const GroupSet& groups, int groupIndex,
                                     const std::array<SVRRecord, kMaxSVR>& recorders)
{
    std::vector<ReachedCamera> cameras;
    if (groupIndex < 0 || groupIndex >= kGroups)
        return cameras;
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& recorder = At(recorders, slot);
        if (recorder.sSVR_Name.isEmpty())
            continue;
        const auto masks = EffectiveRights(groups, groupIndex, slot);
        for (int channel = 0; channel < kMaxChannel; ++channel) {
            if (!At(recorder.channels, channel).sSub_CH_Name.isEmpty() && At(masks, channel) != 0)
                cameras.push_back({slot, channel, At(masks, channel)});
        }
    }
    return cameras;
}

QStringList UsersOf(const GroupSet& groups, const UserSet& users, int slot, int channel)
{
    std::array<bool, kGroups> reaches{};
    for (int group = 0; group < kGroups; ++group)
        At(reaches, group) = At(EffectiveRights(groups, group, slot), channel) != 0;
    QStringList names;
    for (const UserRecord& user : users.edit) {
        if (IsListedUser(user) && user.iGroup >= 0 && user.iGroup < kGroups && At(reaches, user.iGroup))
            names << user.sUser;
    }
    return names;
}
