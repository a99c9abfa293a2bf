#include "recorders/detect/RecorderCall.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"
#include "platform/Closing.h"
#include "platform/MsgBox.h"

using namespace Qt::StringLiterals;

namespace {

// A program that is leaving shows no box any more.
RecorderOutcome Failure(int message, const QString& suffix, const QString& title, int field)
{
    if (Closing())
        return {};
    return {false, message, suffix, title, field};
}

} // namespace

QString RecorderOutcome::text() const
{
    return message == 0 ? QString() : GetLangString(message) + suffix;
}

RecorderOutcome RecorderOutcome::Failed(int message, const QString& suffix, int field)
{
    return Failure(message, suffix, GetLangString(Message::kNotice), field);
}

RecorderOutcome RecorderOutcome::FailedPlain(int message, const QString& suffix)
{
    return Failure(message, suffix, GetLangString(Message::kInformation), -1);
}

RecorderOutcome RecorderOutcome::Done(int message)
{
    return {true, message, {}, message == 0 ? QString() : GetLangString(Message::kInformation), -1};
}

void TellOutcome(const RecorderOutcome& outcome)
{
    if (outcome.message == 0)
        return;
    const bool mendable = outcome.field >= 0;
    const qint32 style = outcome.ok ? kBoxInformation | kBoxSuccess : mendable ? kBoxWarning : kBoxError;
    MsgBox(outcome.text(), BoxStyle(style), outcome.title);
}
