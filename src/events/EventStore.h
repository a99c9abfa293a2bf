#pragma once

#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "store/records/EventRecords.h"

#include <array>

inline constexpr int kEventServers = 3;

// Tables ListenServer and EventHandling: what happens on an event, and the servers that it goes to.

struct EventServerSet
{
    using Servers = std::array<ListenServerRec, kEventServers>; // aID 1 to 3
    EventServerSet();

    Servers stored;
    Servers edit;
};

struct EventHandlingSet
{
    EventHandlingRecord stored;
    EventHandlingRecord edit;
};

// What an event can do; a server record holds a server of each kind.
enum class EventAction
{
    Mail,
    FTP,
    Alert,
    Sound
};
inline constexpr int kEventActions = 4;

// Reads the rows into the stored servers by their aID; of rows with the same one the first counts, other rows are left
// alone. A server without a sound has the station's own. 1, or 0 when the table cannot be opened: the servers are fresh
// then.
qint16 GetListenServer(Databases& databases, EventServerSet& set);
// Writes the stored servers whose edit copy is marked, each to its row, which is added where there is none. 1 or 0.
qint16 SaveMyListenServer(Databases& databases, const EventServerSet& set);

// Reads the row; without one, and where the table cannot be opened (0), everything is off and empty.
qint16 GetEventHandling(Databases& databases, EventHandlingSet& set);
// Writes the stored record to the row, which is added where there is none. 1 or 0.
qint16 SaveEventHandling(Databases& databases, const EventHandlingSet& set);

// Whether the server that an action needs is set in one of the stored records.
bool CheckListenSetup(const EventServerSet& set, EventAction action);
// The sound of a server that has none of its own: alert.wav of the station.
QString DefaultWarningPath();

// Whether a text can be a mail address. Blanks round it do not count.
bool CheckMail(const QString& address);

RecordFamily EventServerFamily(Databases& databases, EventServerSet& set);
RecordFamily EventHandlingFamily(Databases& databases, EventHandlingSet& set);
