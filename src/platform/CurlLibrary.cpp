#include "platform/CurlLibrary.h"

#include <QUrl>
#include <curl/curl.h>
#include <stdexcept>

// Never taken down: sockets may live until the very end.
void SetUpCurl()
{
    static const CURLcode code = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (code != CURLE_OK)
        throw std::runtime_error(curl_easy_strerror(code));
}

QByteArray UrlHost(const QString& address)
{
    QString host = address.trimmed();
    if (host.startsWith(u'[') && host.endsWith(u']'))
        host = host.sliced(1, host.size() - 2);
    if (host.contains(u':')) {
        for (const QChar c : std::as_const(host)) {
            if (!(c.unicode() < 128 && (c.isLetterOrNumber() || c == u':' || c == u'.')))
                return {};
        }
        return '[' + host.toLatin1() + ']';
    }
    const QByteArray ascii = QUrl::toAce(host);
    for (const char c : ascii) {
        const bool plain = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!plain && c != '.' && c != '-' && c != '_')
            return {};
    }
    return ascii;
}
