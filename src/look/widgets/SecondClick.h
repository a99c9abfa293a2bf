#pragma once

// A double click means one thing. Where its first half has already changed what stands under the pointer (another frame
// of a window, a dialog opened or closed), its second half must not act on what has come there.

// Begins to remember where presses of the pointer were. Once is enough for a program; more calls do nothing.
void WatchClicks();
// What is under the pointer has just changed: a press that follows the last one at the same place, as quickly as the
// second half of a double click, reaches nobody. Elsewhere, or later, presses act as ever.
void DropSecondClick();
