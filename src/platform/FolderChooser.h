#pragma once

#include <QString>
#include <functional>

// Asks for a folder; empty when none was chosen. Without a handler (no window system) none ever is.
QString OpenDirectoryTV(const QString& title);

using FolderHandler = std::function<QString(const QString& title)>;
// The windows install the real one; tests install an answer. Returns the handler that was there before.
FolderHandler SetFolderHandler(FolderHandler handler);
