#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QList>
#include <optional>

// Digest access authentication of HTTP (RFC 7616, and RFC 2617's form without qop). Pure functions.

struct DigestChallenge
{
    QByteArray realm;
    QByteArray nonce;
    std::optional<QByteArray> opaque; // goes back as it came
    QByteArray algorithm;             // as the device writes it, empty when it does not
    QCryptographicHash::Algorithm hash = QCryptographicHash::Md5;
    bool session = false; // an algorithm with "-sess"
    bool quality = false; // qop "auth"; without it the older form
};

struct DigestLogin
{
    QByteArray user; // UTF-8, and so the password
    QByteArray password;
};

// What the values of a reply's WWW-Authenticate fields (RFC 9110, 11.6.1) ask for.
struct Challenges
{
    std::optional<DigestChallenge> digest; // the first that can be answered: MD5 or SHA-256, with qop "auth" or without
    bool basic = false;
};
Challenges ReadChallenges(const QList<QByteArray>& fields);

// Value of the Authorization field for a request. target: as in the request line, whatever it holds. count: requests
// answered with this nonce, from 1; clientNonce: printable, fresh for each request.
QByteArray DigestAnswer(const DigestChallenge& challenge, const DigestLogin& login, const QByteArray& method,
                        const QByteArray& target, quint32 count, const QByteArray& clientNonce);
