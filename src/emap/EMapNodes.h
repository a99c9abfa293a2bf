#pragma once

#include "emap/EMapSet.h"
#include "recorders/data/RecorderSet.h"

#include <QHash>

inline constexpr qint16 kCameraLevel = 4; // of a node that is no map

// A node of the tree: a map, or a camera. Its key is "MainMap"; "G", "S" or "T" and the map's iMap_ID; or "C_", the
// recorder's number, "_" and the channel's, both from 1.
struct EMapNode
{
    qint16 level = -1; // kMapRoot … kCameraLevel; -1: none
    int map = -1;      // place in the list of maps; -1 for a camera
    int slot = -1;     // of a camera, and of the recorder that a recorder's map or a sub-map belongs to; from 0
    int channel = -1;  // of a camera, from 0

    bool isMap() const { return level >= kMapRoot && level <= kMapSub; }
    bool isCamera() const { return level == kCameraLevel; }
};

QString MapKey(const EMapGroupRow& map);
QString CameraKey(int slot, int channel);
// The node of a key, one of level -1 where there is none.
EMapNode NodeOf(const EMapSet& set, const QString& key);
// Slot of the recorder a recorder's map or sub-map belongs to; -1 for other maps.
int SlotOf(const EMapGroupRow& map);
// Whether a channel stands in the tree: it has a name, its recorder is in use and has that many channels.
bool IsCamera(const RecorderSet& recorders, int slot, int channel);

// Who stands where, for the maps of one list as they are at the moment.
class EMapPlaces
{
public:
    explicit EMapPlaces(const std::vector<EMapGroupRow>& maps);

    // The map that shows a camera of the slot: its recorder's map of that name, else the first sub-map of it; -1: none.
    int mapOf(int slot, const EMapIcon& icon) const;
    // The map above a map. What names a parent that is not there stands under the root.
    int parentOf(int map) const;
    // A recorder's own map, -1: none.
    int recorderMap(int slot) const;

private:
    const std::vector<EMapGroupRow>& m_maps;
    std::array<int, kMaxSVR> m_recorderMaps;
    QHash<QString, int> m_groups; // by name
    QHash<QString, int> m_subs;
    QHash<QString, int> m_recorderKeys;
};
