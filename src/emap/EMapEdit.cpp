#include "emap/EMapEdit.h"

#include "support/Conversions.h"

#include <QUndoCommand>
#include <algorithm>

namespace {

constexpr int kNameRepeat = 141;
constexpr int kNameEmpty = 698;
constexpr int kRecorderGoesToGroup = 1264;
constexpr int kCameraGoesToOwnMaps = 1265;
constexpr int kThereAlready = 1266;
constexpr int kDoesNotMove = 1267;

EMapIcon& IconOf(EMapSet& set, const EMapNode& camera)
{
    return At(At(set.iconsEdit, camera.slot).channels, camera.channel);
}

// Calls `work` with the icon of each camera on the map and marks its recorder's icons.
template <class Work>
void ForEachIconOn(EMapSet& set, int map, Work&& work)
{
    const EMapPlaces places(set.edit);
    ForEachChannel([&](int slot, int channel) {
        EMapIconRecord& icons = At(set.iconsEdit, slot);
        EMapIcon& icon = At(icons.channels, channel);
        if (places.mapOf(slot, icon) == map) {
            work(icon);
            icons.bChanged = true;
        }
    });
}

} // namespace

int NameRefusal(const EMapSet& set, const QString& name, int self)
{
    if (name.isEmpty())
        return kNameEmpty;
    if (name == kMainMapName)
        return kNameRepeat;
    for (std::size_t i = 0; i < set.edit.size(); ++i) {
        if (static_cast<int>(i) != self && set.edit[i].sName == name)
            return kNameRepeat;
    }
    return 0;
}

int AddMap(EMapSet& set, int above, const QString& name)
{
    const EMapGroupRow& parent = At(set.edit, above);
    EMapGroupRow map;
    map.iMap_Type = parent.iMap_Type == kMapRoot ? kMapGroup : kMapSub;
    map.iMap_ID = NextMapNumber(set.edit);
    map.sName = name;
    map.sParent = MapKey(parent);
    map.sMap_Path = kNewMapPicture;
    map.bChanged = true;
    set.edit.push_back(map);
    return static_cast<int>(set.edit.size()) - 1;
}

void RenameMap(EMapSet& set, int map, const QString& name)
{
    EMapGroupRow& row = At(set.edit, map);
    if (row.iMap_Type == kMapSub) {
        ForEachIconOn(set, map, [&](EMapIcon& icon) { icon.sParent = name; });
    } else {
        for (EMapGroupRow& other : set.edit) {
            if (other.iMap_Type == kMapRecorder && other.sParent == row.sName) {
                other.sParent = name;
                other.bChanged = true;
            }
        }
    }
    row.sName = name;
    row.bChanged = true;
}

void RemoveMap(EMapSet& set, int map)
{
    EMapGroupRow& row = At(set.edit, map);
    if (row.iMap_Type == kMapSub) {
        ForEachIconOn(set, map, [](EMapIcon& icon) { icon.sParent.clear(); });
    } else {
        for (EMapGroupRow& other : set.edit) {
            if (other.iMap_Type == kMapRecorder && other.sParent == row.sName)
                other.sParent = kMainMapName;
        }
    }
    row.sName.clear();
    ReDimEMapGroup(set);
}

int DragRefusal(const EMapNode& what)
{
    return what.level == kMapRecorder || what.isCamera() ? 0 : kDoesNotMove;
}

int MoveRefusal(const EMapSet& set, const EMapNode& what, const EMapNode& target)
{
    if (const int refusal = DragRefusal(what))
        return refusal;
    const EMapPlaces places(set.edit);
    if (what.isCamera()) {
        const int present = places.mapOf(what.slot, At(At(set.iconsEdit, what.slot).channels, what.channel));
        const bool own = (target.level == kMapRecorder || target.level == kMapSub) && target.slot == what.slot;
        if (target.level != kMapRoot && !own)
            return kCameraGoesToOwnMaps;
        return qMax(present, 0) == target.map ? kThereAlready : 0;
    }
    if (target.level != kMapRoot && target.level != kMapGroup)
        return kRecorderGoesToGroup;
    return places.parentOf(what.map) == target.map ? kThereAlready : 0;
}

void MoveNode(EMapSet& set, const EMapNode& what, const EMapNode& target)
{
    const EMapGroupRow& above = At(set.edit, target.map);
    if (what.isCamera()) {
        EMapIcon& icon = IconOf(set, what);
        icon.sParent = target.level == kMapRoot ? QString() : above.sName;
        if (target.level != kMapRoot)
            icon.dMapX = icon.dMapY = icon.dInfoX = icon.dInfoY = 0;
        At(set.iconsEdit, what.slot).bChanged = true;
        return;
    }
    EMapGroupRow& map = At(set.edit, what.map);
    map.sParent = target.level == kMapRoot ? QString(kMainMapName) : above.sName;
    map.bChanged = true;
}

// What a step changed: the list of maps before and after where it differs, and the icons that differ.
class EMapEdit::Step : public QUndoCommand
{
public:
    Step(EMapEdit& edit, const std::vector<EMapGroupRow>& maps, const EMapIconTable& icons, int run)
        : m_edit(edit)
        , m_run(run)
    {
        const EMapSet& set = edit.m_set;
        if (maps != set.edit) {
            m_mapsBefore = maps;
            m_mapsAfter = set.edit;
        }
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            const EMapIconRecord& before = At(icons, slot);
            const EMapIconRecord& after = At(set.iconsEdit, slot);
            m_marksBefore[static_cast<std::size_t>(slot)] = before.bChanged;
            m_marksAfter[static_cast<std::size_t>(slot)] = after.bChanged;
            for (int channel = 0; channel < kMaxChannel; ++channel) {
                if (At(before.channels, channel) != At(after.channels, channel))
                    m_icons.push_back({slot, channel, At(before.channels, channel), At(after.channels, channel)});
            }
        }
    }

    bool changesNothing() const { return !m_mapsBefore && m_icons.empty() && m_marksBefore == m_marksAfter; }
    int id() const override { return m_run; }
    bool mergeWith(const QUndoCommand* other) override
    {
        const auto& next = static_cast<const Step&>(*other);
        if (next.m_mapsAfter) {
            m_mapsBefore = m_mapsBefore ? m_mapsBefore : next.m_mapsBefore;
            m_mapsAfter = next.m_mapsAfter;
        }
        for (const Icon& later : next.m_icons) {
            const auto same = std::find_if(m_icons.begin(), m_icons.end(), [&later](const Icon& icon) {
                return icon.slot == later.slot && icon.channel == later.channel;
            });
            if (same == m_icons.end())
                m_icons.push_back(later);
            else
                same->after = later.after;
        }
        m_marksAfter = next.m_marksAfter;
        return true;
    }
    void undo() override { put(m_mapsBefore, &Icon::before, m_marksBefore); }
    void redo() override
    {
        if (std::exchange(m_done, true))
            put(m_mapsAfter, &Icon::after, m_marksAfter);
    }

private:
    struct Icon
    {
        int slot;
        int channel;
        EMapIcon before;
        EMapIcon after;
    };
    void put(const std::optional<std::vector<EMapGroupRow>>& maps, EMapIcon Icon::*state,
             const std::array<bool, kMaxSVR>& marks)
    {
        EMapSet& set = m_edit.m_set;
        if (maps)
            set.edit = *maps;
        for (const Icon& icon : m_icons)
            At(At(set.iconsEdit, icon.slot).channels, icon.channel) = icon.*state;
        for (int slot = 0; slot < kMaxSVR; ++slot)
            At(set.iconsEdit, slot).bChanged = At(marks, slot);
    }

    EMapEdit& m_edit;
    int m_run;
    bool m_done = false; // the step was carried out before it was kept
    std::optional<std::vector<EMapGroupRow>> m_mapsBefore;
    std::optional<std::vector<EMapGroupRow>> m_mapsAfter;
    std::vector<Icon> m_icons;
    std::array<bool, kMaxSVR> m_marksBefore{};
    std::array<bool, kMaxSVR> m_marksAfter{};
};

EMapEdit::EMapEdit(EMapSet& set, QObject* parent)
    : QObject(parent)
    , m_set(set)
{
    connect(&m_steps, &QUndoStack::indexChanged, this, &EMapEdit::changed);
}

// The steps that are left end without a word.
EMapEdit::~EMapEdit()
{
    m_steps.disconnect(this);
}

bool EMapEdit::step(const std::function<void(EMapSet& set)>& work, int run)
{
    const std::vector<EMapGroupRow> maps = m_set.edit;
    const auto icons = std::make_unique<EMapIconTable>(m_set.iconsEdit);
    work(m_set);
    auto made = std::make_unique<Step>(*this, maps, *icons, run);
    if (made->changesNothing())
        return false;
    m_steps.push(made.release());
    return true;
}

bool EMapEdit::isMarked() const
{
    const auto marked = [](const auto& record) { return record.bChanged; };
    return std::any_of(m_set.edit.begin(), m_set.edit.end(), marked) ||
           std::any_of(m_set.iconsEdit.begin(), m_set.iconsEdit.end(), marked);
}

void EMapEdit::begin()
{
    m_steps.clear();
}
