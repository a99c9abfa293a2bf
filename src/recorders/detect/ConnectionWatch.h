#pragma once

#include "platform/HttpClient.h"
#include "recorders/data/RecorderSet.h"

#include <QObject>
#include <QTimer>
#include <array>

// How the station gets on with a recorder.
struct ConnectionState
{
    enum class Kind
    {
        None, // not asked
        Checking,
        Connected,
        Refused, // the recorder answers and does not take the login
        Lost     // no useful answer
    } kind = Kind::None;
    int message = 0; // message number that says it in words, 0 for None
    friend bool operator==(const ConnectionState&, const ConnectionState&) = default;
};

// What a reply to /getgid.cgi says.
ConnectionState ConnectionOf(const HttpReply& reply);

// Asks every recorder of the stored generation whether it answers, again and again while it runs. Nothing waits for it:
// requests are asynchronous and one recorder has one at a time, of two seconds at most. A recorder that refuses the
// login is asked ever more rarely, up to 32 times the interval: many lock an account after some wrong passwords.
class ConnectionWatch : public QObject
{
    Q_OBJECT

public:
    ConnectionWatch(HttpClient& http, const RecorderSet& recorders, QObject* parent = nullptr);
    ~ConnectionWatch() override;

    void start(); // asks at once
    void stop();  // requests under way end; the states stay until the next start
    bool running() const { return m_running; }
    // The stored recorders may have changed: a slot with another address, port or login begins anew, a free one falls
    // back to None.
    void refresh();
    ConnectionState state(int slot) const;                            // from 0
    void setInterval(int milliseconds) { m_interval = milliseconds; } // between an answer and the next question

signals:
    void changed(int slot);

private:
    struct Watched
    {
        QString address; // with port and login, as asked; empty: nothing to ask
        quint64 transfer = 0;
        QTimer next;
        ConnectionState state;
        int refusals = 0; // one after the other
    };
    void ask(int slot);
    void set(int slot, const ConnectionState& state);

    HttpClient& m_http;
    const RecorderSet& m_recorders;
    std::array<Watched, kMaxSVR> m_slots;
    bool m_running = false;
    int m_interval = 10'000;
};
