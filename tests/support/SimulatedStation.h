#pragma once

#include "tests/store/StoreFixture.h"
#include "tests/support/SimulatedSite.h"
#include "tests/support/StartedStation.h"

// A whole station over its database, without windows.
class SimulatedStation : public StoreFixture, public SimulatedSite
{
protected:
    // Opens it, again if it was.
    void start()
    {
        desk.reset();
        desk = StartedStation();
    }
    // With these recorders in its first slots, saved.
    void start(std::vector<simulators::DeviceDescription> devices)
    {
        startSite(std::move(devices));
        start();
        ASSERT_TRUE(detectAll({com, desk->recorders, desk->accounts, desk->events}));
        FinishNewRecorders(*desk);
    }
    QString rows(const QString& select) { return Rows(*desk->databases.DBConn, select, u',', u' '); }
    Databases& opened() override { return desk->databases; }

    std::unique_ptr<Station> desk;
    Form_COM com;
};
