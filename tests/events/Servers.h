#pragma once

#include "tests/Await.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

// A real mail or upload server in a process of its own, which ends with this object.
class Server
{
public:
    explicit Server(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("/usr/bin/python3"),
                        QStringList{QStringLiteral("-Wignore"), QStringLiteral(DESK_TEST_SERVERS)} + arguments);
        EXPECT_TRUE(WaitUntil([this] { return m_process.canReadLine(); }, 30)) << "the server does not start";
        port = m_process.readLine().trimmed().toInt();
    }
    ~Server()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
    }
    // The next mail that it has taken.
    QJsonObject mail()
    {
        EXPECT_TRUE(WaitUntil([this] { return m_process.canReadLine(); }, 10)) << "no mail came";
        return QJsonDocument::fromJson(m_process.readLine()).object();
    }

    int port = 0;

private:
    QProcess m_process;
};
