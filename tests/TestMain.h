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
    QByteArray logs() const; // the text of all its system logs

private:
    QTemporaryDir m_directory;
};

// The application that a test program runs in: a plain one, or one with windows in the desk's look.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv);
