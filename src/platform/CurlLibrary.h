#pragma once

#include <QByteArray>
#include <QString>

// What the clients that stand on libcurl share.

// Sets the library up, once for the process; throws when that fails.
void SetUpCurl();
// Host part of a URL, or empty when the text cannot be one (so that nothing in it reaches another part of the URL).
QByteArray UrlHost(const QString& address);
