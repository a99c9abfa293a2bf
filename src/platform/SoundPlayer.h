#pragma once

// Makes PlaySound play through the sound device of the computer, on a thread of its own. For a program with windows.
void InstallSoundPlayer();
