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

// Values escape backslashes and line ends (freedesktop.org desktop entries, "Possible value types").
QString EscapedValue(QString text)
{
    text.replace(u'\\', u"\\\\"_s);
    text.replace(u'\n', u"\\n"_s);
    text.replace(u'\r', u"\\r"_s);
    return text.replace(u'\t', u"\\t"_s);
}

QString UnescapedValue(const QString& text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        const QChar letter = text[++i];
        plain += letter == u'n' ? u'\n' : letter == u'r' ? u'\r' : letter == u't' ? u'\t' : letter;
    }
    return plain;
}

// An argument stands in double quotes, its quotes, backquotes, dollars and backslashes behind a backslash; "%" would
// begin a field code ("The Exec key").
QString QuotedProgram(const QString& program)
{
    QString quoted;
    for (const QChar letter : program) {
        if (u"\"`$\\"_s.contains(letter))
            quoted += u'\\';
        quoted += letter;
        if (letter == u'%')
            quoted += letter;
    }
    return u'"' + quoted + u'"';
}

QString UnquotedProgram(const QString& command)
{
    QString program;
    for (qsizetype i = 1; i + 1 < command.size(); ++i) {
        if (command[i] == u'\\' || command[i] == u'%')
            ++i;
        program += command[i];
    }
    return program;
}

} // namespace

bool SetAutostart(AutostartScope scope, const QString& name, const QString& program)
{
    QDir().mkpath(Folder(scope));
    QSaveFile file(Folder(scope) + name + u".desktop"_s);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write((u"[Desktop Entry]\nType=Application\nName="_s + EscapedValue(name) + u"\nExec="_s +
                EscapedValue(QuotedProgram(program)) + u"\n"_s)
                   .toUtf8());
    return file.commit();
}

bool DeleteAutostart(AutostartScope scope, const QString& name)
{
    QFile file(Folder(scope) + name + u".desktop"_s);
    return !file.exists() || file.remove();
}

QString AutostartProgram(AutostartScope scope, const QString& name)
{
    QFile file(Folder(scope) + name + u".desktop"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith("Exec="_L1))
            return UnquotedProgram(UnescapedValue(line.mid(5)));
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
