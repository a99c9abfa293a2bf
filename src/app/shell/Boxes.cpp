#include "app/shell/Boxes.h"

#include "app/language/Languages.h"
#include "platform/MsgBox.h"

namespace {

qint32 StyleOf(Tone tone)
{
    switch (tone) {
    case Tone::Success:
        return kBoxInformation | kBoxSuccess;
    case Tone::Warning:
        return kBoxWarning;
    case Tone::Error:
        return kBoxError;
    case Tone::Information:
        break;
    }
    return kBoxInformation;
}

} // namespace

void Tell(Tone tone, const QString& text, int title)
{
    MsgBox(text, BoxStyle(StyleOf(tone)), GetLangString(title));
}

void Tell(Tone tone, int message, int title)
{
    Tell(tone, GetLangString(message), title);
}

bool Ask(const QString& text, int title)
{
    return MsgBox(text, AskBoxStyle(), GetLangString(title)) == MsgResult::Yes;
}

bool Ask(int message, int title)
{
    return Ask(GetLangString(message), title);
}

bool TellAndOffer(const QString& text, int title)
{
    return MsgBox(text, BoxStyle(kBoxQuestion | kBoxSuccess), GetLangString(title)) == MsgResult::Yes;
}

bool AskToDestroy(const QString& question, const QString& what, int title)
{
    const QString text = what.isEmpty() ? question : QString(question + QStringLiteral("\n\n") + what);
    return MsgBox(text, BoxStyle(kBoxQuestion | kBoxNoIsDefault), GetLangString(title)) == MsgResult::Yes;
}

bool AskToDestroy(int question, const QString& what, int title)
{
    return AskToDestroy(GetLangString(question), what, title);
}

Leave AskToLeave()
{
    switch (MsgBox(GetLangString(Message::kSettingsChanged), BoxStyle(kBoxQuestionOrStay),
                   GetLangString(Message::kInformation))) {
    case MsgResult::Yes:
        return Leave::Save;
    case MsgResult::No:
        return Leave::Discard;
    default:
        return Leave::Stay;
    }
}
