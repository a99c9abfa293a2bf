#pragma once

// Makes the choices of Form_OpenFile and OpenDirectoryTV windows in the desk's look and language.
void InstallFileChooserWindow();
