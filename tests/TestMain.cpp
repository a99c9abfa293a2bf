#include "tests/TestMain.h"

#include "platform/AppPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <gmock/gmock.h>

TemporaryStation::TemporaryStation()
{
    SetAppPath(m_directory.path());
}

QString TemporaryStation::path(QStringView literal) const
{
    return StationPath(literal);
}

QByteArray TemporaryStation::read(QStringView literal) const
{
    QFile file(path(literal));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray TemporaryStation::logs() const
{
    QByteArray all;
    for (const QString& name : QDir(path(u"\\log")).entryList({QStringLiteral("LogSys-*.txt")}))
        all += read(QString(QStringLiteral("\\log\\") + name));
    return all;
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    QStandardPaths::setTestModeEnabled(true);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("RIGGING_DESK_FINDER", "lo");
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    return RUN_ALL_TESTS();
}
