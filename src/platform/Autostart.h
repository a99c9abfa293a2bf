#pragma once

#include <QString>

// Programs that start with the desktop session (freedesktop.org Desktop Application Autostart Specification). An entry
// is the file <name>.desktop in the scope's autostart folder.
enum class AutostartScope
{
    User,
    Machine
};

// Creates or replaces the entry that starts `program` (a full path), which may hold any character. False when it cannot
// be written.
bool SetAutostart(AutostartScope scope, const QString& name, const QString& program);
// Removes the entry; true also when there was none.
bool DeleteAutostart(AutostartScope scope, const QString& name);
// The path of the program that the entry starts, empty without an entry.
QString AutostartProgram(AutostartScope scope, const QString& name);

// Full path of a program of the family beside this one, with the platform's program suffix.
QString ProgramPath(const QString& name);
