#pragma once

#include "recorders/camera/CameraEdit.h"
#include "tests/support/RecorderStation.h"

// A recorder of one family, detected into slot 0 and open in the edit pair.
class CameraStation : public RecorderStation
{
protected:
    using Control = CameraEdit::Control;
    static constexpr Family kFamilies[] = {Family::Svr, Family::OmluPro, Family::Txr632};

    void start(Family family, int channels = 16, int cameras = 7)
    {
        m_family = family;
        *recorders = RecorderSet();
        startSite({Recorder(family, channels, cameras)});
        ASSERT_TRUE(detectAll(context()));
        recorders->SVREdit = recorders->SVRWorkList[0];
        recorders->SVRProEdit = recorders->SVRProWorkList[0];
        page = std::make_unique<CameraEdit>(com, *recorders);
        onDevice([](simulators::Device& device) { device.clearLog(); });
    }

    using SimulatedSite::fault;
    using SimulatedSite::onDevice;
    using SimulatedSite::requests;
    void onDevice(const std::function<void(simulators::Device&)>& call) { onDevice(0, call); }
    simulators::Camera deviceCamera(int number) { return camera(0, number); }
    std::vector<simulators::LoggedRequest> requests()
    {
        std::vector<simulators::LoggedRequest> log;
        onDevice([&](simulators::Device& device) {
            log = device.log();
            device.clearLog();
        });
        return log;
    }
    void fault(const simulators::Fault& fault) { onlyFault(0, fault); }

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

    std::unique_ptr<CameraEdit> page;

private:
    Family m_family = Family::Svr;
};
