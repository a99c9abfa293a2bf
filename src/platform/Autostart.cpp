#include "platform/Autostart.h"

#include "platform/AppPath.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

QString Folder(AutostartScope scope)
{
    QString base;
    if (scope == AutostartScope::User) {
        base = qEnvironmentVariable("XDG_CONFIG_HOME");
        if (base.isEmpty())
            base = QDir::homePath() + u"/.config"_s;
    } else {
        base = qEnvironmentVariable("XDG_CONFIG_DIRS").section(u':', 0, 0);
        if (base.isEmpty())
            base = u"/etc/xdg"_s;
    }
    return base + u"/autostart/"_s;
}

} // namespace

bool SetAutostart(AutostartScope scope, const QString& name, const QString& command)
{
    QDir().mkpath(Folder(scope));
    QSaveFile file(Folder(scope) + name + u".desktop"_s);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write((u"[Desktop Entry]\nType=Application\nName="_s + name + u"\nExec="_s + command + u"\n"_s).toUtf8());
    return file.commit();
}

bool DeleteAutostart(AutostartScope scope, const QString& name)
{
    QFile file(Folder(scope) + name + u".desktop"_s);
    return !file.exists() || file.remove();
}

QString AutostartCommand(AutostartScope scope, const QString& name)
{
    QFile file(Folder(scope) + name + u".desktop"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith("Exec="_L1))
            return line.mid(5);
    }
    return {};
}

QString ProgramPath(const QString& name)
{
#ifdef Q_OS_WIN
    return StationPath(QString(u'\\' + name + u".exe"_s));
#else
    return StationPath(QString(u'\\' + name));
#endif
}
