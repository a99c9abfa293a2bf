#include "store/DatabaseRepair.h"

#include "app/log/Module_Log.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/Databases.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kLoadSource("Form_Initial - Form_Load");
constexpr int kLockMilliseconds = 60000;

// The newest configuration under its seconds name, empty without one.
QString NewestAside()
{
    const QString folder = StationPath(u"\\Database\\");
    QString newest;
    qint64 latest = -1;
    const QStringList names = QDir(folder).entryList({u"*.Database.mdb"_s}, QDir::Files);
    for (const QString& name : names) {
        bool number = false;
        const qint64 seconds = name.section(u'.', 0, 0).toLongLong(&number);
        if (number && seconds > latest) {
            latest = seconds;
            newest = folder + name;
        }
    }
    return newest;
}

bool Sound(const QString& file)
{
    return ProbeDatabase(file) == FileState::Sound;
}

// What an update left that was killed between its two renames.
bool TakeUpdate(const QString& database)
{
    const QString converted = StationPath(kConvertFile);
    if (!QFileInfo::exists(converted))
        return false;
    const QString old = NewestAside();
    for (const QString& file : {converted, old}) {
        if (!file.isEmpty() && Sound(file))
            return Trapped(kLoadSource, [&] { RenameDatabase(file, database); });
    }
    return false;
}

bool TakeBackup(const QString& database)
{
    for (const auto* literal : {kBackup1File, kBackup2File}) {
        const QString backup = StationPath(literal);
        if (!Sound(backup))
            continue;
        if (!Trapped(kLoadSource, [&] { RenameDatabase(backup, database); }))
            return false;
        Trapped(kLoadSource, [&] { CopyDatabase(database, backup); });
        return true;
    }
    return false;
}

} // namespace

ReplaceLock::ReplaceLock()
    : m_lock(StationPath(u"\\Database\\Database_Convert.lock"))
{
    m_lock.setStaleLockTime(0);
}

bool ReplaceLock::acquire(int milliseconds)
{
    return m_lock.tryLock(milliseconds);
}

bool ReplaceLock::heldByAnother() const
{
    return m_lock.error() == QLockFile::LockFailedError;
}

RepairResult RepairDatabase()
{
    ReplaceLock lock;
    if (!lock.acquire(kLockMilliseconds) && lock.heldByAnother())
        return RepairResult::Untouched;
    const QString database = StationPath(kDatabaseFile);
    switch (ProbeDatabase(database)) {
    case FileState::Unreadable:
        return RepairResult::Untouched;
    case FileState::Sound: // by now
        return RepairResult::Repaired;
    case FileState::Damaged:
        if (!Trapped(kLoadSource, [&] { SetDatabaseAside(database); }))
            return RepairResult::Failed;
        break;
    case FileState::Missing:
        break;
    }
    const bool placed = TakeUpdate(database) || TakeBackup(database) ||
                        Trapped(kLoadSource, [&] { CopyDatabase(StationPath(kTemplateFile), database); });
    return placed ? RepairResult::Repaired : RepairResult::Failed;
}
