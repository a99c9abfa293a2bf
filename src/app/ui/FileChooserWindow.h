#pragma once

// Makes Form_OpenFile a window in the desk's look.
void InstallFileChooserWindow();
