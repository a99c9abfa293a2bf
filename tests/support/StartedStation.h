#pragma once

#include "app/StartUp.h"
#include "app/Station.h"

#include <memory>

// The station of the present folder after its start, without windows.
inline std::unique_ptr<Station> StartedStation()
{
    auto station = std::make_unique<Station>();
    UpdateWatcher watcher;
    OpenDatabases(*station);
    ReadDefaults(*station, watcher);
    LoadRecords(*station);
    station->basicDefault.edit = station->basicDefault.stored;
    station->families.InitialSetValue();
    station->Loading = false;
    return station;
}
