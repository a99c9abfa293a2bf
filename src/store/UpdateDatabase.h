#pragma once

#include "store/BasicDefault.h"

// Watches an update of the configuration database, to show how far it is.
class UpdateWatcher
{
public:
    virtual ~UpdateWatcher() = default;
    virtual void begin() {}
    // Before each row that is carried over; numbers count from 1.
    virtual void row(const QString& /*table*/, qint64 /*row*/, qint64 /*rows*/) {}
    // While another process carries out the same update, several times a second.
    virtual void waiting() {}
    // Before each step that changes a file, and after the last.
    virtual void step() {}
    virtual void end() {}
};

// Puts a copy of the template in the place of Database.mdb, with the old data carried over when `bConvert` is set, and
// opens it. The old file stays beside it as "<seconds>.Database.mdb" for good. When the new file cannot be made whole
// (no template, no room), the old one stays in use as it is. Always 1.
qint16 UpdateDatabase(Databases& databases, BasicDefaultSet& set, bool bConvert, UpdateWatcher& watcher);
