#pragma once

#include "emap/EMapNodes.h"

#include <QObject>
#include <QUndoStack>
#include <functional>
#include <optional>

// What is done to the tree of maps. All work on the edit copies and mark what they touch; what is refused is told as a
// message number, 0 for what may be done.

// Whether a group or sub-map may have a name. `self`: place of the map that has it now, -1 for a new one.
int NameRefusal(const EMapSet& set, const QString& name, int self = -1);
// Adds a group (`above` is the root) or a sub-map of a recorder's map and gives its place in the list.
int AddMap(EMapSet& set, int above, const QString& name);
// Renames a group or sub-map; what names it as its parent follows.
void RenameMap(EMapSet& set, int map, const QString& name);
// Removes a group or sub-map. Recorders' maps of a group go under the root, cameras of a sub-map are on no map.
void RemoveMap(EMapSet& set, int map);

// Whether a node may be moved at all, and whether it may be moved below another one.
int DragRefusal(const EMapNode& what);
int MoveRefusal(const EMapSet& set, const EMapNode& what, const EMapNode& target);
// Moves a recorder's map into a group or under the root, a camera to a map (position 0) or off all maps.
void MoveNode(EMapSet& set, const EMapNode& what, const EMapNode& target);

// The edit copies with undo and redo. Every change of the E-Map page is a step of it.
class EMapEdit : public QObject
{
    Q_OBJECT

public:
    explicit EMapEdit(EMapSet& set, QObject* parent = nullptr);
    ~EMapEdit() override;

    const EMapSet& set() const { return m_set; }
    // Carries out `work` as one step; a step that changes nothing is none. Consecutive steps of one `run` (from 0) are
    // undone together. True when something changed.
    bool step(const std::function<void(EMapSet& set)>& work, int run = -1);
    // Whether anything is marked as changed.
    bool isMarked() const;
    // Forgets the steps: the copies were saved, put back or changed from elsewhere.
    void begin();
    QUndoStack& steps() { return m_steps; }

signals:
    void changed(); // by a step, its undo or redo

private:
    class Step;

    EMapSet& m_set;
    QUndoStack m_steps;
};
