#pragma once

// Makes the desk's own box answer for MsgBox (buttons in the live language, right-aligned by the style's flag) and its
// folder dialog for OpenDirectoryTV.
void InstallMsgBoxWindow();
