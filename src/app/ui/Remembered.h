#pragma once

#include "look/style/Theme.h"

class QWidget;

// What the main window keeps from one run to the next, for each user of the machine (see UserSettings.h).

// The colours: RIGGING_DESK_THEME first, then what the switch was set to, then the desktop's.
Scheme RememberedScheme();
void RememberScheme(Scheme scheme);

// Size and place of the window, on a screen that is there; 1280 by 800 at most when there is none yet.
void PlaceWindow(QWidget& window);
void RememberPlace(const QWidget& window);

// The page on show at the close, from 0; 0 when there was none.
int RememberedPage();
void RememberPage(int page);
