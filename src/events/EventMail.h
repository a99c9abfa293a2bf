#pragma once

#include "events/SMTPClient.h"
#include "store/records/EventRecords.h"

// The mails that the desk sends.

inline constexpr QLatin1String kProgramTitle("Rigging Desk");

// Server, login and sender of a client from a server's record.
void UseMailServer(SMTPClient& client, const ListenServerRec& server);
// The part of an address before its "@".
QString LocalPart(const QString& address);

// The page that tells of an event. text: as written, it is escaped here; seconds: of the event, since 1970/1/1.
QString EventMailPage(const QString& text, qint32 seconds, const QString& user);
// The page of a test mail.
QString TestMailPage();
