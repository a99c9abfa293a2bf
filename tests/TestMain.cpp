#include "tests/TestMain.h"

#include "platform/AppPath.h"

#include <QCoreApplication>
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

// Windows need a QApplication: their test programs name the factory of theirs here.
std::unique_ptr<QCoreApplication> (*g_applicationFactory)(int&, char**) = nullptr;

int main(int argc, char** argv)
{
    ::testing::InitGoogleMock(&argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const auto application =
        g_applicationFactory ? g_applicationFactory(argc, argv) : std::make_unique<QCoreApplication>(argc, argv);
    return RUN_ALL_TESTS();
}
