#pragma once

#include <QString>

// Whole database files with their "-wal", "-shm" and "-journal" companions: a companion never meets another file than
// its own. All throw StoreError when they fail, and leave the target as it was then. Paths are platform paths.

enum class FileState
{
    Sound,
    Missing,
    Damaged,   // known to be no whole database
    Unreadable // locked for longer than it is waited for, no right to read it, a broken disk: it may be sound
};
// Whether the file opens, with what its companions hold. Throws nothing.
FileState ProbeDatabase(const QString& file);

// Writes a consistent copy made by the database engine, whoever holds the source open; the target is replaced.
void CopyDatabase(const QString& from, const QString& to);
// Makes a new file with what one statement makes. Fails when the file exists; a file that cannot be made whole is
// removed again.
void CreateDatabase(const QString& file, const QString& statement);
// Gives a file another name. Fails when the target exists, as a plain rename does.
void RenameDatabase(const QString& from, const QString& to);
// Renames a file to "<seconds>.<its name>", the seconds from 1970/1/1 to now by the local clock; the first free number
// from there on. Gives the new path.
QString SetDatabaseAside(const QString& file);
void DeleteDatabase(const QString& file);
// A copy without the room that deleted rows left.
inline void CompactDatabase(const QString& from, const QString& to)
{
    CopyDatabase(from, to);
}
