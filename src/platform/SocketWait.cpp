#include "platform/SocketWait.h"

SocketWait::SocketWait(Work& work, QTcpSocket& socket, double seconds, std::function<bool()> ready, bool progress)
    : WorkAwaitable(work)
    , m_socket(socket)
    , m_milliseconds(static_cast<int>(seconds * 1000))
    , m_ready(std::move(ready))
    , m_progress(progress)
{
}

void SocketWait::begin()
{
    m_watch = std::make_unique<QTimer>();
    QTimer* const watch = m_watch.get();
    watch->setSingleShot(true);
    QObject::connect(watch, &QTimer::timeout, watch, [this] {
        m_is = m_is || m_ready();
        m_socket.disconnect(m_watch.get());
        m_watch.release()->deleteLater(); // it is the caller
        finish();
    });
    const auto look = [this] { this->look(); };
    QObject::connect(&m_socket, &QTcpSocket::connected, watch, look);
    QObject::connect(&m_socket, &QTcpSocket::readyRead, watch, look);
    QObject::connect(&m_socket, &QTcpSocket::stateChanged, watch, look);
    QObject::connect(&m_socket, &QTcpSocket::bytesWritten, watch, [this] {
        if (m_progress)
            m_watch->start(m_milliseconds);
        this->look();
    });
    watch->start(m_milliseconds);
    this->look();
}

// The coroutine goes on in a round of the loop of its own: it may well end the socket, which is the caller here.
void SocketWait::look()
{
    m_is = m_ready();
    if (!m_is && m_socket.state() != QAbstractSocket::UnconnectedState)
        return;
    m_socket.disconnect(m_watch.get());
    m_watch->start(0);
}
