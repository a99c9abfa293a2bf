#pragma once

#include "tests/TestMain.h"
#include "tests/support/SimulatedSite.h"

#include <gmock/gmock.h>

// The recorders' side of a station over such a site, without a database.
class RecorderStation : public ::testing::Test, public SimulatedSite
{
protected:
    DetectContext context() { return {com, *recorders, accounts, events}; }

    TemporaryStation station;
    Form_COM com;
    Work work;
    std::unique_ptr<RecorderSet> recorders = std::make_unique<RecorderSet>();
    std::vector<NVRAccountRecord> accounts{{}};
    RecorderEvents events;
};
