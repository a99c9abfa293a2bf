#pragma once

#include "app/Station.h"

// What the close sequence does to the windows.
class CloseHost
{
public:
    virtual ~CloseHost() = default;
    virtual void disableWindows() = 0;
    // The user stays: the question about unsaved changes was answered by Cancel.
    virtual void closeCalledOff() = 0;
    // Shows the progress window unless the login window is on show. `maximum` is at least 1; an empty `count` shows
    // none.
    virtual void showProgress(int maximum, const QString& count) = 0;
    virtual void updateProgress(int done, const QString& count) = 0;
    virtual bool progressCancelled() const = 0;
    virtual void closeProgressAndHide() = 0;
    virtual void unloadAll() = 0;
};

// Shut-down as a state machine; tick() does one state and is called every 500 ms. State 0 is idle, there is no state 4,
// and 7 comes before 6.
class CloseSequence
{
public:
    CloseSequence(Station& station, CloseHost& host)
        : m_station(station)
        , m_host(host)
    {
    }
    // The user has said Yes to leaving.
    void start();
    void tick();
    int m_CloseState() const { return m_state; }
    bool m_bOpenMainViewer() const { return m_openMainViewer; }
    bool finished() const { return m_finished; }

private:
    void askAndSave();
    void showPending();
    void drainQueue();

    Station& m_station;
    CloseHost& m_host;
    int m_state = 0;
    int m_PendingEvents = 0;
    bool m_openMainViewer = false;
    bool m_finished = false;
};
