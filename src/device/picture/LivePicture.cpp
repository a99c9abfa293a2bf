#include "device/picture/LivePicture.h"

#include "device/picture/JpegBridge.h"

#include <QPointer>

namespace {

constexpr qint64 kShortestPause = 100; // ms between two requests
constexpr int kRetryPause = 1000;      // ms after a failure
constexpr double kPictureSeconds = 10;

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
    m_lost = false;
    m_picture = QImage();
    m_jpeg.clear();
    ask();
}

void LivePicture::Stop()
{
    m_running = false;
    m_next.stop();
    m_http.cancel(m_transfer);
    m_transfer = 0;
}

void LivePicture::ask()
{
    m_asked.start();
    m_transfer = m_http.start(SnapshotRequest(m_device, m_channel), [this](const HttpReply& reply) { take(reply); });
}

void LivePicture::take(const HttpReply& reply)
{
    m_transfer = 0;
    QImage picture;
    if (reply.failure == HttpFailure::None && reply.status == 200)
        picture = DecodeJpeg(reply.body);
    if (picture.isNull()) {
        m_next.start(kRetryPause);
        if (!m_lost) {
            m_lost = true;
            emit PictureLost();
        }
        return;
    }
    m_lost = false;
    m_picture = picture;
    m_jpeg = reply.body;
    m_next.start(static_cast<int>(qMax<qint64>(0, kShortestPause - m_asked.elapsed())));
    emit PictureArrived(picture);
}
