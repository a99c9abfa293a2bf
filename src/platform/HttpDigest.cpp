#include "platform/HttpDigest.h"

#include <QHash>

namespace {

using Parameters = QHash<QByteArray, QByteArray>;

bool IsTokenEnd(char c)
{
    return c == ' ' || c == '\t' || c == ',' || c == '=' || c == '"';
}

// One field's value: a scheme, its parameters, a comma, the next scheme.
class FieldReader
{
public:
    explicit FieldReader(QByteArrayView text)
        : m_text(text)
    {
    }

    // The next scheme in small letters with its parameters; false at the end.
    bool next(QByteArray& scheme, Parameters& parameters)
    {
        scheme = m_pending.isEmpty() ? name() : std::exchange(m_pending, {});
        parameters.clear();
        while (!scheme.isEmpty()) {
            const QByteArray key = name();
            if (key.isEmpty())
                break;
            skip(" \t");
            if (m_at >= m_text.size() || m_text[m_at] != '=') {
                m_pending = key; // the next scheme
                break;
            }
            ++m_at;
            parameters.insert(key, value());
        }
        return !scheme.isEmpty();
    }

private:
    void skip(QByteArrayView set)
    {
        while (m_at < m_text.size() && set.contains(m_text[m_at]))
            ++m_at;
    }

    QByteArray name()
    {
        skip(" \t,=\"");
        return token().toLower();
    }

    QByteArray token()
    {
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && !IsTokenEnd(m_text[m_at]))
            ++m_at;
        return m_text.sliced(begin, m_at - begin).toByteArray();
    }

    QByteArray value()
    {
        skip(" \t");
        if (m_at >= m_text.size() || m_text[m_at] != '"')
            return token();
        QByteArray text;
        for (++m_at; m_at < m_text.size() && m_text[m_at] != '"'; ++m_at) {
            if (m_text[m_at] == '\\' && m_at + 1 < m_text.size())
                ++m_at;
            text += m_text[m_at];
        }
        m_at = qMin(m_at + 1, m_text.size());
        return text;
    }

    QByteArrayView m_text;
    qsizetype m_at = 0;
    QByteArray m_pending;
};

std::optional<DigestChallenge> ChallengeOf(const Parameters& parameters)
{
    DigestChallenge challenge;
    challenge.realm = parameters.value("realm");
    challenge.nonce = parameters.value("nonce");
    challenge.algorithm = parameters.value("algorithm");
    if (parameters.contains("opaque"))
        challenge.opaque = parameters.value("opaque");
    QByteArray algorithm = challenge.algorithm.toUpper();
    challenge.session = algorithm.endsWith("-SESS");
    if (challenge.session)
        algorithm.chop(5);
    if (algorithm == "SHA-256")
        challenge.hash = QCryptographicHash::Sha256;
    else if (!algorithm.isEmpty() && algorithm != "MD5")
        return std::nullopt;
    const QList<QByteArray> qualities = parameters.value("qop").toLower().split(',');
    for (const QByteArray& quality : qualities)
        challenge.quality = challenge.quality || quality.trimmed() == "auth";
    if (challenge.nonce.isEmpty() || (parameters.contains("qop") && !challenge.quality))
        return std::nullopt;
    return challenge;
}

QByteArray Quoted(const QByteArray& text)
{
    QByteArray quoted = text;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    return '"' + quoted + '"';
}

} // namespace

Challenges ReadChallenges(const QList<QByteArray>& fields)
{
    Challenges challenges;
    for (const QByteArray& field : fields) {
        FieldReader reader(field);
        QByteArray scheme;
        Parameters parameters;
        while (reader.next(scheme, parameters)) {
            challenges.basic = challenges.basic || scheme == "basic";
            if (scheme == "digest" && !challenges.digest)
                challenges.digest = ChallengeOf(parameters);
        }
    }
    return challenges;
}

QByteArray DigestAnswer(const DigestChallenge& challenge, const DigestLogin& login, const QByteArray& method,
                        const QByteArray& target, quint32 count, const QByteArray& clientNonce)
{
    const auto hashed = [&](const QByteArray& text) { return QCryptographicHash::hash(text, challenge.hash).toHex(); };
    const QByteArray number = QByteArray::number(count, 16).rightJustified(8, '0');
    QByteArray secret = hashed(login.user + ':' + challenge.realm + ':' + login.password);
    if (challenge.session)
        secret = hashed(secret + ':' + challenge.nonce + ':' + clientNonce);
    const QByteArray between = challenge.quality ? number + ':' + clientNonce + ":auth:" : QByteArray();
    const QByteArray response = hashed(secret + ':' + challenge.nonce + ':' + between + hashed(method + ':' + target));

    QByteArray answer = "Digest username=" + Quoted(login.user) + ", realm=" + Quoted(challenge.realm) +
                        ", nonce=" + Quoted(challenge.nonce) + ", uri=" + Quoted(target) + ", response=\"" + response +
                        '"';
    if (!challenge.algorithm.isEmpty())
        answer += ", algorithm=" + challenge.algorithm;
    if (challenge.opaque)
        answer += ", opaque=" + Quoted(*challenge.opaque);
    if (challenge.quality)
        answer += ", qop=auth, nc=" + number;
    if (challenge.quality || challenge.session)
        answer += ", cnonce=\"" + clientNonce + '"';
    return answer;
}
