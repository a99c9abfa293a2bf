#pragma once

#include "device/bridge/Form_COM.h"
#include "tests/Await.h"
#include "tests/TestMain.h"
#include "tests/device/ScriptedServer.h"

#include <gmock/gmock.h>

// The bridges, and a device that answers what the test says.
class ScriptedDevice : public ::testing::Test
{
protected:
    using Answer = ScriptedServer::Answer;
    using Seen = ScriptedServer::Seen;

    DeviceAddress device(const QString& user = {}, const QString& password = {}) const
    {
        return {QStringLiteral("127.0.0.1"), server.serverPort(), user, password};
    }

    TemporaryStation station;
    ScriptedServer server;
    Form_COM com;
    Work work;
};
