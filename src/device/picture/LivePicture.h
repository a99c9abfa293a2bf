#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/HttpClient.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QTimer>

// The moving picture of one channel: asks the recorder for a JPEG again and again, each time as the one before has
// arrived, at most ten times a second. After a failure it tries again every second.
class LivePicture : public QObject
{
    Q_OBJECT

public:
    explicit LivePicture(HttpClient& http, QObject* parent = nullptr);
    ~LivePicture() override;

    // channel: from 1. Starts anew when running.
    void Start(const DeviceAddress& device, qint16 channel);
    void Stop(); // the last picture stays
    bool Running() const { return m_running; }

    // Last picture and its bytes as the device sent them; null before the first.
    const QImage& Picture() const { return m_picture; }
    const QByteArray& Jpeg() const { return m_jpeg; }

signals:
    void PictureArrived(const QImage& picture);
    void PictureLost(); // once, when pictures stop coming

private:
    void ask();
    void take(const HttpReply& reply);

    HttpClient& m_http;
    DeviceAddress m_device;
    qint16 m_channel = 0;
    bool m_running = false;
    bool m_lost = false;
    quint64 m_transfer = 0;
    QTimer m_next;
    QElapsedTimer m_asked;
    QImage m_picture;
    QByteArray m_jpeg;
};

// The request for one picture of a channel (from 1).
HttpRequest SnapshotRequest(const DeviceAddress& device, qint16 channel);
