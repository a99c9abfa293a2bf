#pragma once

// Makes the desk's own box answer for MsgBox: buttons in the live language, right-aligned by the style's flag.
void InstallMsgBoxWindow();
