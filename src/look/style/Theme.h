#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <span>

class QApplication;
class QPalette;
class QWidget;

// The two colour schemes of the desk. Every colour is a named token with one value in each of them.
enum class Scheme
{
    Light,
    Dark
};

// Tells when another scheme (or another base font) was applied; palette and style sheet are in place by then.
class ThemeNotifier : public QObject
{
    Q_OBJECT
signals:
    void schemeChanged(Scheme scheme);
};

// The scheme to begin with: RIGGING_DESK_THEME (light or dark) when set, else dark when the desktop's palette writes
// lighter text than its windows are. Call it before ApplyTheme.
Scheme InitialScheme();
// Puts style, palette, base font and style sheet in place. May be called again at any time with the other scheme.
void ApplyTheme(QApplication& application, Scheme scheme);
// Puts families before the desk's own ones, for a language that wants them, in place of those put there before.
// Families that are not installed are passed over.
void SetBodyFamilies(const QStringList& leading);
Scheme CurrentScheme();
ThemeNotifier& ThemeEvents();

// The live scheme's colour of a token; invalid (and a warning on the console) for a name that does not exist.
QColor Token(QLatin1StringView name);
QColor Token(Scheme scheme, QLatin1StringView name);
// All token names, for checks and for the style sheet's @name@ replacement.
std::span<const QLatin1StringView> TokenNames();

// The type scale, relative to the desktop's own font size: body 1, page title 1.35, card title 1.08, table head 0.92.
QFont DeskFont(qreal factor = 1.0, bool bold = false);
// For addresses, times and other columns of figures: digits of one width.
QFont MonoFont(qreal factor = 0.96);
// Row height of tables in pixels: 34 at the usual font size, more where the desktop asks for larger text.
int TableRowHeight();

// Says what a widget is to the style: button kinds are "primary", "danger" and "quiet"; label roles are "title",
// "cardTitle", "muted", "hint", "mono", "bad", "warning" and "ok"; frame roles are "card", "panel",
// "warningPanel" and "actionBar".
// Both are dynamic properties (`kind`, `role`) that a .ui file can set as well.
void SetKind(QWidget* widget, QLatin1StringView kind);
void SetRole(QWidget* widget, QLatin1StringView role);
