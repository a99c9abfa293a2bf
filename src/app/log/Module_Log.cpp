#include "app/log/Module_Log.h"

#include "platform/AppPath.h"
#include "platform/Clock.h"

#include <QDir>
#include <QFile>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kRollKilobytes = 10 * 1024;

QString& User()
{
    static QString user;
    return user;
}

QString KindName(qint16 kind)
{
    switch (kind) {
    case LogUser:
        return u"LogUser"_s;
    case LogSys:
        return u"LogSys"_s;
    case LogRecord:
        return u"LogRecord"_s;
    case LogDevice:
        return u"LogDevice"_s;
    default:
        return {};
    }
}

// The file the next line of `stem` goes to: the highest number seen, and the next one when that file is full.
QString RollingName(const QString& folder, const QString& stem)
{
    int number = 0;
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString& file : files) {
        if (!file.contains(stem) || !file.contains(u'_'))
            continue;
        number = qMax(number, file.section(u'_', 1, 1).section(u'.', 0, 0).toInt());
    }
    const auto name = [&] { return number >= 1 ? stem + u'_' + QString::number(number) : stem; };
    const QFileInfo candidate(folder + name() + u".txt"_s);
    if (candidate.exists() && candidate.size() / 1024 >= kRollKilobytes)
        ++number;
    return name() + u".txt"_s;
}

bool AppendLine(const QString& path, const QString& line)
{
    QFile file(path);
    const bool fresh = !file.exists();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return false;
    if (fresh)
        OwnerOnly(path);
    const QByteArray bytes = line.toUtf8() + "\r\n";
    return file.write(bytes) == bytes.size();
}

bool MarkRunning(const QString& text)
{
    const QString path = StationPath(u"\\Running.txt");
    if (text.toUpper() == "SHUTDOWN"_L1) {
        if (QFile::exists(path))
            return QFile::remove(path);
        return true;
    }
    QFile file(path);
    return file.exists() || file.open(QIODevice::WriteOnly);
}

} // namespace

const QString& CurrentUser()
{
    return User();
}
void SetCurrentUser(const QString& user)
{
    User() = user;
}

QString QuotedValue(const QString& value)
{
    QString doubled = value;
    doubled.replace(u'"', u"\"\""_s);
    return u'"' + doubled + u'"';
}

bool FileCheck(const QString& path)
{
    QDir().mkpath(path);
    return true;
}

bool LogSave(const QString& tag, qint16 kind, const QString& user, const QString& source, const QString& text)
{
    if (kind == Running)
        return MarkRunning(text);
    const QString name = KindName(kind);
    if (name.isEmpty())
        return false;

    const QDateTime now = Now();
    const QString stem = name + u'-' + now.toString(u"yyyyMMdd");
    const QString folder = StationPath(u"\\log\\");
    FileCheck(folder);

    QStringList values{QLocale::system().toString(now.date(), QLocale::ShortFormat), now.time().toString(u"HH:mm:ss"_s),
                       tag, user, text};
    if (kind != LogUser)
        values << source;
    for (QString& value : values)
        value = QuotedValue(value);
    return AppendLine(folder + RollingName(folder, stem), values.join(u','));
}

QString ListenTxtFile(const QString& trigger, const QString& applicationName, const QString& serverIP,
                      const QString& operatorName, const QString& stem)
{
    const QDateTime now = Now();
    const QString folder = StationPath(u"\\log\\Listen\\");
    FileCheck(folder);
    const QString name = u"Message-"_s + now.toString(u"yyyyMMddhhmmss") + stem + u".txt"_s;
    const QStringList lines{u"This is event message "_s,
                            u"The trigger is "_s + trigger,
                            u"Application Name : "_s + applicationName,
                            u"Server IP :"_s + serverIP,
                            u"Trigger timestamp is : "_s + now.toString(u"yyyy/MM/dd hh:mm:ss"),
                            u"The operator is : "_s + operatorName};
    if (!AppendLine(folder + name, lines.join(u"\r\n"_s)))
        LogTrap(u"Module_Log - ListenTxtFile"_s, u"Cannot write "_s + folder + name);
    return name;
}

void LogTrap(const QString& source, const QString& description)
{
    LogSave(CMS_Core, LogSys, CurrentUser(), source, description);
}
