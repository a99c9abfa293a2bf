#include "device/picture/CoreBridge.h"

#include "app/log/Module_Log.h"
#include "device/bridge/Form_COM.h"
#include "device/picture/JpegBridge.h"
#include "device/picture/LivePicture.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <memory>
#include <stdexcept>

CoreBridge::CoreBridge(Form_COM& com, QObject* parent)
    : QObject(parent)
    , m_http(com.http)
{
    connect(&com, &Form_COM::Unloading, this, &CoreBridge::ShutDown);
}

CoreBridge::~CoreBridge()
{
    ShutDown();
}

void CoreBridge::GetSnapshot(const DeviceAddress& device, qint16 channel, qint32 channelValue, qint32 secondValue,
                             const QString& path)
{
    if (m_shutDown)
        return;
    const auto handle = std::make_shared<quint64>(0); // known only once the request has begun
    *handle = m_http.start(SnapshotRequest(device, channel), [=, this](const HttpReply& reply) {
        m_transfers.erase(*handle);
        const bool came = reply.failure == HttpFailure::None && reply.status == 200;
        finish(came ? reply.body : QByteArray(), channelValue, secondValue, path);
    });
    m_transfers.insert(*handle);
}

void CoreBridge::SaveCurrentPicture(const LivePicture& live, qint32 channelValue, qint32 secondValue,
                                    const QString& path)
{
    if (m_shutDown)
        return;
    QMetaObject::invokeMethod(
        this,
        [=, this, jpeg = live.Jpeg()] {
            if (!m_shutDown)
                finish(jpeg, channelValue, secondValue, path);
        },
        Qt::QueuedConnection);
}

void CoreBridge::ShutDown()
{
    m_shutDown = true;
    for (const quint64 transfer : m_transfers)
        m_http.cancel(transfer);
    m_transfers.clear();
}

void CoreBridge::finish(const QByteArray& jpeg, qint32 channelValue, qint32 secondValue, const QString& path)
{
    const bool written = Trapped("CoreBridge - OnGetSnapshot", [&] {
        if (DecodeJpeg(jpeg).isNull())
            throw std::runtime_error("No picture from the device");
        QDir().mkpath(QFileInfo(path).absolutePath());
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(jpeg) != jpeg.size() || !file.commit())
            throw std::runtime_error("Cannot write " + path.toStdString());
    });
    if (written)
        emit OnGetSnapshot(channelValue, secondValue, path);
    else
        emit OnSnapshotFailed(channelValue, secondValue, path);
}
