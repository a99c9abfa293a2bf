#include "device/picture/LivePicture.h"

#include "device/picture/JpegBridge.h"

#include <QPromise>
#include <QThreadPool>
#include <memory>

namespace {

constexpr qint64 kShortestPause = 100; // ms between two requests
constexpr int kRetryPause = 1000;      // ms after a failure
constexpr double kPictureSeconds = 10;

PictureFault FaultOf(const HttpReply& reply)
{
    switch (reply.failure) {
    case HttpFailure::None:
        break;
    case HttpFailure::Refused:
        return PictureFault::Refused;
    case HttpFailure::NotResolved:
    case HttpFailure::BadRequest:
        return PictureFault::NotFound;
    case HttpFailure::TooLarge:
        return PictureFault::NoPicture;
    default:
        return PictureFault::NoAnswer;
    }
    if (reply.status == 401 || reply.status == 403)
        return PictureFault::Login;
    return reply.status == 200 ? PictureFault::None : PictureFault::NoCamera;
}

} // namespace

HttpRequest SnapshotRequest(const DeviceAddress& device, qint16 channel)
{
    HttpRequest request;
    request.address = device.address;
    request.port = device.port;
    request.user = device.user;
    request.password = device.password;
    request.target = "/snapshot.cgi?channel=" + QByteArray::number(channel);
    request.seconds = kPictureSeconds;
    return request;
}

LivePicture::LivePicture(HttpClient& http, QObject* parent)
    : QObject(parent)
    , m_http(http)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, &LivePicture::ask);
    connect(&m_decoding, &QFutureWatcherBase::finished, this, &LivePicture::takeDecoded);
}

LivePicture::~LivePicture()
{
    m_http.cancel(m_transfer);
}

void LivePicture::Start(const DeviceAddress& device, qint16 channel)
{
    Stop();
    m_device = device;
    m_channel = channel;
    m_running = true;
    m_fault = PictureFault::None;
    m_picture = QImage();
    m_jpeg.clear();
    m_sourceSize = QSize();
    ask();
}

void LivePicture::Stop()
{
    m_running = false;
    m_next.stop();
    m_http.cancel(m_transfer);
    m_transfer = 0;
    m_decoding.setFuture({}); // what is being decoded goes nowhere
}

void LivePicture::ask()
{
    m_asked.start();
    m_transfer = m_http.start(SnapshotRequest(m_device, m_channel), [this](const HttpReply& reply) { take(reply); });
}

void LivePicture::take(const HttpReply& reply)
{
    m_transfer = 0;
    const PictureFault fault = FaultOf(reply);
    if (fault != PictureFault::None) {
        lose(fault);
        return;
    }
    m_arrived = reply.body;
    const auto promise = std::make_shared<QPromise<Decoded>>();
    m_decoding.setFuture(promise->future());
    QThreadPool::globalInstance()->start([promise, bytes = reply.body, room = m_room] {
        promise->start();
        promise->addResult(Decoded{DecodeJpeg(bytes, room), JpegSize(bytes)});
        promise->finish();
    });
}

void LivePicture::takeDecoded()
{
    if (!m_running || m_decoding.future().resultCount() == 0)
        return;
    const Decoded decoded = m_decoding.result();
    if (decoded.picture.isNull()) {
        lose(PictureFault::NoPicture);
        return;
    }
    m_fault = PictureFault::None;
    m_picture = decoded.picture;
    m_sourceSize = decoded.sourceSize;
    m_jpeg = std::exchange(m_arrived, {});
    m_next.start(static_cast<int>(qMax<qint64>(0, kShortestPause - m_asked.elapsed())));
    emit PictureArrived(m_picture);
}

void LivePicture::lose(PictureFault fault)
{
    m_next.start(kRetryPause);
    if (std::exchange(m_fault, fault) != fault)
        emit PictureLost(fault);
}
