#include "platform/SingleInstance.h"

#include "platform/AppPath.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

bool SingleInstance::acquire()
{
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty())
        folder = QDir::tempPath();
    const QByteArray station = QFileInfo(AppPath()).canonicalFilePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(station, QCryptographicHash::Sha1).toHex().left(16);
    m_lock = std::make_unique<QLockFile>(folder + u"/rigging-desk-"_s + QString::fromLatin1(hash) + u".lock"_s);
    m_lock->setStaleLockTime(0); // only a dead owner makes it stale
    if (m_lock->tryLock(0))
        return true;
    return m_lock->error() != QLockFile::LockFailedError;
}
