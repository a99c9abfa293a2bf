#include "simulators/SimulatorThread.h"

#include <exception>

namespace simulators {

namespace {

void runIn(QObject* context, const std::function<void()>& work)
{
    std::exception_ptr error;
    QMetaObject::invokeMethod(
        context,
        [&] {
            try {
                work();
            } catch (...) {
                error = std::current_exception();
            }
        },
        Qt::BlockingQueuedConnection);
    if (error)
        std::rethrow_exception(error);
}

} // namespace

SimulatorThread::SimulatorThread(const SiteDescription& description)
{
    m_context = new QObject;
    m_context->moveToThread(&m_thread);
    m_thread.start();
    try {
        runIn(m_context, [&] {
            m_site = std::make_unique<Site>(description);
            m_site->start();
        });
    } catch (...) {
        runIn(m_context, [&] { m_site.reset(); });
        m_thread.quit();
        m_thread.wait();
        delete m_context;
        throw;
    }
}

SimulatorThread::~SimulatorThread()
{
    runIn(m_context, [&] { m_site.reset(); });
    m_thread.quit();
    m_thread.wait();
    delete m_context;
}

void SimulatorThread::call(const std::function<void(Site&)>& work)
{
    runIn(m_context, [&] { work(*m_site); });
}

} // namespace simulators
