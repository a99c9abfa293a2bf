#pragma once

#include "tooling/SystemLogReader.h"

#include <QSet>
#include <QTimer>

// Gathers the distinct names of the audit log while the event loop turns.
class SystemLogUsers : public QObject
{
    Q_OBJECT
public:
    explicit SystemLogUsers(Databases& databases, QObject* parent = nullptr);

    // Begins anew.
    void start();

signals:
    // Sorted, without the empty name. Nothing is told when the log cannot be read.
    void found(const QStringList& users);

private:
    void slice();

    Databases& m_databases;
    QTimer m_slices;
    std::unique_ptr<SystemLogReader> m_reader;
    QSet<QByteArray> m_names;
};
