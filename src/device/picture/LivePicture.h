#pragma once

#include "device/bridge/DeviceAddress.h"
#include "platform/HttpClient.h"

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QImage>
#include <QObject>
#include <QTimer>

// Why no picture comes.
enum class PictureFault
{
    None,
    NoAnswer, // within ten seconds, or the answer broke off
    Refused,  // no connection
    NotFound, // the host name has no address
    Login,    // the device refuses the login
    NoCamera, // the device has no picture of this channel
    NoPicture // what came is no picture
};

// The moving picture of one channel: asks the recorder for a JPEG again and again, each time as the one before has
// arrived, at most ten times a second. Pictures are decoded beside the event loop. After a failure it tries again every
// second.
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

    // Pictures from the next one on are made no larger than this many pixels (DecodeJpeg); an empty size asks for whole
    // ones, as at first.
    void SetRoom(const QSize& room) { m_room = room; }

    // Last picture, and its bytes and size as the device sent them; null before the first.
    const QImage& Picture() const { return m_picture; }
    const QByteArray& Jpeg() const { return m_jpeg; }
    const QSize& SourceSize() const { return m_sourceSize; }
    PictureFault Fault() const { return m_fault; } // of the last request; None while pictures come

signals:
    void PictureArrived(const QImage& picture);
    // Pictures have stopped coming, or do not come for another reason than before.
    void PictureLost(PictureFault fault);

private:
    struct Decoded
    {
        QImage picture;
        QSize sourceSize;
    };
    void ask();
    void take(const HttpReply& reply);
    void takeDecoded();
    void lose(PictureFault fault);

    HttpClient& m_http;
    DeviceAddress m_device;
    qint16 m_channel = 0;
    bool m_running = false;
    PictureFault m_fault = PictureFault::None;
    quint64 m_transfer = 0;
    QTimer m_next;
    QElapsedTimer m_asked;
    QSize m_room;
    QByteArray m_arrived; // being decoded
    QFutureWatcher<Decoded> m_decoding;
    QImage m_picture;
    QByteArray m_jpeg;
    QSize m_sourceSize;
};

// The request for one picture of a channel (from 1).
HttpRequest SnapshotRequest(const DeviceAddress& device, qint16 channel);
