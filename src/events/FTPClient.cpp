#include "events/FTPClient.h"

#include "app/log/StartWork.h"
#include "platform/FtpControl.h"

#include <QFile>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("FTPClient - SendFile");
constexpr int kMilliseconds = 30'000;

// Execute of a control on behalf of a work: true when it has ended in time.
class Execution final : public WorkAwaitable
{
public:
    Execution(Work& work, FtpControl& control, QString command)
        : WorkAwaitable(work)
        , m_control(control)
        , m_command(std::move(command))
    {
    }
    auto operator co_await() { return Awaiter<Execution>(*this); }
    bool result() const { return m_ended; }

protected:
    void begin() override
    {
        m_timer = std::make_unique<QTimer>();
        m_timer->setSingleShot(true);
        QObject::connect(m_timer.get(), &QTimer::timeout, m_timer.get(), [this] {
            abandon();
            finish();
        });
        // In a round of the loop of its own: the coroutine ends the control, which is the caller here.
        QObject::connect(&m_control, &FtpControl::Ended, m_timer.get(), [this] {
            m_ended = true;
            m_timer->start(0);
        });
        m_timer->start(m_control.Execute(m_command) ? kMilliseconds : 0);
    }
    void abandon() override
    {
        m_timer.release()->deleteLater(); // it may be the caller
        m_control.stop();
    }

private:
    FtpControl& m_control;
    QString m_command;
    std::unique_ptr<QTimer> m_timer;
    bool m_ended = false;
};

} // namespace

FTPClient::FTPClient(EventQueueBusy* busy, QObject* parent)
    : QObject(parent)
    , m_count(busy)
    , m_work(nullptr, Work::AtClose::GoesOn)
{
}

FTPClient::~FTPClient()
{
    m_leaving = true;
}

void FTPClient::setRemotePath(const QString& path)
{
    m_remotePath = path.trimmed();
    if (!m_remotePath.endsWith(u'/') && !m_remotePath.endsWith(u'\\'))
        m_remotePath += u'/';
}

bool FTPClient::enter()
{
    if (m_busy)
        return false;
    m_busy = true;
    m_taken = false;
    m_error.clear();
    m_step.clear();
    m_answer.clear();
    if (m_count)
        ++m_count->uploads;
    return true;
}

void FTPClient::leave()
{
    m_busy = false;
    if (m_count && m_count->uploads > 0)
        --m_count->uploads;
    FTPClient* const teller = AlsoNotify ? AlsoNotify : this;
    if (!m_leaving)
        emit teller->Completed(this, m_error.isEmpty());
}

bool FTPClient::SendFile()
{
    return enter() && StartWork(m_work, kSource, [this] { return upload(m_work, true); });
}

QCoro::Task<bool> FTPClient::SendFileNow(Work& work)
{
    if (!enter())
        co_return false;
    co_await upload(work, false);
    co_return m_error.isEmpty();
}

QCoro::Task<> FTPClient::upload(Work& work, bool deferred)
{
    Pause pause(work, 0); // nothing ends within the call that begins it
    co_await pause;
    {
        FtpControl control;
        control.host = ServerName;
        control.port = ServerPort;
        control.user = UserName;
        control.password = Password;
        const QString remote = m_remotePath + (SaveAs.isEmpty() ? FileNameOf(FilePath) : SaveAs);
        Execution execution(work, control, u"put \""_s + FilePath + u"\" " + remote);
        const bool ended = co_await execution;
        if (!ended)
            m_error = u"Error on sending file"_s;
        m_taken = control.succeeded();
        m_step = control.step();
        m_answer = control.answer();
    }
    if (deferred && !(StillNeeded && StillNeeded(FilePath)))
        QFile::remove(FilePath);
    leave();
}
