#include "simulators/Device.h"

#include "simulators/Commands.h"
#include "simulators/StateJson.h"

#include <QCryptographicHash>
#include <QHash>
#include <QJsonDocument>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr auto kNonce = "5f0c2b7a91d34e68";

QByteArray md5(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

// The directives of a Digest header (RFC 7616), quotes taken off.
QHash<QByteArray, QByteArray> directivesOf(const QByteArray& header)
{
    QHash<QByteArray, QByteArray> out;
    qsizetype at = 0;
    while (at < header.size()) {
        const qsizetype equals = header.indexOf('=', at);
        if (equals < 0)
            break;
        const QByteArray key = header.mid(at, equals - at).trimmed().toLower();
        const bool quoted = equals + 1 < header.size() && header.at(equals + 1) == '"';
        const qsizetype from = equals + (quoted ? 2 : 1);
        qsizetype to = header.indexOf(quoted ? '"' : ',', from);
        if (to < 0)
            to = header.size();
        out.insert(key, header.mid(from, to - from).trimmed());
        const qsizetype comma = header.indexOf(',', to);
        at = comma < 0 ? header.size() : comma + 1;
    }
    return out;
}

HttpReply text(int status, const QByteArray& body)
{
    HttpReply reply;
    reply.status = status;
    reply.body = body;
    return reply;
}

} // namespace

QString familyName(Family family)
{
    switch (family) {
    case Family::Svr:
        return u"SVR"_s;
    case Family::OmluPro:
        return u"OmluPro"_s;
    case Family::Txr632:
        return u"TXR632"_s;
    case Family::Svd:
        return u"SVD"_s;
    }
    return {};
}

Device::Device(DeviceProfile profile, DeviceState state, QObject* parent)
    : QObject(parent)
    , m_profile(std::move(profile))
    , m_state(std::move(state))
    , m_saved(m_state)
    , m_server([this](const HttpRequest& request) { return answer(request); }, this)
{
}

bool Device::start(const QHostAddress& address, quint16 port)
{
    m_address = address;
    if (!m_server.listen(address, port))
        return false;
    m_port = m_server.port();
    return true;
}

void Device::stop()
{
    m_server.close();
}

void Device::reboot()
{
    m_state = m_saved;
}

void Device::saveAll()
{
    m_saved = m_state;
}

QByteArray Device::hostAndPort() const
{
    return m_address.toString().toUtf8() + ':' + QByteArray::number(m_port);
}

int Device::requestCount(const QByteArray& path, int cmd) const
{
    return static_cast<int>(std::count_if(m_log.begin(), m_log.end(), [&](const LoggedRequest& request) {
        return request.target.startsWith(path) && (cmd == 0 || request.cmd == cmd);
    }));
}

HttpReply Device::answer(const HttpRequest& request)
{
    const QByteArray path = request.path();
    if (path.startsWith("/sim/"))
        return control(request);

    LoggedRequest entry{request.method,
                        request.target,
                        request.body,
                        request.header("Authorization"),
                        request.header("Content-Type"),
                        {},
                        path == "/cmd.cgi" ? commandIdOf(request.body) : 0,
                        0};
    const Account* account = login(request);
    if (account)
        entry.user = account->user;
    const std::optional<Fault> fault = m_faults.take(path, entry.cmd);
    HttpReply reply;
    if (!account || (fault && fault->kind == FaultKind::Unauthorized))
        reply = challenge();
    else if (fault && fault->kind == FaultKind::Status)
        reply = text(static_cast<int>(fault->amount), "The request failed.\n");
    else if (fault && fault->kind == FaultKind::Body)
        reply = text(200, fault->text);
    else {
        int refusal = 0;
        if (fault && fault->kind == FaultKind::Refuse)
            refusal = fault->amount ? static_cast<int>(fault->amount) : kRetNoRight;
        reply = dispatch(request, *account, entry.cmd, refusal);
    }
    reply.fault = fault;
    entry.status = reply.status;
    m_log.push_back(std::move(entry));
    return reply;
}

HttpReply Device::dispatch(const HttpRequest& request, const Account& account, int cmd, int refusal)
{
    CommandContext context{m_profile, m_state, m_saved, account, refusal, m_address.toString(), m_port};
    if (request.path() == "/cmd.cgi") {
        if (m_profile.family == Family::Svr)
            return text(404, "Not found\n");
        if (request.method != "POST")
            return text(405, "POST only\n");
        if (!request.header("Content-Type").startsWith("application/x-www-form-urlencoded") || cmd == 0)
            return text(400, "Bad request\n");
        HttpReply reply = text(200, runCommand(context, request.body));
        reply.contentType = "text/xml; charset=utf-8";
        return reply;
    }
    if (request.method != "GET" && request.method != "HEAD")
        return text(405, "GET only\n");
    const std::optional<HttpReply> reply = runCgi(context, request.path(), Query(request.query()));
    return reply.value_or(text(404, "Not found\n"));
}

const Account* Device::login(const HttpRequest& request) const
{
    const QByteArray header = request.header("Authorization");
    const bool basic = m_profile.auth == AuthMode::Basic && header.left(6).toLower() == "basic ";
    const bool digest = m_profile.auth == AuthMode::Digest && header.left(7).toLower() == "digest ";
    if (!basic && !digest)
        return nullptr;
    if (basic) {
        const QByteArray pair = QByteArray::fromBase64(header.mid(6).trimmed());
        const qsizetype colon = pair.indexOf(':');
        for (const Account& account : m_profile.accounts)
            if (colon >= 0 && pair.left(colon) == account.user.toUtf8() &&
                pair.mid(colon + 1) == account.password.toUtf8())
                return &account;
        return nullptr;
    }
    const auto given = directivesOf(header.mid(7));
    if (given.value("nonce") != kNonce || given.value("uri") != request.target)
        return nullptr;
    for (const Account& account : m_profile.accounts) {
        if (given.value("username") != account.user.toUtf8())
            continue;
        const QByteArray first =
            md5(account.user.toUtf8() + ":" + given.value("realm") + ":" + account.password.toUtf8());
        const QByteArray second = md5(request.method + ":" + request.target);
        const QByteArray middle = given.contains("qop")
                                      ? given.value("nc") + ":" + given.value("cnonce") + ":" + given.value("qop") + ":"
                                      : QByteArray();
        if (given.value("response") == md5(first + ":" + kNonce + ":" + middle + second))
            return &account;
    }
    return nullptr;
}

HttpReply Device::challenge() const
{
    HttpReply reply = text(401, "<html><head><title>401 Unauthorized</title></head><body>Login needed</body></html>\n");
    reply.contentType = "text/html";
    const QByteArray realm = "realm=\"" + m_profile.modelName.toUtf8() + '"';
    if (m_profile.auth == AuthMode::Basic)
        reply.extraHeaders.append("WWW-Authenticate: Basic " + realm);
    else
        reply.extraHeaders.append("WWW-Authenticate: Digest " + realm + ", nonce=\"" + kNonce +
                                  "\", algorithm=MD5, qop=\"auth\"");
    return reply;
}

HttpReply Device::control(const HttpRequest& request)
{
    const QByteArray path = request.path();
    const Query query(request.query());
    HttpReply reply = text(200, "OK\n");
    if (path == "/sim/fault") {
        const std::optional<Fault> fault = faultFromQuery(query);
        if (!fault)
            return text(400, "Unknown kind\n");
        addFault(*fault);
    } else if (path == "/sim/clear") {
        clearFaults();
    } else if (path == "/sim/reboot") {
        reboot();
    } else if (path == "/sim/refuse") {
        m_state.refusedEventChannels.clear();
        for (const QString& n : query.value("channels").split(u',', Qt::SkipEmptyParts))
            m_state.refusedEventChannels.insert(n.toInt());
    } else if (path == "/sim/state" || path == "/sim/log") {
        reply.contentType = "application/json";
        reply.body = QJsonDocument(path == "/sim/state" ? stateJson(*this) : logJson(*this)).toJson();
        if (path == "/sim/log" && query.number("clear"))
            clearLog();
    } else {
        return text(404, "Not found\n");
    }
    return reply;
}

} // namespace simulators
