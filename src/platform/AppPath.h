#pragma once

#include <QString>

// The directory of the running program, without a trailing separator. Set once at start-up (tests set a temporary one).
const QString& AppPath();
// Drops one trailing '\' or '/' of path. On file systems whose separator is '/' the path keeps that form.
void SetAppPath(const QString& path);

// Turns AppPath plus a literal that begins with '\' (as they stand in tables and texts) into a path of this platform.
QString StationPath(QStringView literal);

// Makes a file or folder accessible to its owner only; false when that cannot be done.
bool OwnerOnly(const QString& path);
