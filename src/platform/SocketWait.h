#pragma once

#include "platform/Work.h"

#include <QTcpSocket>
#include <QTimer>

// What a coroutine waits for at a socket: SocketWait wait(work, socket, seconds, ready); const bool is = co_await wait;
// True once `ready` holds, which is looked at whenever something comes of the socket; false when the connection ends
// first, when the seconds are over or the work is stopped. With `progress` the seconds begin anew with all that is
// sent.
class SocketWait final : public WorkAwaitable
{
public:
    SocketWait(Work& work, QTcpSocket& socket, double seconds, std::function<bool()> ready, bool progress = false);
    auto operator co_await() { return Awaiter<SocketWait>(*this); }
    bool result() const { return m_is; }

protected:
    void begin() override;
    void abandon() override { m_watch.reset(); }

private:
    void look();

    QTcpSocket& m_socket;
    int m_milliseconds;
    std::function<bool()> m_ready;
    bool m_progress;
    bool m_is = false;
    std::unique_ptr<QTimer> m_watch; // gives up; the connections to the socket go with it
};
