#pragma once

// The process is leaving: every work is stopped, no new one begins and long loops end.
bool Closing();
void SetClosing(bool closing);
