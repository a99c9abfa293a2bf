#pragma once

#include "device/bridge/Form_COM.h"
#include "emap/EMapSet.h"
#include "events/ChannelEvents.h"
#include "events/EventStore.h"
#include "events/Form_SendEvent.h"
#include "recorders/data/RecorderEvents.h"
#include "recorders/data/RecorderSet.h"
#include "screens/ScreenSet.h"
#include "store/BasicDefault.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "users/GroupStore.h"
#include "users/UserStore.h"

// Everything the station knows, for the whole run of the process. Made once (on the heap) in main.
struct Station
{
    Station();

    Databases databases;
    BasicDefaultSet basicDefault;
    RecorderSet recorders;
    RecorderEvents events; // wired in RecorderWiring.h
    GroupSet groups;
    UserSet users;
    EMapSet emap;
    ChannelEventSet channelEvents;
    ScreenSet screens;
    std::vector<NVRAccountRecord> accounts{{}}; // tried on devices; one empty element when there is none
    EventServerSet eventServers;
    EventHandlingSet eventHandling;
    FamilyRegister families;
    Form_COM com;
    Form_SendEvent sendEvent{eventServers, eventHandling, com};

    quint32 CurrentUserIndex = 65535; // 65535 and above: not in the user array
    qint16 CurrentGroupIndex = 0;     // 0 to 6
    bool Loading = true;              // controls are being filled: their events count for nothing
    bool LoginOk = false;
    bool m_bDataSaved = false; // a page was saved in this run

    // The rights record of the current group; throws ConversionError for an index outside 0 to 6.
    const GroupPrivilegeRecord& currentGroup() const;
    // The same, without any right (and one log line) where there is no such group.
    GroupPrivilegeRecord currentRights() const;
};

// Writes everything that is marked on any page, then the audit line (and notification) of each touched page. False when
// a save failed: what it would have written is still marked.
bool SaveCheck(Station& station);

// Audit line and notification of an action (0 to 12), notification alone (13 to 16), nothing above. `key` is
// slot * 64 + channel, both from 0, or -1; `text` goes before the channel's text in actions 15 and 16.
void RunEventAction(Station& station, int action, int key, const QString& text, const QString& operatorName);
