#pragma once

#include <QString>

// What the clients of mail and upload share.

// Sends under way, one count for each kind of server.
struct EventQueueBusy
{
    int mails = 0;
    int uploads = 0;
    int alerts = 0;
};

// The name of a file in its path, behind the last ":", "/" or "\".
inline QString FileNameOf(const QString& path)
{
    qsizetype begin = path.size();
    while (begin > 0 && !QStringView(u":/\\").contains(path[begin - 1]))
        --begin;
    return path.sliced(begin);
}
