#pragma once

#include "store/Databases.h"
#include "store/records/UserRecords.h"

#include <vector>

// Fills the logins that are tried on devices, in table order; one empty element when there is none. 1, or 0 when the
// table cannot be read: then it is not written over either.
qint16 GetMyAccount(Databases& databases, std::vector<NVRAccountRecord>& accounts);
// Replaces the table's rows by the accounts that have a user or a password; iIndex is the place in the list (from 0).
qint16 SaveMyAccount(Databases& databases, const std::vector<NVRAccountRecord>& accounts);

// Whether this pair stands in the list already; both compared exactly.
bool HasAccount(const std::vector<NVRAccountRecord>& accounts, const QString& user, const QString& password);
// Puts the pair at the end; the one empty element of an empty list is used first.
void AddAccount(std::vector<NVRAccountRecord>& accounts, const QString& user, const QString& password);
// Takes element `index` (from 0) out and closes the gap; an emptied list keeps one empty element.
void RemoveAccount(std::vector<NVRAccountRecord>& accounts, int index);
