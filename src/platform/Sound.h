#pragma once

#include <QString>
#include <functional>

// Told once, from the event loop, how it went: the fault in plain words, empty when the sound has been played.
using SoundEnded = std::function<void(const QString& fault)>;
using SoundHandler = std::function<void(const QString& file, SoundEnded ended)>;

// Begins to play a WAV file and goes on; a sound that still plays ends. Nothing here holds the caller up.
void PlaySound(const QString& file, SoundEnded ended);
// The program installs what plays; without it every sound ends with a fault. Returns the handler that was there before.
SoundHandler SetSoundHandler(SoundHandler handler);
