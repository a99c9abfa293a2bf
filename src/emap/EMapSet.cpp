#include "emap/EMapSet.h"

#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 kLabelLeft = 4; // the label stands left of a new map's icon

EMapGroupRow* MapOfRecorder(EMapSet& set, int slot)
{
    const auto found = std::find_if(set.edit.begin(), set.edit.end(), [slot](const EMapGroupRow& map) {
        return map.iMap_Type == kMapRecorder && map.iMap_ID == slot + 1;
    });
    return found == set.edit.end() ? nullptr : &*found;
}

QString SubMapsParent(int slot)
{
    return u'S' + QString::number(slot + 1);
}

// Cameras of the slot that name one map as theirs name another one.
void RenameParent(EMapIconRecord& icons, const QString& from, const QString& to)
{
    for (EMapIcon& icon : icons.channels) {
        if (!from.isEmpty() && icon.sParent == from)
            icon.sParent = to;
    }
}

QString FreeName(const std::vector<EMapGroupRow>& maps, const QString& name)
{
    const auto taken = [&maps](const QString& tried) {
        return std::any_of(maps.begin(), maps.end(), [&](const EMapGroupRow& map) { return map.sName == tried; });
    };
    int number = 2;
    QString free;
    do {
        free = name + u' ' + QString::number(number++);
    } while (taken(free));
    return free;
}

} // namespace

EMapSet::EMapSet()
    : stored{RootMap()}
    , edit(stored)
{
}

EMapGroupRow RootMap()
{
    EMapGroupRow root;
    root.sName = kMainMapName;
    root.sMap_Path = kMainMapPicture;
    return root;
}

void ReDimEMapGroup(EMapSet& set)
{
    std::vector<EMapGroupRow> maps{set.edit.front()};
    for (const qint16 level : {kMapGroup, kMapRecorder, kMapSub}) {
        for (std::size_t i = 1; i < set.edit.size(); ++i) {
            EMapGroupRow& map = set.edit[i];
            if (map.iMap_Type != level || map.sName.isEmpty())
                continue;
            if (level != kMapRecorder)
                map.iMap_ID = static_cast<qint16>(maps.size());
            maps.push_back(map);
        }
    }
    for (EMapGroupRow& map : maps)
        map.bChanged = true;
    set.edit = std::move(maps);
}

qint16 NextMapNumber(const std::vector<EMapGroupRow>& maps)
{
    qint16 highest = 0;
    for (const EMapGroupRow& map : maps) {
        if (map.iMap_Type == kMapGroup || map.iMap_Type == kMapSub)
            highest = std::max(highest, map.iMap_ID);
    }
    return ToInt16(QString::number(highest + 1));
}

bool AddRecorderMap(EMapSet& set, int slot, const QString& name)
{
    if (MapOfRecorder(set, slot))
        return false;
    EMapGroupRow map;
    map.iMap_Type = kMapRecorder;
    map.iMap_ID = static_cast<qint16>(slot + 1);
    map.sName = name;
    map.iInfo_Position = kLabelLeft;
    map.sMap_Path = kNewMapPicture;
    map.bChanged = true;
    const auto behind = std::find_if(set.edit.begin(), set.edit.end(),
                                     [](const EMapGroupRow& other) { return other.iMap_Type > kMapRecorder; });
    set.edit.insert(behind, map);
    At(set.iconsEdit, slot).bChanged = true; // its cameras get their rows
    return true;
}

void RenameRecorderMap(EMapSet& set, int slot, const QString& name)
{
    EMapGroupRow* map = MapOfRecorder(set, slot);
    if (!map || map->sName == name)
        return;
    EMapIconRecord& icons = At(set.iconsEdit, slot);
    for (EMapGroupRow& sub : set.edit) {
        if (sub.iMap_Type == kMapSub && sub.sParent == SubMapsParent(slot) && sub.sName == name) {
            const QString free = FreeName(set.edit, name);
            RenameParent(icons, name, free);
            sub.sName = free;
            sub.bChanged = true;
        }
    }
    RenameParent(icons, map->sName, name);
    icons.bChanged = true;
    map->sName = name;
    map->bChanged = true;
}

void RemoveCameraIcon(EMapSet& set, int slot, int channel)
{
    At(At(set.iconsEdit, slot).channels, channel) = EMapIcon();
    At(set.iconsEdit, slot).bChanged = true;
}

void RemoveRecorderMaps(EMapSet& set, int slot)
{
    const QString key = SubMapsParent(slot);
    for (EMapGroupRow& map : set.edit) {
        const bool own = map.iMap_Type == kMapRecorder && map.iMap_ID == slot + 1;
        if (own || (map.iMap_Type == kMapSub && map.sParent == key)) {
            map.sName.clear();
            map.iMap_ID = -1;
        }
    }
    At(set.iconsEdit, slot) = EMapIconRecord();
    At(set.iconsEdit, slot).bChanged = true;
    ReDimEMapGroup(set);
}
