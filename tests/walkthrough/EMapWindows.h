#pragma once

#include "tests/walkthrough/WindowTour.h"

// The page of the maps over the recorders that the station has.
void EMapWindows(WindowTour& tour);
