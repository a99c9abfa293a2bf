#pragma once

#include "store/Databases.h"
#include "store/records/UserRecords.h"

#include <vector>

// Fills the logins that are tried on devices, in table order; one empty element when there is none. 1, or 0 when the
// table cannot be opened.
qint16 GetMyAccount(Databases& databases, std::vector<NVRAccountRecord>& accounts);
