#include "platform/DatabaseFile.h"

#include "platform/AppPath.h"
#include "platform/Clock.h"
#include "platform/Connection.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QStringList& CompanionEndings()
{
    static const QStringList endings{u"-wal"_s, u"-shm"_s, u"-journal"_s};
    return endings;
}

void RemoveCompanions(const QString& file)
{
    for (const QString& ending : CompanionEndings())
        QFile::remove(file + ending);
}

// What the companions of a file hold becomes part of it, or is taken back as it would be at the next opening.
void FoldCompanions(const QString& file)
{
    if (!QFileInfo::exists(file + u"-wal"_s) && !QFileInfo::exists(file + u"-journal"_s))
        return;
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    try {
        connection.openAsIs();
        QSqlQuery query(connection.database());
        query.exec(u"PRAGMA wal_checkpoint(TRUNCATE)"_s);
    } catch (const StoreError&) {
        // A damaged file keeps its companions; they move with it.
    }
}

} // namespace

FileState ProbeDatabase(const QString& file)
{
    if (!QFileInfo::exists(file))
        return FileState::Missing;
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    try {
        connection.openAsIs();
    } catch (const StoreError& error) {
        return error.damaged() ? FileState::Damaged : FileState::Unreadable;
    }
    return FileState::Sound;
}

void CopyDatabase(const QString& from, const QString& to)
{
    const QString half = to + u".part"_s;
    QFile::remove(half);
    {
        Connection connection;
        connection.setConnectionString(DatabaseConnectionString(from));
        connection.openAsIs();
        QSqlQuery query(connection.database());
        query.prepare(u"VACUUM INTO ?"_s);
        query.addBindValue(half);
        if (!query.exec()) {
            QFile::remove(half);
            throw StoreError(u"Cannot copy '%1' to '%2'"_s.arg(from, to), query.lastError());
        }
    }
    OwnerOnly(half);
    FoldCompanions(to);
    RemoveCompanions(to);
    // Replaces the target in one step, so that a target is there at any moment.
    if (std::rename(QFile::encodeName(half).constData(), QFile::encodeName(to).constData()) != 0) {
        QFile::remove(half);
        throw StoreError(u"Cannot replace '%1'"_s.arg(to));
    }
}

void CreateDatabase(const QString& file, const QString& statement)
{
    if (QFileInfo::exists(file))
        throw StoreError(u"Cannot create '%1': it already exists"_s.arg(file));
    RemoveCompanions(file);
    const QString name = u"create "_s + file;
    QString failure;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        database.setDatabaseName(file);
        QSqlQuery query(database.open() ? QSqlQuery(database) : QSqlQuery());
        if (!database.isOpen())
            failure = database.lastError().text();
        else if (!query.exec(statement))
            failure = query.lastError().text();
    }
    QSqlDatabase::removeDatabase(name);
    if (!failure.isEmpty()) {
        QFile::remove(file);
        throw StoreError(u"Cannot create '%1': %2"_s.arg(file, failure));
    }
    OwnerOnly(file);
}

void RenameDatabase(const QString& from, const QString& to)
{
    if (QFileInfo::exists(to))
        throw StoreError(u"Cannot rename '%1': file '%2' already exists"_s.arg(from, to));
    FoldCompanions(from);
    RemoveCompanions(to);
    QFile file(from);
    if (!file.rename(to))
        throw StoreError(u"Cannot rename '%1' to '%2': %3"_s.arg(from, to, file.errorString()));
    for (const QString& ending : CompanionEndings())
        QFile::rename(from + ending, to + ending);
}

QString SetDatabaseAside(const QString& file)
{
    const QFileInfo info(file);
    const QDateTime now = Now();
    for (qint64 seconds = QDateTime(now.date(), now.time(), Qt::UTC).toSecsSinceEpoch();; ++seconds) {
        const QString aside = info.path() + u'/' + QString::number(seconds) + u'.' + info.fileName();
        if (QFileInfo::exists(aside))
            continue;
        RenameDatabase(file, aside);
        return aside;
    }
}

void DeleteDatabase(const QString& file)
{
    QFile old(file);
    if (old.exists() && !old.remove())
        throw StoreError(u"Cannot delete '%1': %2"_s.arg(file, old.errorString()));
    RemoveCompanions(file);
}
