#pragma once

#include <QString>
#include <functional>

class Form_Initial;
class QWidget;
struct Station;

// Shows the desk's pages and dialogs one after another, in the live language and each with something in it, and hands
// them to `visit` under a name of their own ("page1", "wizard-1", "user" …). The desk must be on show with a station
// that holds neither recorders nor users; so it is left. A new window is one line in DeskWindows.cpp.
using VisitWindow = std::function<void(const QString& name, QWidget& window)>;
void VisitWindows(Form_Initial& desk, Station& station, const VisitWindow& visit);
