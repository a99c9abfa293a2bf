#pragma once

#include "screens/ScreenSet.h"

// The rules of which program opens on which screen. All work on the edit copies and mark what they change.

// A program that stands on one screen of the station.
struct ScreenProgram
{
    QLatin1String key; // of its node in the tree, its column in ScreenLayout
    int caption;       // message number
    QLatin1String icon;
    qint16 ScreenLayoutTableRow::*screen;
    qint16 DefaultStartTableRow::*mark; // above 0: it starts with the station
    bool firstScreenOnly = false;
};
// In the order of the tree.
inline constexpr std::array kScreenPrograms{
    ScreenProgram{QLatin1String("Form_MainViewer"), 45, QLatin1String("play"), &ScreenLayoutTableRow::Form_MainViewer,
                  &DefaultStartTableRow::iForm_MainViewer, true},
    ScreenProgram{QLatin1String("Form_EventMonitor"), 101, QLatin1String("event"),
                  &ScreenLayoutTableRow::Form_EventMonitor, &DefaultStartTableRow::iForm_EventMonitor},
    ScreenProgram{QLatin1String("Form_EMapView"), 103, QLatin1String("emap"), &ScreenLayoutTableRow::Form_EMapView,
                  &DefaultStartTableRow::iForm_EMapView},
    ScreenProgram{QLatin1String("Form_PlayBack"), 102, QLatin1String("clock"), &ScreenLayoutTableRow::Form_PlayBack,
                  &DefaultStartTableRow::iForm_PlayBack},
    ScreenProgram{QLatin1String("Form_Console"), 749, QLatin1String("videowall"), &ScreenLayoutTableRow::Form_Console,
                  &DefaultStartTableRow::iForm_Console, true},
    ScreenProgram{QLatin1String("Form_SVDConsole"), 839, QLatin1String("svd"), &ScreenLayoutTableRow::Form_SVDConsole,
                  &DefaultStartTableRow::iForm_SVDConsole}};

// What stands on a screen: a program (place in kScreenPrograms) or a full-screen surface (from 0); -1 where it is not.
struct ScreenItem
{
    int program = -1;
    int surface = -1;
    bool isNone() const { return program < 0 && surface < 0; }
    bool operator==(const ScreenItem&) const = default;
};
// The item of a node's key ("Form_EMapView", "FS0"); none for the key of a screen, a wall or of nothing.
ScreenItem ItemOfKey(const QString& key);
QString KeyOf(const ScreenItem& item);
inline constexpr QLatin1String kScreenKey("Screen-"); // and the screen's number
inline constexpr QLatin1String kWallKey("VW");        // and the number of the screen that the wall has
inline constexpr QLatin1String kSurfaceKey("FS");     // and the surface, from 0
// The screen of a node's key "Screen-n", 0 when it is none of 1 to `monitors`.
qint16 ScreenOfKey(const QString& key, qint16 monitors);

// All programs, then all surfaces.
std::vector<ScreenItem> AllItems(const ScreenLayoutRow& layout);
qint16 ScreenOf(const ScreenLayoutRow& layout, const ScreenItem& item);
// The screen under which it is shown: the first one for what stands on a wall's screen.
qint16 ShownScreenOf(const ScreenLayoutRow& layout, const ScreenItem& item);
bool Starts(const DefaultStartRow& start, const ScreenItem& item);
// The wall (from 0) that has a screen, -1 when none has it.
int WallOnScreen(const ScreenLayoutRow& layout, qint16 screen);

// Something starts on screen 1.
bool CheckFristScrHasForm(const ScreenLayoutRow& layout, const DefaultStartRow& start);
// Where nothing starts on screen 1 the live viewer does.
void KeepFirstScreen(ScreenSet& set);

enum class DropAnswer
{
    Allowed,
    Nothing,         // what is dragged is no program, or no screen is there
    FirstScreenOnly, // the live viewer and the console of the walls never leave screen 1
    WallScreen
};
// Whether the item may be put on that screen (0: none), be it its own.
DropAnswer CanMove(const ScreenSet& set, const ScreenItem& item, qint16 screen);
// Puts it there; what moves starts no more. False when it stood there already or may not.
bool MoveToScreen(ScreenSet& set, const ScreenItem& item, qint16 screen);

// The first screen from 2 on that no wall has, -1 when there is none.
qint16 GetNewScreenID(const ScreenLayoutRow& layout, qint16 monitors);
// Moves everything off a screen that a wall has taken, to screen 1, where it does not start. True when anything moved.
bool CheckScreenLayout(ScreenSet& set, qint16 screen);

// A wall (from 0) gets the next free screen: it, or kNoScreen when there is none. A wall that was never on gets the
// usual split and its column of the board. `moved` tells whether programs had to leave that screen.
qint16 SwitchWallOn(ScreenSet& set, int wall, bool& moved);
// Frees the wall's screen and empties its panes. Without any wall its console does not start.
void SwitchWallOff(ScreenSet& set, int wall);
// Walls that are on.
int WallsOn(const ScreenLayoutRow& layout);
