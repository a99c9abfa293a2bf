#pragma once

#include "app/shell/Messages.h"

#include <QString>

// The boxes of the desk in the live language. They go through MsgBox, so tests answer them and logic may show them.

// What a box with one button tells; its icon says it too.
enum class Tone
{
    Information,
    Success,
    Warning, // something is missing or was refused: the user can put it right
    Error    // something failed
};

// Shows a text under a title; `title` is a message number.
void Tell(Tone tone, const QString& text, int title = Message::kInformation);
void Tell(Tone tone, int message, int title = Message::kInformation);

// Yes or No; Yes is the default. True for Yes.
bool Ask(const QString& text, int title = Message::kInformation);
bool Ask(int message, int title = Message::kInformation);

// Tells a success and offers what the last line of the text asks; No is the default. True for Yes.
bool TellAndOffer(const QString& text, int title = Message::kInformation);

// A question whose Yes destroys something: it looks dangerous and No is the default. `what` names what would go (a
// user's or recorder's name) and stands in a line of its own below the question; empty when the question names it.
bool AskToDestroy(const QString& question, const QString& what, int title = Message::kInformation);
bool AskToDestroy(int question, const QString& what, int title = Message::kInformation);

// What becomes of unsaved changes when their window or page is left. Esc stays.
enum class Leave
{
    Save,
    Discard,
    Stay
};
Leave AskToLeave();
