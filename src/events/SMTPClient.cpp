#include "events/SMTPClient.h"

#include "app/log/StartWork.h"
#include "platform/Clock.h"
#include "platform/OneLine.h"
#include "platform/SocketWait.h"
#include "support/TimeSeconds.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QNetworkProxy>
#include <QStringEncoder>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("SMTPClient - SendMail");
constexpr QByteArrayView kBoundary("=====================_11016801==_");
constexpr double kConnectSeconds = 10;
constexpr double kReplySeconds = 5;
constexpr double kStallSeconds = 30; // without the server taking a byte of the mail
constexpr qsizetype kMostReply = 64 * 1024;
constexpr qint64 kMostUnsent = 256 * 1024;
constexpr qsizetype kLineBytes = 45; // 60 characters in base64
constexpr qsizetype kPieceBytes = 1024 * kLineBytes;
constexpr qsizetype kShownAnswer = 500;

QString BareAddress(const QString& text)
{
    const qsizetype open = text.indexOf(u'<');
    const qsizetype end = text.indexOf(u'>', open + 1);
    return open < 0 || end < 0 ? text : text.sliced(open + 1, end - open - 1);
}

QString DisplayName(const QString& text)
{
    const qsizetype open = text.indexOf(u'<');
    return open < 0 ? QString() : text.left(open).trimmed();
}

QByteArray AddressLine(QLatin1String field, const QString& address, const QString& name)
{
    QString quoted = OneLine(name);
    quoted.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    const QString line = quoted.isEmpty() ? OneLine(address) : u'"' + quoted + u"\" <" + OneLine(address) + u'>';
    return (field + line + u"\r\n").toUtf8();
}

// "Date: Mon, 16 Nov 2026 08:05:03 (UTC+8.0)"; half an hour is ".5", and UTC itself "-.0".
QByteArray DateLine()
{
    const double hours = GetZoneOffsetSeconds() / 3600.0;
    QString offset = QString::number(qAbs(hours), 'f', 1);
    if (offset.startsWith(u'0'))
        offset.remove(0, 1);
    return (u"Date: "_s + QLocale::c().toString(Now(), u"ddd, dd MMM yyyy hh:mm:ss") + u" (UTC" +
            (hours > 0 ? u'+' : u'-') + offset + u")\r\n")
        .toLatin1();
}

QByteArray TextPart(const char* kind, const QString& charset, const QByteArray& text)
{
    return "--" + kBoundary.toByteArray() + "\r\nContent-Type: text/" + kind + "; charset=\"" +
           OneLine(charset).toUtf8() + "\"\r\n\r\n" + text + "\r\n\r\n";
}

// Of a login: one byte a character where all of them have one, else UTF-8.
QByteArray Credential(const QString& text)
{
    const bool narrow = std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 256; });
    return (narrow ? text.toLatin1() : text.toUtf8()).toBase64();
}

// A reply of several lines has a "-" behind the number of all but its last one (RFC 5321, 4.2.1).
bool IsWhole(const QByteArray& reply)
{
    for (qsizetype begin = 0, end = 0; (end = reply.indexOf('\n', begin)) >= 0; begin = end + 1) {
        const auto digit = [&](qsizetype at) { return reply[begin + at] >= '0' && reply[begin + at] <= '9'; };
        const bool goesOn = end - begin > 3 && digit(0) && digit(1) && digit(2) && reply[begin + 3] == '-';
        if (!goesOn)
            return true;
    }
    return false;
}

} // namespace

QByteArray Base64Lines(const QByteArray& bytes)
{
    constexpr qsizetype kLine = kLineBytes / 3 * 4;
    const QByteArray text = bytes.toBase64();
    QByteArray lines;
    lines.reserve(text.size() + (text.size() / kLine + 1) * 2);
    for (qsizetype at = 0; at < text.size(); at += kLine) {
        lines.append(text.constData() + at, qMin(kLine, text.size() - at));
        lines.append("\r\n", 2);
    }
    return lines;
}

// One connection to a server, from its begin to its end.
struct SMTPClient::Session
{
    Session(SMTPClient& owner, Work& its)
        : client(owner)
        , work(its)
    {
        socket.setProxy(QNetworkProxy::NoProxy);
        socket.setReadBufferSize(kMostReply);
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    }

    SMTPClient& client;
    Work& work;
    QTcpSocket socket;
    QByteArray reply; // what came and is not used up

    void read()
    {
        if (const qint64 room = kMostReply - reply.size(); room > 0 && socket.isOpen())
            reply += socket.read(room);
    }

    void write(const QByteArray& bytes)
    {
        if (socket.state() == QAbstractSocket::ConnectedState)
            socket.write(bytes);
    }

    // Waits for a whole reply and looks whether it begins with `code`: then it is used up.
    QCoro::Task<bool> WaitReply(QByteArray code)
    {
        SocketWait wait(work, socket, kReplySeconds, [this] {
            read();
            return IsWhole(reply) || reply.size() >= kMostReply;
        });
        const bool came = co_await wait;
        const bool ended = socket.state() != QAbstractSocket::ConnectedState && !work.stopped();
        const bool expected = (came || ended) && reply.size() < kMostReply && reply.startsWith(code);
        if (expected)
            reply.clear();
        co_return expected;
    }
    QCoro::Task<bool> say(QByteArray line, QByteArray code)
    {
        write(line + "\r\n");
        return WaitReply(code);
    }
    // A step that is failed by any other answer.
    QCoro::Task<bool> step(QByteArray line, QByteArray code, QString failure)
    {
        const bool done = co_await say(line, code);
        co_return done || fail(failure);
    }
    // "mail from" and "rcpt to": a server that wants brackets round the address gets them.
    QCoro::Task<bool> address(QByteArray command, QString address, QString failure)
    {
        const QByteArray bare = OneLine(address).toUtf8();
        const bool done = co_await say(command + bare, "250");
        if (done)
            co_return true;
        const QByteArray code = reply.left(3);
        if (code != "501" && code != "553" && code != "555")
            co_return fail(failure);
        reply.clear();
        co_return co_await step(command + '<' + bare + '>', "250", failure);
    }
    // Hands over a piece of the mail and waits until the connection has room for the next one.
    QCoro::Task<bool> put(QByteArray bytes, qint64 unsent = kMostUnsent)
    {
        write(bytes);
        if (socket.bytesToWrite() <= unsent)
            co_return true;
        SocketWait wait(
            work, socket, kStallSeconds,
            [this, unsent] {
                read();
                return socket.bytesToWrite() <= unsent;
            },
            true);
        co_return co_await wait;
    }
    bool fail(const QString& step)
    {
        client.m_failure = step;
        const QByteArray line = reply.left(kShownAnswer).replace('\0', ' ').simplified();
        client.m_answer = QString::fromUtf8(line);
        if (line.isEmpty() && socket.error() != QAbstractSocket::UnknownSocketError)
            client.m_answer = socket.errorString();
        return false;
    }
};

SMTPClient::SMTPClient(EventQueueBusy* busy, QObject* parent)
    : QObject(parent)
    , m_count(busy)
    , m_work(nullptr, Work::AtClose::GoesOn)
{
}

SMTPClient::~SMTPClient()
{
    m_leaving = true;
}

bool SMTPClient::enter()
{
    if (m_busy) {
        m_error = u"Last mail is still sending..."_s;
        return false;
    }
    m_busy = true;
    m_accepted = false;
    m_failure.clear();
    m_answer.clear();
    if (m_count)
        ++m_count->mails;
    return true;
}

void SMTPClient::leave()
{
    m_busy = false;
    m_error = m_failure;
    if (m_count && m_count->mails > 0)
        --m_count->mails;
    SMTPClient* const teller = AlsoNotify ? AlsoNotify : this;
    if (!m_leaving)
        emit teller->Completed(this, m_failure.isEmpty());
}

bool SMTPClient::SendMail()
{
    if (!enter())
        return false;
    return StartWork(m_work, kSource, [this] { return send(m_work); });
}

QCoro::Task<bool> SMTPClient::SendMailNow(Work& work)
{
    if (!enter())
        co_return false;
    co_await send(work);
    co_return m_error.isEmpty();
}

QCoro::Task<> SMTPClient::send(Work& work)
{
    Pause pause(work, 0); // nothing ends within the call that begins it
    co_await pause;
    {
        Session session(*this, work);
        QCoro::Task<> talk = dialogue(session);
        if (!co_await TrappedTask(kSource, std::move(talk)))
            m_failure = m_failure.isEmpty() ? u"Error on finishing sending mail"_s : m_failure;
    }
    leave();
}

QCoro::Task<> SMTPClient::dialogue(Session& session)
{
    const QString noServer = u"Error connect to SMTP server : "_s + ServerName;
    const uint port = ServerPort.trimmed().toUInt();
    if (port >= 1 && port <= 65535)
        session.socket.connectToHost(OneLine(ServerName.trimmed()), static_cast<quint16>(port));
    SocketWait connection(session.work, session.socket, kConnectSeconds,
                          [&session] { return session.socket.state() == QAbstractSocket::ConnectedState; });
    const bool connected = co_await connection;
    if (!connected) {
        session.fail(session.work.stopped() ? u"Program Stop. Stop connecting to SMTP server : "_s + ServerName
                                            : noServer);
        co_return;
    }
    const bool greeted = co_await session.WaitReply("220");
    if (!greeted) {
        session.fail(u"Error hand shaking with SMTP server : "_s + ServerName);
        co_return;
    }
    const bool known = co_await session.step("HELO localhost", "250", noServer);
    if (!known)
        co_return;
    const bool admitted = co_await login(session);
    if (!admitted)
        co_return;
    const bool addressed = co_await envelope(session);
    if (!addressed)
        co_return;
    const bool taken = co_await content(session);
    if (!taken)
        co_return;
    m_accepted = true;
    co_await session.step("quit", "221", u"Error on quit connection"_s);
}

// RFC 4954 calls the prompts "Username:" and "Password:" in base64. 502: the server knows no login.
QCoro::Task<bool> SMTPClient::login(Session& session)
{
    if (UserName.isEmpty() || Password.isEmpty())
        co_return true;
    const bool asked = co_await session.say("AUTH LOGIN", "334 VXNlcm5hbWU6");
    if (!asked) {
        const bool unknown = co_await session.WaitReply("502");
        co_return unknown || session.fail(u"Error unknown error when perform authencation"_s);
    }
    const bool user = co_await session.step(Credential(UserName), "334 UGFzc3dvcmQ6", u"Error on authencating user"_s);
    if (!user)
        co_return false;
    co_return co_await session.step(Credential(Password), "235", u"Error on authencating password"_s);
}

QCoro::Task<bool> SMTPClient::envelope(Session& session)
{
    const bool from =
        co_await session.address("mail from: ", BareAddress(SendFrom), u"Error on setting set send from"_s);
    if (!from)
        co_return false;
    struct List
    {
        const std::vector<Recipient>& recipients;
        QString failure;
    };
    const std::array<List, 3> lists{{{m_blindCopies, u"Error set BCC recipients"_s},
                                     {m_copies, u"Error set CC recipients"_s},
                                     {m_to, u"Error set To recipients"_s}}};
    for (const List& list : lists) {
        for (const Recipient& recipient : list.recipients) {
            if (recipient.address.isEmpty())
                continue;
            const bool taken = co_await session.address("rcpt to: ", recipient.address, list.failure);
            if (!taken)
                co_return false;
        }
    }
    co_return co_await session.step("data", "354", u"Error starting send body"_s);
}

QCoro::Task<bool> SMTPClient::content(Session& session)
{
    const QString failure = u"Error on finishing sending mail"_s;
    const QByteArray parts = texts();
    const bool begun = co_await session.put(head() + parts);
    if (!begun)
        co_return session.fail(failure);
    if (!parts.isEmpty()) {
        for (const Attachment& file : m_attachments) {
            const bool sent = co_await attachment(session, file);
            if (!sent)
                co_return session.fail(failure);
        }
        session.write("--" + kBoundary.toByteArray() + "--\r\n");
    }
    const bool handedOver = co_await session.put(".\r\n", 0); // the reply's seconds begin when all of it has gone
    if (!handedOver)
        co_return session.fail(failure);
    const bool taken = co_await session.WaitReply("250");
    co_return taken || session.fail(failure);
}

QCoro::Task<bool> SMTPClient::attachment(Session& session, Attachment attached)
{
    QFile file(attached.path);
    if (!QFileInfo(attached.path).isFile() || !file.open(QIODevice::ReadOnly)) {
        LogTrap(kSource, u"Cannot attach %1: %2"_s.arg(attached.path, file.errorString()));
        co_return true;
    }
    QString name = OneLine(attached.name);
    if (name.isEmpty())
        name = OneLine(FileNameOf(attached.path));
    session.write("--" + kBoundary.toByteArray() +
                  "\r\nContent-Type: application/octet-stream;name=\"Attachment \" \r\n"
                  "Content-Transfer-Encoding: base64\r\n"
                  "Content-Disposition: attachment; filename=" +
                  name.toUtf8() + "\r\n\r\n");
    for (qint64 left = file.size(); left > 0;) {
        const QByteArray piece = file.read(qMin<qint64>(left, kPieceBytes));
        if (piece.isEmpty())
            break; // it has become shorter
        left -= piece.size();
        const bool sent = co_await session.put(Base64Lines(piece));
        if (!sent)
            co_return false;
    }
    co_return true;
}

QByteArray SMTPClient::head() const
{
    QByteArray lines = DateLine() + AddressLine("From: "_L1, BareAddress(SendFrom), DisplayName(SendFrom));
    for (const Recipient& recipient : m_copies)
        lines += AddressLine("CC: "_L1, recipient.address, recipient.name);
    for (const Recipient& recipient : m_to)
        lines += AddressLine("To: "_L1, recipient.address, recipient.name);
    return lines + "Subject: " + OneLine(Subject).toUtf8() + "\r\nX-Mailer: " + OneLine(Mailer).toUtf8() + "\r\n";
}

QByteArray SMTPClient::texts() const
{
    if (Body.isEmpty() && HTMLBody.isEmpty())
        return {};
    QByteArray parts =
        "MIME-Version: 1.0\r\nContent-Type: multipart/mixed; boundary=\"" + kBoundary.toByteArray() + "\"\r\n\r\n";
    if (!Body.isEmpty())
        parts += TextPart("plain", HTMLCharset, encoded(Body));
    if (!HTMLBody.isEmpty())
        parts += TextPart("html", HTMLCharset, encoded(HTMLBody));
    return parts;
}

QByteArray SMTPClient::encoded(const QString& text) const
{
    QStringEncoder encoder(HTMLCharset.toLatin1().constData());
    return encoder.isValid() ? encoder.encode(text) : text.toUtf8();
}
