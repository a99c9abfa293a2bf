#pragma once

#include "simulators/Site.h"

#include <QThread>
#include <functional>

namespace simulators {

// A site in a thread of its own, for callers whose own thread is busy or is being measured.
class SimulatorThread
{
public:
    // Starts the site; throws what Site::start throws.
    explicit SimulatorThread(const SiteDescription& description);
    ~SimulatorThread();
    SimulatorThread(const SimulatorThread&) = delete;
    SimulatorThread& operator=(const SimulatorThread&) = delete;

    // Runs `work` in the site's thread and waits for it. An exception of `work` comes back to the caller.
    void call(const std::function<void(Site&)>& work);

private:
    QThread m_thread;
    QObject* m_context = nullptr; // lives in the thread
    std::unique_ptr<Site> m_site;
};

} // namespace simulators
