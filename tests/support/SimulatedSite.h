#pragma once

#include "recorders/detect/NVRDetect.h"
#include "simulators/SimulatorThread.h"
#include "tests/Await.h"

// A simulated recorder; its first channels carry cameras.
inline simulators::DeviceDescription Recorder(simulators::Family family, int channels = 16, int cameras = 7)
{
    simulators::DeviceDescription device;
    device.family = family;
    device.channels = channels;
    device.cameras = cameras;
    return device;
}

// Simulated devices in a thread of their own, as a part of a fixture. They count from 0 and take admin/admin.
class SimulatedSite
{
public:
    using Family = simulators::Family;
    using FaultKind = simulators::FaultKind;

    // Starts them, in place of those before. Without names they are "Recorder 1" and so on. `searched`: searches find
    // them, by addresses that begin with the process's own network.
    void startSite(std::vector<simulators::DeviceDescription> devices, bool searched = false)
    {
        simulators::SiteDescription place;
        place.port = 0;
        place.discovery = searched;
        if (searched)
            place.baseAddress = simulators::ownNetwork() + u'1';
        for (std::size_t i = 0; i < devices.size(); ++i) {
            if (devices[i].name.isEmpty())
                devices[i].name = QStringLiteral("Recorder %1").arg(i + 1);
        }
        place.devices = std::move(devices);
        site = std::make_unique<simulators::SimulatorThread>(place);
    }
    // Carries out `call` with a device in the site's thread; gives what it gives.
    template <class Call>
    auto onDevice(int device, Call&& call)
    {
        using Result = std::invoke_result_t<Call, simulators::Device&>;
        if constexpr (std::is_void_v<Result>) {
            site->call([&](simulators::Site& running) { call(running.device(device)); });
        } else {
            Result result{};
            site->call([&](simulators::Site& running) { result = call(running.device(device)); });
            return result;
        }
    }
    int devices()
    {
        int count = 0;
        site->call([&](simulators::Site& running) { count = running.count(); });
        return count;
    }
    void fault(int device, const simulators::Fault& wanted)
    {
        onDevice(device, [&](simulators::Device& running) { running.addFault(wanted); });
    }
    // The only one that it has.
    void onlyFault(int device, const simulators::Fault& wanted)
    {
        onDevice(device, [](simulators::Device& running) { running.clearFaults(); });
        fault(device, wanted);
    }
    int requests(int device, const QByteArray& path)
    {
        return onDevice(device, [&](simulators::Device& running) { return running.requestCount(path); });
    }
    // Channels count from 1, as on the wire.
    simulators::Camera camera(int device, int channel)
    {
        return onDevice(device, [&](simulators::Device& running) { return running.channel(channel).camera; });
    }

    // What detects a device, and a record that has its address and login.
    NVRDetectItem item(int device, const QString& user = QStringLiteral("admin"),
                       const QString& password = QStringLiteral("admin"))
    {
        NVRDetectItem made;
        onDevice(device, [&](simulators::Device& running) {
            made.sName = running.state().name;
            made.sIP = running.address().toString();
            made.iPort = running.port();
        });
        made.sUser = user;
        made.sPassword = password;
        return made;
    }
    void place(SVRRecord& record, int device)
    {
        const NVRDetectItem made = item(device);
        record.sSVR_IP = made.sIP;
        record.iSVR_HttpPort = made.iPort;
        record.sSVR_UserName = made.sUser;
        record.sSVR_Password = made.sPassword;
    }
    // Detects every device into the working slot of its number. False when one is not detected.
    bool detectAll(const DetectContext& station)
    {
        Work work;
        bool done = true;
        for (int device = 0; device < devices() && done; ++device) {
            NVRDetectItem wanted = item(device);
            wanted.iSlot = static_cast<qint16>(device);
            done = Await(DetectNVR(
                station, wanted, [](const DetectStatus&) {}, work));
        }
        return done;
    }

    std::unique_ptr<simulators::SimulatorThread> site;
};
