#include "app/CloseSequence.h"

#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/Closing.h"
#include "store/SystemLog.h"
#include "support/TimeSeconds.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int kOpenMainViewer = 508;
constexpr int kReopenMainViewer = 772;

bool MainViewerRuns()
{
    return QFileInfo::exists(StationPath(u"\\Running.txt"));
}

QString CountText(int items)
{
    return u'[' + QString::number(items) + u']';
}

} // namespace

void CloseSequence::start()
{
    if (m_state != 0)
        return;
    m_station.sendEvent.stopTimer();
    m_state = 1;
}

void CloseSequence::tick()
{
    Trapped("Form_Initial - TimerCloseSystem", [&] {
        switch (m_state) {
        case 1:
            m_state = -1; // boxes run a loop of their own: no second tick while they show
            Trapped("Form_Initial - TimerCloseSystem", [&] { askAndSave(); });
            if (m_state != 0)
                m_state = 2;
            break;
        case 2:
            m_state = 3;
            m_host.disableWindows();
            showPending();
            break;
        case 3:
            m_state = 5;
            SaveSystemLog(m_station.databases, TimeToUtcSeconds(Now()), CurrentUser(), u"Close Rigging Desk"_s);
            break;
        case 5:
            drainQueue();
            break;
        case 7:
            m_state = 6;
            CloseDatabases(m_station.databases);
            break;
        case 6:
            m_state = 8;
            m_host.closeProgressAndHide();
            break;
        case 8:
            m_state = 0;
            m_finished = true;
            m_host.unloadAll();
            break;
        default:
            break;
        }
    });
}

void CloseSequence::askAndSave()
{
    SetClosing(true);
    if (m_station.families.ExitCheck()) {
        const Leave answer = AskToLeave();
        if (answer == Leave::Stay) {
            SetClosing(false);
            m_station.sendEvent.startTimer();
            m_state = 0;
            m_host.closeCalledOff();
            return;
        }
        if (answer == Leave::Save) {
            SaveCheck(m_station);
            if (MainViewerRuns())
                Tell(Tone::Information, kReopenMainViewer);
        }
    }
    if (!MainViewerRuns())
        m_openMainViewer = Ask(kOpenMainViewer);
}

void CloseSequence::showPending()
{
    m_PendingEvents = m_station.sendEvent.pendingItems();
    m_host.showProgress(qMax(1, m_PendingEvents), m_PendingEvents > 0 ? CountText(m_PendingEvents) : QString());
}

// One item of each queue goes at a time, as long as more may be under way.
void CloseSequence::drainQueue()
{
    Form_SendEvent& queue = m_station.sendEvent;
    const bool cancelled = m_host.progressCancelled();
    if (cancelled)
        queue.cancel();
    for (int before = -1; before != queue.pendingItems();) {
        before = queue.pendingItems();
        queue.CheckNeedToSend();
    }
    const int remaining = queue.pendingItems();
    if (m_PendingEvents > 0 && !cancelled)
        m_host.updateProgress(m_PendingEvents - remaining, CountText(remaining));
    if (queue.sendsUnderWay() == 0 && remaining == 0 && (cancelled || queue.timerStopped()))
        m_state = 7;
}
