#pragma once

#include <QLockFile>

inline constexpr auto kConvertFile = u"\\Database\\Database_Convert.mdb"; // a finished conversion before its rename

// Held while the configuration's files are replaced, so that two starts do not take each other's files away.
class ReplaceLock
{
public:
    ReplaceLock();
    // Waits up to `milliseconds` (-1: as long as it takes) for another process that replaces files. One that died does
    // not count. False when it is still at it, or when the folder cannot be written.
    bool acquire(int milliseconds);
    // A process that lives holds it.
    bool heldByAnother() const;

private:
    QLockFile m_lock;
};

enum class RepairResult
{
    Repaired,  // the file was missing or known to be damaged, and a new one stands in its place
    Untouched, // the file is there, but another process holds it or it cannot be read: nothing was changed
    Failed     // nothing could be put in its place (log lines tell why)
};

// For a configuration database that could not be opened. A damaged file is kept aside under its seconds name. In its
// place comes a conversion that was finished but for its rename, else the newest file set aside where there is a
// conversion that cannot be used, else the first sound backup (which stays), else the template.
RepairResult RepairDatabase();
