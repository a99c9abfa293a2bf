#pragma once

#include "platform/Connection.h"

#include <sqlite3.h>

// For the files that speak to the engine itself. The handle of an open connection; throws StoreError.
sqlite3* EngineHandle(const Connection& connection);
// Throws the engine's last failure.
[[noreturn]] void FailWith(sqlite3* database, const QString& what);
// A name as it stands in a statement.
QString QuotedName(const QString& identifier);
