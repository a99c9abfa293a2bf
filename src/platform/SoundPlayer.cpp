#include "platform/SoundPlayer.h"

#include "platform/Sound.h"

#include <QAudioDevice>
#include <QCoreApplication>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QThread>
#include <QUrl>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Lives on the thread of the sounds, where reaching the device may take its time. Different sounds play together; one
// that plays already begins anew.
class Player : public QObject
{
public:
    void play(const QString& file, const SoundEnded& ended)
    {
        finish(file, {});
        if (QFile source(file); !source.open(QIODevice::ReadOnly)) {
            tell(ended, source.errorString());
            return;
        }
        if (QMediaDevices::defaultAudioOutput().isNull()) {
            tell(ended, u"This computer has no sound device"_s);
            return;
        }
        Playing& playing = m_playing[file];
        playing = {std::make_unique<QSoundEffect>(), ended};
        QSoundEffect* const effect = playing.effect.get();
        connect(effect, &QSoundEffect::statusChanged, this, [this, effect, file] {
            if (effect->status() == QSoundEffect::Error)
                finish(file, u"This file is no sound that can be played"_s);
        });
        connect(effect, &QSoundEffect::playingChanged, this, [this, effect, file] {
            if (!effect->isPlaying())
                finish(file, {});
        });
        effect->setSource(QUrl::fromLocalFile(file));
        effect->play();
    }

private:
    struct Playing
    {
        std::unique_ptr<QSoundEffect> effect;
        SoundEnded ended;
    };

    static void tell(const SoundEnded& ended, const QString& fault)
    {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [ended, fault] { ended(fault); }, Qt::QueuedConnection);
    }

    void finish(const QString& file, const QString& fault)
    {
        auto playing = m_playing.extract(file);
        if (playing.empty())
            return;
        QSoundEffect* const effect = playing.mapped().effect.release(); // it may be the caller
        effect->disconnect(this);
        effect->deleteLater();
        tell(playing.mapped().ended, fault);
    }

    std::map<QString, Playing> m_playing;
};

// Begins with the first sound.
class SoundThread
{
public:
    SoundThread()
    {
        auto* player = new Player;
        player->moveToThread(&m_thread);
        QObject::connect(&m_thread, &QThread::finished, player, &QObject::deleteLater);
        m_player = player;
        m_thread.start();
    }
    ~SoundThread()
    {
        m_thread.quit();
        m_thread.wait();
    }
    void play(const QString& file, const SoundEnded& ended)
    {
        QMetaObject::invokeMethod(
            m_player, [player = m_player, file, ended] { player->play(file, ended); }, Qt::QueuedConnection);
    }

private:
    QThread m_thread;
    Player* m_player;
};

} // namespace

void InstallSoundPlayer()
{
    SetSoundHandler([thread = std::shared_ptr<SoundThread>()](const QString& file, const SoundEnded& ended) mutable {
        if (!thread)
            thread = std::make_shared<SoundThread>();
        thread->play(file, ended);
    });
}
