#pragma once

#include "recorders/data/RecorderSet.h"
#include "users/GroupStore.h"
#include "users/UserStore.h"

// The four rights on a channel, as bits of its mask in CHPrivilege.
inline constexpr std::array<quint8, 4> kRightBits{8, 4, 2, 1}; // Live, PTZ, Playback, Audio
inline constexpr quint8 kLiveRight = 8;
inline constexpr quint8 kAllRights = 15;

// One group's rights on one recorder.
struct ChannelRights
{
    bool all = false; // the whole recorder is granted
    std::array<quint8, kMaxChannel> masks{};

    // Live governs: without it a channel has no right, and every other right brings it along.
    void set(int channel, quint8 right, bool on);
    bool operator==(const ChannelRights&) const = default;
};

// Takes "all:mask,mask,…" apart. Whatever is missing reads as no right; a value that is no mask (0 to 15), and masks
// beyond channel 64, cost one log line each text and give nothing.
ChannelRights ParseCHPrivilege(const QString& text);
// The text for a recorder: a mask for each channel up to its channel count, 15 where no camera has a name. No comma at
// the end.
QString FormCHPrivilege(const ChannelRights& rights, const SVRRecord& recorder);
// The channel count of a recorder, 0 to 64.
int RightsChannelCount(const SVRRecord& recorder);

// 1 when every recorder with a name is granted as a whole (also when there is none), else 0.
qint16 DeriveLiveAll(const GroupPrivilegeRecord& group, const std::array<SVRRecord, kMaxSVR>& recorders);

// The masks that count for a group on a recorder's channels: administrators have every right; "all channels" and a
// whole recorder grant everything; nothing counts without the group's own right to live pictures.
std::array<quint8, kMaxChannel> EffectiveRights(const GroupSet& groups, int groupIndex, int slot);

struct ReachedCamera
{
    int slot = 0;    // from 0
    int channel = 0; // from 0
    quint8 mask = 0;
};
// The cameras with a name that a group reaches, in the order of recorders and channels.
std::vector<ReachedCamera> CamerasOf(const GroupSet& groups, int groupIndex,
                                     const std::array<SVRRecord, kMaxSVR>& recorders);
// The users (listed ones, in table order) that reach a camera.
QStringList UsersOf(const GroupSet& groups, const UserSet& users, int slot, int channel);
