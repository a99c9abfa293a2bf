#pragma once

#include "recorders/data/RecorderEvents.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"
#include "store/records/UserRecords.h"

#include <vector>

inline constexpr quint16 kNewUser = 65533; // EditUserIndex of a user that has no slot yet

// The users in both generations. An empty station has one empty slot; a deleted user leaves an empty one.
struct UserSet
{
    std::vector<UserRecord> stored{{}};
    std::vector<UserRecord> edit{{}};
    bool read = false;                // the table was read: without that nobody is known, and nobody is let in
    qint32 AdminCount = 0;            // users in group 0
    quint16 EditUserIndex = kNewUser; // slot being edited
};

// The fields of the user dialog, as typed.
struct UserFields
{
    QString sUser;
    QString sPSWD;
    QString sCorp;
    QString sPhone;
    QString sMainEmail;
    QString sSubEmail;
    QString sMobile;
    QString sPhoto;
    qint16 iGroup = 0;
};

enum class LoginResult
{
    Ok,
    WrongPassword, // a user has this name; the first such user decides
    Unknown
};

// Reads the table into the stored generation and sizes the other one. 1, or 0 with the generations as they were when it
// cannot be read to its end; a value that does not fit, or a group outside 0 to 6, costs one log line and the rest of
// the row is kept.
qint16 GetUser(Databases& databases, UserSet& set);
// Deletes all rows of users and sends usersGone, as one step.
qint16 DELUser(Databases& databases, const UserSet& set, const RecorderEvents& events);
// Writes a row for each stored user with a name and sends usersSaved, as one step.
qint16 SaveUser(Databases& databases, const UserSet& set, const RecorderEvents& events);

// Both comparisons are exact; `index` becomes the user's slot when the answer is Ok.
LoginResult CheckLogin(const std::vector<UserRecord>& users, const QString& name, const QString& password,
                       quint32& index);

// A station that was read and holds no named user: the first one is made without a login.
bool IsFreshStation(const UserSet& set);

// All work on the edit generation.
bool IsListedUser(const UserRecord& user); // has a name other than "Empty"
int SetUser_TotalNum(const UserSet& set);
// -1 when the name is free for the slot being edited (its own name is), else 0.
qint16 SetUser_CheckName(const UserSet& set, const QString& name);
void SetUser_Delete(UserSet& set, int index); // throws ConversionError outside the array
void SetUser_Modify(UserSet& set, const UserFields& fields);
// The slot is the only administrator left.
bool IsLastAdmin(const UserSet& set, int index);

// The events must outlive the family.
RecordFamily UserFamily(Databases& databases, UserSet& set, const RecorderEvents& events);
