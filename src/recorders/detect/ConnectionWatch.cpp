#include "recorders/detect/ConnectionWatch.h"

#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kSeconds = 2;
constexpr qint64 kMaxReply = 64 * 1024;
constexpr int kMostRefusals = 5; // each doubles the pause

enum Message
{
    kConnected = 896,
    kChecking = 957,
    kLoginRefused = 958,
    kNoAnswer = 959,
    kNotResolved = 960,
    kConnectionRefused = 961,
    kUnexpected = 962
};

// What a connection depends on, in one text.
QString KeyOf(const SVRRecord& record)
{
    if (record.sSVR_IP.isEmpty())
        return {};
    return QStringList{record.sSVR_IP, QString::number(record.iSVR_HttpPort), record.sSVR_UserName,
                       record.sSVR_Password}
        .join(u'\n');
}

} // namespace

ConnectionState ConnectionOf(const HttpReply& reply)
{
    using Kind = ConnectionState::Kind;
    switch (reply.failure) {
    case HttpFailure::None:
        break;
    case HttpFailure::NotResolved:
        return {Kind::Lost, kNotResolved};
    case HttpFailure::Refused:
        return {Kind::Lost, kConnectionRefused};
    case HttpFailure::TimedOut:
        return {Kind::Lost, kNoAnswer};
    default:
        return {Kind::Lost, kUnexpected};
    }
    if (reply.status == 401)
        return {Kind::Refused, kLoginRefused};
    if (!reply.succeeded() || !reply.body.toUpper().contains("OK"))
        return {Kind::Lost, kUnexpected};
    return {Kind::Connected, kConnected};
}

ConnectionWatch::ConnectionWatch(HttpClient& http, const RecorderSet& recorders, QObject* parent)
    : QObject(parent)
    , m_http(http)
    , m_recorders(recorders)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        QTimer& next = At(m_slots, slot).next;
        next.setSingleShot(true);
        connect(&next, &QTimer::timeout, this, [this, slot] { ask(slot); });
    }
}

ConnectionWatch::~ConnectionWatch()
{
    stop();
}

void ConnectionWatch::start()
{
    if (m_running)
        return;
    m_running = true;
    for (Watched& watched : m_slots)
        watched.address.clear();
    refresh();
}

void ConnectionWatch::stop()
{
    m_running = false;
    for (Watched& watched : m_slots) {
        watched.next.stop();
        m_http.cancel(std::exchange(watched.transfer, 0));
    }
}

void ConnectionWatch::refresh()
{
    for (int slot = 0; slot < kMaxSVR && m_running; ++slot) {
        Watched& watched = At(m_slots, slot);
        const QString key = KeyOf(At(m_recorders.SVRList, slot));
        if (key == watched.address)
            continue;
        watched.address = key;
        watched.refusals = 0;
        watched.next.stop();
        m_http.cancel(std::exchange(watched.transfer, 0));
        set(slot, key.isEmpty() ? ConnectionState() : ConnectionState{ConnectionState::Kind::Checking, kChecking});
        if (!key.isEmpty())
            ask(slot);
    }
}

ConnectionState ConnectionWatch::state(int slot) const
{
    return At(m_slots, slot).state;
}

void ConnectionWatch::ask(int slot)
{
    const SVRRecord& record = At(m_recorders.SVRList, slot);
    if (KeyOf(record) != At(m_slots, slot).address) {
        refresh();
        return;
    }
    HttpRequest request;
    request.address = record.sSVR_IP;
    request.port = record.iSVR_HttpPort;
    request.user = record.sSVR_UserName;
    request.password = record.sSVR_Password;
    request.target = "/getgid.cgi"_ba;
    request.seconds = kSeconds;
    request.maxBytes = kMaxReply;
    At(m_slots, slot).transfer = m_http.start(request, [this, slot](const HttpReply& reply) {
        Watched& watched = At(m_slots, slot);
        watched.transfer = 0;
        const ConnectionState state = ConnectionOf(reply);
        watched.refusals = state.kind == ConnectionState::Kind::Refused ? qMin(watched.refusals + 1, kMostRefusals) : 0;
        watched.next.start(m_interval << watched.refusals);
        set(slot, state);
    });
}

void ConnectionWatch::set(int slot, const ConnectionState& state)
{
    Watched& watched = At(m_slots, slot);
    if (watched.state == state)
        return;
    watched.state = state;
    emit changed(slot);
}
