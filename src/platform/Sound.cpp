#include "platform/Sound.h"

#include <QCoreApplication>
#include <utility>

namespace {

SoundHandler& Handler()
{
    static SoundHandler handler;
    return handler;
}

} // namespace

void PlaySound(const QString& file, SoundEnded ended)
{
    if (Handler()) {
        Handler()(file, std::move(ended));
        return;
    }
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [ended] { ended(QStringLiteral("No sound here")); }, Qt::QueuedConnection);
}

SoundHandler SetSoundHandler(SoundHandler handler)
{
    return std::exchange(Handler(), std::move(handler));
}
