#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/HttpClient.h"

#include <QObject>
#include <QString>
#include <set>

class Form_COM;
class LivePicture;

// Snapshots of channels as files. They end with the host's Unloading.
class CoreBridge : public QObject
{
    Q_OBJECT

public:
    explicit CoreBridge(Form_COM& com, QObject* parent = nullptr);
    ~CoreBridge() override;

    // Asks the recorder for a picture of the channel (from 1) and writes it to `path` (a platform path, whose folder
    // is made). OnGetSnapshot or OnSnapshotFailed follows, never from within the call.
    void GetSnapshot(const DeviceAddress& device, qint16 channel, qint32 channelValue, qint32 secondValue,
                     const QString& path);
    // The same with the picture that is shown now.
    void SaveCurrentPicture(const LivePicture& live, qint32 channelValue, qint32 secondValue, const QString& path);

    // Ends what is under way without events; later calls do nothing.
    void ShutDown();

signals:
    // The file is written. The two values are those of the call.
    void OnGetSnapshot(qint32 channelValue, qint32 secondValue, const QString& path);
    // No picture came, what came is none, or the file could not be written (logged).
    void OnSnapshotFailed(qint32 channelValue, qint32 secondValue, const QString& path);

private:
    void finish(const QByteArray& jpeg, qint32 channelValue, qint32 secondValue, const QString& path);

    HttpClient& m_http;
    std::set<quint64> m_transfers;
    bool m_shutDown = false;
};
