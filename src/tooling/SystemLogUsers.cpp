#include "tooling/SystemLogUsers.h"

#include "app/log/Module_Log.h"

#include <limits>

SystemLogUsers::SystemLogUsers(Databases& databases, QObject* parent)
    : QObject(parent)
    , m_databases(databases)
{
    connect(&m_slices, &QTimer::timeout, this, &SystemLogUsers::slice);
}

void SystemLogUsers::start()
{
    const SystemLogQuery everything{std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max(), {}};
    m_reader = std::make_unique<SystemLogReader>(m_databases, everything);
    m_names.clear();
    m_slices.start(0);
}

void SystemLogUsers::slice()
{
    bool more = false;
    const bool ok = Trapped("Module_DB_Access - GetSystemLogUser", [&] {
        more = m_reader->read(QStringLiteral("User"), [this](const RowStream& row) {
            const QByteArrayView name = row.text(0);
            if (!m_names.contains(QByteArray::fromRawData(name.data(), name.size())))
                m_names.insert(name.toByteArray());
        });
    });
    if (more)
        return;
    m_slices.stop();
    if (!ok)
        return;
    QStringList users;
    for (const QByteArray& name : std::as_const(m_names)) {
        if (!name.isEmpty())
            users << QString::fromUtf8(name);
    }
    users.sort();
    emit found(users);
}
