#pragma once

#include <QString>
#include <functional>

// What is offered for choice. `folder` is a platform path; `filter` holds patterns parted by ";" ("*.bmp;*.jpg").
struct FileQuestion
{
    QString folder;
    QString filter;
    QString title;
};
using FileChooserHandler = std::function<QString(const FileQuestion& question)>;

// Shows a modal choice of one existing file and returns its platform path; empty when none was chosen, and always
// without a handler (no window system).
QString Form_OpenFile(const FileQuestion& question);
// The windows install the real one; tests install their answer. Returns the handler that was there before.
FileChooserHandler SetFileChooserHandler(FileChooserHandler handler);
