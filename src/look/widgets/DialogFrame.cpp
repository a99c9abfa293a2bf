#include "look/widgets/DialogFrame.h"

#include "look/style/DeskPaint.h"
#include "look/widgets/ActionBar.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/ElidedLabel.h"
#include "look/widgets/Fields.h"
#include "look/widgets/SecondClick.h"
#include "look/widgets/StepStrip.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTitleHeight = 52;
constexpr int kBeside = 42; // the frame's margins beside the content

// Lies over the window behind a dialog and follows its size.
class Scrim : public QWidget
{
public:
    explicit Scrim(QWidget* window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
        setGeometry(window->rect());
        window->installEventFilter(this);
        show();
        raise();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return QWidget::eventFilter(watched, event);
    }

    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), CurrentScheme() == Scheme::Dark ? QColor(6, 8, 10, 128) : QColor(27, 35, 44, 76));
    }
};

// Windows can be cut to shape on X11 only; elsewhere the corners stay square.
bool HasRoundCorners()
{
    return QGuiApplication::platformName() == "xcb"_L1;
}

} // namespace

// Holds the content. It asks for all the room that the content wants, up to what the screen has; only beyond that it
// scrolls.
class DialogFrame::ContentArea : public QScrollArea
{
public:
    ContentArea(const DialogFrame& frame, QWidget* content)
        : m_frame(frame)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(content);
        content->setAutoFillBackground(false);
        viewport()->setAutoFillBackground(false);
    }

    QSize sizeHint() const override { return bounded(widget()->sizeHint()); }
    QSize minimumSizeHint() const override
    {
        return bounded(widget()->minimumSizeHint().expandedTo(widget()->minimumSize()));
    }
    bool hasHeightForWidth() const override { return widget()->hasHeightForWidth(); }
    int heightForWidth(int width) const override
    {
        const QLayout* layout = widget()->layout();
        const int height = layout && layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                                                 : widget()->heightForWidth(width);
        return std::min(height, m_frame.roomForContent());
    }

protected:
    // The content wants another size: so does the dialog.
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::event(event);
    }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    QSize bounded(QSize size) const
    {
        const int room = m_frame.roomForContent();
        if (size.height() > room)
            size = QSize(size.width() + verticalScrollBar()->sizeHint().width(), room);
        return {std::min(size.width(), m_frame.screen()->availableGeometry().width() - kBeside), size.height()};
    }

    const DialogFrame& m_frame;
};

DialogFrame::DialogFrame(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_column(new QVBoxLayout(this))
    , m_titleRow(new QWidget)
    , m_title(new ElidedLabel)
    , m_subtitle(new ElidedLabel)
    , m_close(new QToolButton)
    , m_body(new QVBoxLayout)
    , m_content(new QWidget)
    , m_area(new ContentArea(*this, m_content))
{
    setModal(true);
    setSizeGripEnabled(true);
    SetRole(m_title, "headline"_L1);
    SetRole(m_subtitle, "muted"_L1);
    m_close->setIcon(Icon("close"_L1, "muted"_L1));
    m_close->setAutoRaise(true);
    m_close->setFixedSize(32, 32);
    m_close->setFocusPolicy(Qt::NoFocus); // Esc is its key
    setCloseText(u"Close"_s);
    connect(m_close, &QToolButton::clicked, this, &QWidget::close); // ends in reject
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] { FocusFilter(this); });

    m_titleRow->setFixedHeight(kTitleHeight);
    auto* title = new QHBoxLayout(m_titleRow);
    // Margins are not mirrored, spacings are.
    title->setContentsMargins(12, 0, 12, 1);
    title->setSpacing(12);
    title->addSpacing(8);
    title->addWidget(m_title);
    title->addWidget(m_subtitle, 1);
    title->addWidget(m_close);

    m_body->setContentsMargins(20, 20, 20, 20);
    m_body->addWidget(m_area);
    m_column->setContentsMargins(1, 1, 1, 1);
    m_column->setSpacing(0);
    m_column->addWidget(m_titleRow);
    m_column->addLayout(m_body, 1);
}

DialogFrame::~DialogFrame()
{
    delete m_scrim;
}

void DialogFrame::setSubtitle(const QString& text)
{
    m_subtitle->setText(text);
}

void DialogFrame::setCloseText(const QString& text)
{
    m_close->setToolTip(text);
    m_close->setAccessibleName(text);
}

void DialogFrame::setClosable(bool closable)
{
    m_close->setVisible(closable);
}

void DialogFrame::setContentMargins(int horizontal, int vertical)
{
    m_body->setContentsMargins(horizontal, vertical, horizontal, vertical);
}

StepStrip* DialogFrame::steps()
{
    if (!m_steps) {
        m_steps = new StepStrip;
        m_column->insertWidget(1, m_steps);
    }
    return m_steps;
}

ActionBar* DialogFrame::footer()
{
    if (!m_footer)
        setFooter(new ActionBar);
    return m_footer;
}

void DialogFrame::setFooter(ActionBar* footer)
{
    m_footer = footer;
    m_footer->layout()->setContentsMargins(20, 13, 20, 12);
    m_column->addWidget(m_footer);
}

bool DialogFrame::event(QEvent* event)
{
    if (event->type() == QEvent::WindowTitleChange)
        m_title->setText(windowTitle());
    return QDialog::event(event);
}

int DialogFrame::roomForContent() const
{
    const QMargins margins = m_body->contentsMargins();
    int taken = kTitleHeight + margins.top() + margins.bottom() + 2;
    for (const QWidget* part : {static_cast<QWidget*>(m_steps), static_cast<QWidget*>(m_footer)}) {
        if (part && !part->isHidden())
            taken += part->sizeHint().height();
    }
    return screen()->availableGeometry().height() - taken;
}

void DialogFrame::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    const QRect available = screen()->availableGeometry();
    resize(size().boundedTo(available.size()));
    const QRect owner = parentWidget() ? parentWidget()->window()->geometry() : available;
    QRect place = rect();
    place.moveCenter(owner.center());
    place.moveRight(std::min(place.right(), available.right()));
    place.moveBottom(std::min(place.bottom(), available.bottom()));
    place.moveTopLeft({std::max(place.left(), available.left()), std::max(place.top(), available.top())});
    move(place.topLeft());
    DropSecondClick(); // nothing here was under the pointer when it pressed
    if (!parentWidget())
        return;
    if (isModal() && !m_scrim)
        m_scrim = new Scrim(parentWidget()->window());
}

void DialogFrame::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    DropSecondClick();
    delete m_scrim;
}

void DialogFrame::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const qreal radius = HasRoundCorners() ? kCardRadius : 0;
    PaintBox(&painter, rect(), radius, Token("surface"_L1), Token("edge"_L1));
    painter.fillRect(QRect(1, kTitleHeight, width() - 2, 1), Token("line"_L1));
}

void DialogFrame::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (!HasRoundCorners())
        return;
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(rect(), kCardRadius, kCardRadius);
    painter.end();
    setMask(shape);
}

void DialogFrame::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && event->position().y() <= kTitleHeight && windowHandle())
        windowHandle()->startSystemMove();
    else
        QDialog::mousePressEvent(event);
}
