#include "platform/AppPath.h"

#include <QFile>
#include <QFileInfo>

namespace {
QString& Stored()
{
    static QString path;
    return path;
}
} // namespace

const QString& AppPath()
{
    return Stored();
}

void SetAppPath(const QString& path)
{
    Stored() = path;
    if (path.endsWith(u'\\') || path.endsWith(u'/'))
        Stored().chop(1);
}

QString StationPath(QStringView literal)
{
    QString tail = literal.toString();
    tail.replace(u'\\', u'/');
    return AppPath() + tail;
}

bool OwnerOnly(const QString& path)
{
    QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner;
    if (QFileInfo(path).isDir())
        rights |= QFile::ExeOwner;
    return QFile::setPermissions(path, rights);
}
