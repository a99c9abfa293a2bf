#pragma once

#include "app/StartUp.h"
#include "tests/support/DeskFixture.h"
#include "tests/support/SimulatedSite.h"

// The desk with its main window over simulated recorders.
class SimulatedDesk : public DeskFixture, public SimulatedSite
{
protected:
    // Starts it with these recorders in its first slots, saved.
    void start(std::vector<simulators::DeviceDescription> devices)
    {
        startSite(std::move(devices));
        ASSERT_TRUE(DeskFixture::start());
        Form_COM com;
        ASSERT_TRUE(detectAll({com, recorders(), station->accounts, station->events}));
        FinishNewRecorders(*station);
    }
    RecorderSet& recorders() { return station->recorders; }
};
