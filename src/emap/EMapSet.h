#pragma once

#include "store/records/EMapRecords.h"

#include <vector>

// Levels of a map, as iMap_Type holds them.
inline constexpr qint16 kMapRoot = 0;
inline constexpr qint16 kMapGroup = 1;
inline constexpr qint16 kMapRecorder = 2; // iMap_ID is the recorder's slot + 1
inline constexpr qint16 kMapSub = 3;      // sParent is "S" and the iMap_ID of its recorder's map

inline constexpr QLatin1String kMainMapName("MainMap");
// Values of sMap_Path as they stand in the table, relative to AppPath.
inline constexpr QLatin1String kMainMapPicture("\\MAP\\Main_Map.jpg");
inline constexpr QLatin1String kNewMapPicture("\\MAP\\map1.jpg");

// The maps, root first, and the cameras on them.
struct EMapSet
{
    EMapSet();

    std::vector<EMapGroupRow> stored;
    std::vector<EMapGroupRow> edit;
    EMapIconTable iconsStored;
    EMapIconTable iconsEdit;
};

// The one map that is always there.
EMapGroupRow RootMap();

// Drops the edit list's maps without a name and brings the levels into order: root, groups, recorders' maps, sub-maps.
// Groups and sub-maps get their place in the list (from 1) as iMap_ID, recorders' maps keep theirs. Every map is
// marked as changed.
void ReDimEMapGroup(EMapSet& set);

// Number for a new group or sub-map: one above the highest of both.
qint16 NextMapNumber(const std::vector<EMapGroupRow>& maps);

// What the maps have to do with a recorder (slot from 0). All work on the edit copies and mark what they touch.

// Gives a new recorder its map, directly under the root and behind the other recorders' maps. False, with nothing
// changed, when the slot has one already.
bool AddRecorderMap(EMapSet& set, int slot, const QString& name);
// The map follows the recorder's new name, and so do the cameras placed on it, which name their map. One of its own
// sub-maps that has this name gives way ("Hall 2") with its cameras. Without a map of the slot nothing happens.
void RenameRecorderMap(EMapSet& set, int slot, const QString& name);
// A camera (channel from 0) is on no map any more.
void RemoveCameraIcon(EMapSet& set, int slot, int channel);
// The recorder's map and its sub-maps go, and its cameras are on no map. Ends with ReDimEMapGroup.
void RemoveRecorderMaps(EMapSet& set, int slot);
