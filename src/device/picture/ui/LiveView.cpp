#include "device/picture/ui/LiveView.h"

#include "app/language/Languages.h"
#include "look/style/DeskPaint.h"

using namespace Qt::StringLiterals;

namespace {

enum Words
{
    kNoAnswer = 959,
    kNotFound = 960,
    kRefused = 961,
    kLoginRefused = 958,
    kUnexpected = 962,
    kNoCamera = 966,
    kLive = 908,
    kConnecting = 1221,
    kNoPicture = 1222,
    kTriesAgain = 1223
};

// Of the picture's surroundings in both schemes: a picture is not judged against white.
constexpr QRgb kGround = qRgb(22, 26, 31);
constexpr QRgb kInk = qRgb(230, 235, 240);
constexpr int kMargin = 10;

int ReasonText(PictureFault fault)
{
    switch (fault) {
    case PictureFault::Refused:
        return kRefused;
    case PictureFault::NotFound:
        return kNotFound;
    case PictureFault::Login:
        return kLoginRefused;
    case PictureFault::NoCamera:
        return kNoCamera;
    case PictureFault::NoPicture:
        return kUnexpected;
    default:
        return kNoAnswer;
    }
}

} // namespace

LiveView::LiveView(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

LiveView::~LiveView() = default;

void LiveView::Start(HttpClient& http, const DeviceAddress& device, qint16 channel)
{
    m_live = std::make_unique<LivePicture>(http);
    connect(m_live.get(), &LivePicture::PictureArrived, this, &LiveView::arrived);
    connect(m_live.get(), &LivePicture::PictureLost, this, &LiveView::tellState);
    m_device = device;
    m_channel = channel;
    m_shown = QImage();
    if (isVisible())
        ask();
    tellState();
}

void LiveView::Stop()
{
    m_live.reset();
    m_shown = QImage();
    tellState();
}

void LiveView::setCaption(const QString& caption)
{
    m_caption = caption;
    update();
}

void LiveView::setCross(bool shown)
{
    m_cross = shown;
    update();
}

QString LiveView::stateText() const
{
    if (!m_live)
        return {};
    if (lost())
        return GetLangString(kNoPicture) + u": "_s + GetLangString(ReasonText(m_live->Fault()));
    const QSize size = m_live->SourceSize();
    if (size.isEmpty())
        return GetLangString(kConnecting);
    return GetLangString(kLive) + u" %1 × %2"_s.arg(size.width()).arg(size.height());
}

void LiveView::ask()
{
    m_live->SetRoom(size() * devicePixelRatioF());
    m_live->Start(m_device, m_channel);
}

void LiveView::arrived()
{
    m_shown = m_live->Picture();
    tellState();
    update();
}

void LiveView::tellState()
{
    const QString now = stateText();
    if (now == m_told)
        return;
    m_told = now;
    setAccessibleDescription(now);
    update();
    emit stateChanged();
}

QRect LiveView::place(const QSize& picture) const
{
    QRect rect(QPoint(), picture.scaled(size(), Qt::KeepAspectRatio));
    rect.moveCenter(this->rect().center());
    return rect;
}

void LiveView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(kGround));
    if (!m_shown.isNull()) {
        const QRect where = place(m_shown.size());
        // A picture made for this size lies pixel on pixel.
        painter.setRenderHint(QPainter::SmoothPixmapTransform, where.size() * devicePixelRatioF() != m_shown.size());
        painter.drawImage(where, m_shown);
        if (lost())
            painter.fillRect(where, QColor(0, 0, 0, 150));
    }
    if (m_cross && !m_shown.isNull() && !lost()) {
        const QPoint middle = rect().center();
        painter.setPen(QColor(255, 255, 255, 200));
        painter.drawLine(middle - QPoint(12, 0), middle + QPoint(12, 0));
        painter.drawLine(middle - QPoint(0, 12), middle + QPoint(0, 12));
    }
    paintWords(painter);
    if (hasFocus())
        PaintFocusRing(&painter, QRectF(rect()), 0);
}

void LiveView::paintWords(QPainter& painter) const
{
    const QRect room = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter.setPen(QColor(kInk));
    if (!m_caption.isEmpty() && !m_shown.isNull()) {
        const QString caption = fontMetrics().elidedText(m_caption, Qt::ElideRight, room.width() - 2 * kMargin);
        QRect box = fontMetrics().boundingRect(caption).adjusted(-6, -3, 6, 3);
        box.moveBottomLeft(room.bottomLeft());
        if (isRightToLeft())
            box.moveRight(room.right());
        painter.fillRect(box, QColor(0, 0, 0, 120));
        painter.drawText(box, Qt::AlignCenter, caption);
    }
    if (m_live && (lost() || m_shown.isNull())) {
        const QString words = lost() ? stateText() + u'\n' + GetLangString(kTriesAgain) : stateText();
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, words);
    }
}

void LiveView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_live && !m_live->Running())
        ask();
}

void LiveView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (m_live)
        m_live->Stop();
}

void LiveView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_live)
        m_live->SetRoom(size() * devicePixelRatioF());
}
