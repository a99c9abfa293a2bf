#pragma once

#include "recorders/camera/CameraEdit.h"
#include "recorders/detect/NVRDetect.h"
#include "simulators/SimulatorThread.h"
#include "tests/Await.h"
#include "tests/TestMain.h"

#include <QDeadlineTimer>
#include <gmock/gmock.h>

// A recorder of one family in a thread, detected into slot 0 and open in the edit pair.
class CameraStation : public ::testing::Test
{
protected:
    using Family = simulators::Family;
    using Control = CameraEdit::Control;

    void start(Family family, int channels = 16, int cameras = 7)
    {
        simulators::DeviceDescription description;
        description.family = family;
        description.channels = channels;
        description.cameras = cameras;
        simulators::SiteDescription place;
        place.port = 0;
        place.discovery = false;
        place.devices = {description};
        m_family = family;
        recorders = std::make_unique<RecorderSet>();
        site = std::make_unique<simulators::SimulatorThread>(place);
        NVRDetectItem item;
        item.sName = QStringLiteral("Recorder");
        item.sUser = item.sPassword = QStringLiteral("admin");
        onDevice([&](simulators::Device& device) {
            item.sIP = device.address().toString();
            item.iPort = device.port();
        });
        const std::vector<NVRAccountRecord> accounts(1);
        ASSERT_TRUE(Await(DetectNVR(
            {com, *recorders, accounts, events}, item, [](const DetectStatus&) {}, work)));
        recorders->SVREdit = recorders->SVRWorkList[0];
        recorders->SVRProEdit = recorders->SVRProWorkList[0];
        page = std::make_unique<CameraEdit>(com, *recorders);
        onDevice([](simulators::Device& device) { device.clearLog(); });
    }

    void onDevice(const std::function<void(simulators::Device&)>& call)
    {
        site->call([&](simulators::Site& running) { call(running.device(0)); });
    }
    simulators::Camera deviceCamera(int number)
    {
        simulators::Camera camera;
        onDevice([&](simulators::Device& device) { camera = device.channel(number).camera; });
        return camera;
    }
    std::vector<simulators::LoggedRequest> requests()
    {
        std::vector<simulators::LoggedRequest> log;
        onDevice([&](simulators::Device& device) {
            log = device.log();
            device.clearLog();
        });
        return log;
    }
    int requestCount(const QByteArray& path)
    {
        int count = 0;
        onDevice([&](simulators::Device& device) { count = device.requestCount(path); });
        return count;
    }
    // Lets the event loop run until the condition holds.
    static void waitFor(const std::function<bool()>& done)
    {
        QDeadlineTimer deadline(10'000);
        while (!done() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_TRUE(done());
    }
    void fault(const simulators::Fault& fault)
    {
        onDevice([&](simulators::Device& device) {
            device.clearFaults();
            device.addFault(fault);
        });
    }

    // What the operator types for the made-up camera of that number.
    CameraEdit::Fields fieldsOf(int camera) const
    {
        const simulators::Camera made = simulators::exampleCamera(camera, m_family);
        return {made.name, made.ip, QString::number(made.httpPort), made.user, made.password};
    }
    const QStringList& entries(Control control) const { return page->choice(control).entries; }
    QString chosen(Control control) const { return page->choice(control).text(); }
    bool choose(Control control, const QString& entry)
    {
        const auto at = static_cast<int>(entries(control).indexOf(entry));
        page->choose(control, at);
        return at >= 0;
    }
    QByteArray log() const { return station.logs(); }

    TemporaryStation station;
    Form_COM com;
    Work work;
    std::unique_ptr<RecorderSet> recorders;
    RecorderEvents events;
    std::unique_ptr<simulators::SimulatorThread> site;
    std::unique_ptr<CameraEdit> page;

private:
    Family m_family = Family::Svr;
};
