#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>
#include <memory>

// A test's own station folder: AppPath points into it for the life of the object.
class TemporaryStation
{
public:
    TemporaryStation();
    QString path(QStringView literal) const;
    QByteArray read(QStringView literal) const;

private:
    QTemporaryDir m_directory;
};

// Set by a test program that needs a QApplication (before main runs).
extern std::unique_ptr<QCoreApplication> (*g_applicationFactory)(int&, char**);
