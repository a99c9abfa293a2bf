#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QAbstractSpinBox>
#include <QProgressBar>
#include <QStyle>
#include <QTimer>
#include <QWidget>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

enum class ButtonKind
{
    Normal,
    Primary,
    Danger,
    Quiet
};

ButtonKind KindOf(const QWidget* widget)
{
    const QString kind = widget ? widget->property("kind").toString() : QString();
    if (kind == "primary"_L1)
        return ButtonKind::Primary;
    if (kind == "danger"_L1)
        return ButtonKind::Danger;
    return kind == "quiet"_L1 ? ButtonKind::Quiet : ButtonKind::Normal;
}

bool IsEnabled(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_Enabled);
}

bool IsHovered(const QStyleOption& option)
{
    return IsEnabled(option) && option.state.testFlag(QStyle::State_MouseOver);
}

bool IsPressed(const QStyleOption& option)
{
    return IsEnabled(option) && option.state.testFlag(QStyle::State_Sunken);
}

// `base` with "Hover" or "Pressed" behind its name when the control is in that state.
QColor StateToken(const QStyleOption& option, QLatin1StringView base, QLatin1StringView hovered,
                  QLatin1StringView pressed)
{
    return Token(IsPressed(option) ? pressed : IsHovered(option) ? hovered : base);
}

void PaintTinted(QPainter* painter, const QRect& rect, QLatin1StringView name, QLatin1StringView token)
{
    Icon(name, token).paint(painter, rect, Qt::AlignCenter);
}

// Indeterminate bars move: one timer of the process repaints those on show.
class BusyBars : public QObject
{
public:
    static BusyBars& instance()
    {
        static BusyBars bars;
        return bars;
    }

    void add(QWidget* bar)
    {
        if (!m_bars.contains(bar)) {
            m_bars.append(bar);
            connect(bar, &QObject::destroyed, this,
                    [this](QObject* gone) { m_bars.removeIf([gone](const QWidget* each) { return each == gone; }); });
        }
        if (!m_timer.isActive())
            m_timer.start(33);
    }

private:
    BusyBars()
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            bool busy = false;
            for (QWidget* bar : std::as_const(m_bars)) {
                const auto* progress = qobject_cast<QProgressBar*>(bar);
                if (bar->isVisible() && progress && progress->minimum() == progress->maximum()) {
                    bar->update();
                    busy = true;
                }
            }
            if (!busy)
                m_timer.stop();
        });
    }

    QTimer m_timer;
    QList<QWidget*> m_bars;
};

qreal BusyPhase()
{
    using namespace std::chrono;
    const auto now = duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    return static_cast<qreal>(now % 1600) / 1600.0;
}

} // namespace

void PaintBox(QPainter* painter, const QRectF& rect, qreal radius, const QColor& fill, const QColor& border,
              qreal width)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter->setPen(border.isValid() ? QPen(border, width) : QPen(Qt::NoPen));
    const qreal inset = border.isValid() ? width / 2 : 0;
    const QRectF inner = rect.adjusted(inset, inset, -inset, -inset);
    painter->drawRoundedRect(inner, std::max(0.0, radius - inset), std::max(0.0, radius - inset));
    painter->restore();
}

void PaintFocusRing(QPainter* painter, const QRectF& rect, qreal radius)
{
    PaintBox(painter, rect, radius, {}, Token("accent"_L1), 2);
}

bool ShowsFocusRing(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

bool WalkedByKeyboard(const QWidget* widget)
{
    return widget && widget->window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

void PaintButton(const QStyleOptionButton& option, QPainter* painter, const QWidget* widget)
{
    const bool enabled = IsEnabled(option);
    const bool on = option.state.testFlag(QStyle::State_On);
    const bool ring = ShowsFocusRing(option);
    QRectF rect(option.rect);
    QColor fill;
    QColor border;
    switch (KindOf(widget)) {
    case ButtonKind::Primary:
        fill = StateToken(option, "primary"_L1, "primaryHover"_L1, "primaryPressed"_L1);
        break;
    case ButtonKind::Danger:
        fill = StateToken(option, "danger"_L1, "dangerHover"_L1, "dangerPressed"_L1);
        break;
    case ButtonKind::Quiet:
        if (IsHovered(option) || IsPressed(option))
            fill = StateToken(option, "raised"_L1, "raisedHover"_L1, "raisedPressed"_L1);
        break;
    case ButtonKind::Normal:
        fill = on ? Token("accentGround"_L1) : StateToken(option, "raised"_L1, "raisedHover"_L1, "raisedPressed"_L1);
        border = Token(on ? "accent"_L1 : "edge"_L1);
        break;
    }
    if (!enabled && KindOf(widget) != ButtonKind::Quiet) {
        fill = Token("raised"_L1);
        border = Token("line"_L1);
    }
    if (ring) {
        // The ring takes the outer edge; filled buttons keep a gap so that ring and filling stay apart.
        const bool filled = enabled && !border.isValid() && fill.isValid();
        PaintBox(painter, filled ? rect.adjusted(3, 3, -3, -3) : rect, filled ? 3.5 : kControlRadius, fill);
        PaintFocusRing(painter, rect, kControlRadius);
        return;
    }
    PaintBox(painter, rect, kControlRadius, fill, border);
}

void PaintButtonLabel(const QStyleOptionButton& option, QPainter* painter, const QWidget* widget)
{
    const ButtonKind kind = KindOf(widget);
    const bool filled = kind == ButtonKind::Primary || kind == ButtonKind::Danger;
    const QColor ink = !IsEnabled(option) ? Token("disabled"_L1) : Token(filled ? "onFilled"_L1 : "text"_L1);
    const bool menu = option.features.testFlag(QStyleOptionButton::HasMenu);
    const int gap = 8;
    QRect content = option.rect.adjusted(6, 0, menu ? -22 : -6, 0);

    QPixmap picture;
    if (!option.icon.isNull()) {
        const qreal ratio = painter->device()->devicePixelRatioF();
        picture = option.icon.pixmap(option.iconSize, ratio, IsEnabled(option) ? QIcon::Normal : QIcon::Disabled);
        const bool on = IsEnabled(option) && option.state.testFlag(QStyle::State_On);
        if ((filled || on) && option.icon.name().startsWith("desk:"_L1)) {
            QPainter tint(&picture);
            tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
            tint.fillRect(QRect(QPoint(), option.iconSize), filled ? ink : Token("accent"_L1));
        }
    }
    const int pictureWidth = picture.isNull() ? 0 : option.iconSize.width();
    const int spacing = pictureWidth && !option.text.isEmpty() ? gap : 0;
    const QFontMetrics metrics(painter->font());
    const QString text =
        metrics.elidedText(option.text, Qt::ElideRight, content.width() - pictureWidth - spacing, Qt::TextShowMnemonic);
    const int textWidth = metrics.size(Qt::TextShowMnemonic, text).width();
    const int width = pictureWidth + spacing + textWidth;
    const QRect box(content.left() + (content.width() - width) / 2, content.top(), width, content.height());
    if (!picture.isNull()) {
        const QRect place(box.left(), box.top() + (box.height() - option.iconSize.height()) / 2, pictureWidth,
                          option.iconSize.height());
        painter->drawPixmap(QStyle::visualRect(option.direction, box, place), picture);
    }
    painter->setPen(ink);
    painter->drawText(QStyle::visualRect(option.direction, box,
                                         QRect(box.right() - textWidth + 1, box.top(), textWidth, box.height())),
                      Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, text);
    if (menu) {
        const QRect arrow(option.rect.right() - 26, option.rect.top(), kIconSize, option.rect.height());
        PaintTinted(painter, QStyle::visualRect(option.direction, option.rect, arrow), "chevron-down"_L1,
                    filled ? "onFilled"_L1 : "muted"_L1);
    }
}

void PaintField(const QStyleOption& option, QPainter* painter, bool focused, bool faulty)
{
    const bool enabled = IsEnabled(option);
    const bool readOnly = option.state.testFlag(QStyle::State_ReadOnly);
    const QColor fill = Token(enabled && !readOnly ? "field"_L1 : "raised"_L1);
    const QColor border = faulty && enabled    ? Token("bad"_L1)
                          : focused && enabled ? Token("accent"_L1)
                          : !enabled           ? Token("line"_L1)
                                               : Token(IsHovered(option) && !readOnly ? "muted"_L1 : "control"_L1);
    PaintBox(painter, option.rect, kControlRadius, fill, border, focused && enabled ? 2 : 1);
}

void PaintCheckBox(const QStyleOption& option, QPainter* painter)
{
    const int side = std::min(18, std::min(option.rect.width(), option.rect.height()));
    QRect box(0, 0, side, side);
    box.moveCenter(option.rect.center());
    const bool enabled = IsEnabled(option);
    const bool partly = option.state.testFlag(QStyle::State_NoChange);
    const bool on = option.state.testFlag(QStyle::State_On) || partly;
    if (!enabled)
        PaintBox(painter, box, 4, Token("raised"_L1), Token("edge"_L1));
    else if (on)
        PaintBox(painter, box, 4, StateToken(option, "primary"_L1, "primaryHover"_L1, "primaryPressed"_L1));
    else
        PaintBox(painter, box, 4, IsPressed(option) ? Token("raisedPressed"_L1) : Token("field"_L1),
                 Token(IsHovered(option) ? "accent"_L1 : "control"_L1));
    if (on)
        PaintTinted(painter, box.adjusted(2, 2, -2, -2), partly ? "remove"_L1 : "check"_L1,
                    enabled ? "onFilled"_L1 : "disabled"_L1);
}

void PaintRadioButton(const QStyleOption& option, QPainter* painter)
{
    QRect box(0, 0, 18, 18);
    box.moveCenter(option.rect.center());
    const bool enabled = IsEnabled(option);
    const bool on = option.state.testFlag(QStyle::State_On);
    if (!enabled)
        PaintBox(painter, box, 9, Token("raised"_L1), Token("edge"_L1));
    else if (on)
        PaintBox(painter, box, 9, StateToken(option, "primary"_L1, "primaryHover"_L1, "primaryPressed"_L1));
    else
        PaintBox(painter, box, 9, Token("field"_L1), Token(IsHovered(option) ? "accent"_L1 : "control"_L1));
    if (on)
        PaintBox(painter, QRectF(box).adjusted(5.5, 5.5, -5.5, -5.5), 3.5,
                 Token(enabled ? "onFilled"_L1 : "disabled"_L1));
}

void PaintComboBox(const QStyleOptionComboBox& option, QPainter* painter, const QRect& arrow, bool faulty)
{
    const bool open = option.state.testFlag(QStyle::State_On);
    if (option.frame)
        PaintField(option, painter, open || option.state.testFlag(QStyle::State_HasFocus), faulty);
    PaintTinted(painter, arrow.adjusted(5, 0, -6, 0), "chevron-down"_L1,
                IsEnabled(option) ? "muted"_L1 : "disabled"_L1);
}

void PaintComboLabel(const QStyleOptionComboBox& option, QPainter* painter, const QRect& field)
{
    if (option.editable)
        return;
    QRect text = field;
    if (!option.currentIcon.isNull()) {
        const QSize size = option.iconSize;
        const QRect logical(field.left(), field.top() + (field.height() - size.height()) / 2, size.width(),
                            size.height());
        option.currentIcon.paint(painter, QStyle::visualRect(option.direction, field, logical), Qt::AlignCenter,
                                 IsEnabled(option) ? QIcon::Normal : QIcon::Disabled);
        text = QStyle::visualRect(option.direction, field, field.adjusted(size.width() + 8, 0, 0, 0));
    }
    painter->setPen(Token(IsEnabled(option) ? "text"_L1 : "disabled"_L1));
    // A painter takes the desk's direction by itself, not the control's.
    const Qt::LayoutDirection before = painter->layoutDirection();
    painter->setLayoutDirection(option.direction);
    painter->drawText(text,
                      static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter)),
                      painter->fontMetrics().elidedText(option.currentText, Qt::ElideRight, text.width()));
    painter->setLayoutDirection(before);
}

QIcon AccentIcon(const QIcon& icon)
{
    const QByteArray name = icon.name().mid(5).toLatin1();
    return Icon(QLatin1StringView(name), "accent"_L1);
}

void PaintSpinBox(const QStyleOptionSpinBox& option, QPainter* painter, const QRect& up, const QRect& down, bool faulty)
{
    if (option.frame)
        PaintField(option, painter, option.state.testFlag(QStyle::State_HasFocus), faulty);
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    const auto arrow = [&](const QRect& rect, QStyle::SubControl part, QLatin1StringView name, bool possible,
                           int shift) {
        const bool active = IsEnabled(option) && option.activeSubControls == part;
        const QRect place = QRect(rect.center().x() - 6, rect.center().y() - 6 + shift, 13, 13);
        PaintTinted(painter, place, name,
                    !possible || !IsEnabled(option) ? "disabled"_L1
                    : active                        ? "accent"_L1
                                                    : "muted"_L1);
    };
    arrow(up, QStyle::SC_SpinBoxUp, "chevron-up"_L1, option.stepEnabled.testFlag(QAbstractSpinBox::StepUpEnabled), 2);
    arrow(down, QStyle::SC_SpinBoxDown, "chevron-down"_L1,
          option.stepEnabled.testFlag(QAbstractSpinBox::StepDownEnabled), -2);
}

void PaintSlider(const QStyleOptionSlider& option, QPainter* painter, const QRect& groove, const QRect& handle)
{
    const bool across = option.orientation == Qt::Horizontal;
    const bool enabled = IsEnabled(option);
    QRectF track(groove);
    const QPointF centre = QRectF(groove).center();
    if (across)
        track = QRectF(groove.left() + 2, centre.y() - 2, groove.width() - 4, 4);
    else
        track = QRectF(centre.x() - 2, groove.top() + 2, 4, groove.height() - 4);
    PaintBox(painter, track, 2, Token("edge"_L1));
    const QPointF knob = QRectF(handle).center();
    QRectF filled = track;
    if (across && !option.upsideDown)
        filled.setRight(knob.x());
    else if (across)
        filled.setLeft(knob.x());
    else if (option.upsideDown)
        filled.setTop(knob.y());
    else
        filled.setBottom(knob.y());
    PaintBox(painter, filled, 2, Token(enabled ? "primary"_L1 : "control"_L1));
    const QRectF round(knob.x() - 8, knob.y() - 8, 16, 16);
    PaintBox(painter, round, 8, Token(enabled ? "surface"_L1 : "raised"_L1), Token(!enabled ? "edge"_L1 : "accent"_L1),
             2);
    if (ShowsFocusRing(option)) {
        PaintBox(painter, round.adjusted(-2, -2, 2, 2), 10, Token("surface"_L1), Token("accent"_L1), 2);
        PaintBox(painter, round.adjusted(2, 2, -2, -2), 6, Token("accent"_L1));
    } else if (IsPressed(option) || IsHovered(option)) {
        PaintBox(painter, round.adjusted(5, 5, -5, -5), 3, Token("accent"_L1));
    }
}

void PaintToolButton(const QStyleOptionToolButton& option, QPainter* painter, const QWidget* widget)
{
    const bool raised = option.state.testFlag(QStyle::State_AutoRaise) || KindOf(widget) == ButtonKind::Quiet;
    const bool on = option.state.testFlag(QStyle::State_On);
    const bool active = IsHovered(option) || IsPressed(option);
    const QColor fill = on                  ? Token("accentGround"_L1)
                        : !raised || active ? StateToken(option, "raised"_L1, "raisedHover"_L1, "raisedPressed"_L1)
                                            : QColor();
    const QColor border = raised && !on ? QColor()
                                        : Token(on                  ? "accent"_L1
                                                : IsEnabled(option) ? "edge"_L1
                                                                    : "line"_L1);
    PaintBox(painter, option.rect, kControlRadius, fill, border);
    if (ShowsFocusRing(option))
        PaintFocusRing(painter, option.rect, kControlRadius);
}

void PaintGroupBox(const QStyleOptionGroupBox& option, QPainter* painter, const QRect& title, const QRect& check)
{
    if (!option.features.testFlag(QStyleOptionFrame::Flat))
        PaintBox(painter, option.rect, kCardRadius, Token("surface"_L1), Token("line"_L1));
    if (option.subControls.testFlag(QStyle::SC_GroupBoxCheckBox)) {
        QStyleOption indicator(option);
        indicator.rect = check;
        PaintCheckBox(indicator, painter);
        if (ShowsFocusRing(option))
            PaintFocusRing(painter, QRectF(check.united(title)).adjusted(-4, -2, 4, 2), 4);
    }
    if (option.text.isEmpty())
        return;
    painter->save();
    painter->setFont(DeskFont(1.06, true));
    painter->setPen(Token(IsEnabled(option) ? "text"_L1 : "disabled"_L1));
    const Qt::Alignment alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter);
    painter->drawText(
        title, static_cast<int>(alignment) | Qt::TextShowMnemonic,
        painter->fontMetrics().elidedText(option.text, Qt::ElideRight, title.width(), Qt::TextShowMnemonic));
    painter->restore();
}

void PaintProgress(const QStyleOptionProgressBar& option, QPainter* painter, const QWidget* widget)
{
    const bool busy = option.minimum == option.maximum;
    const QFontMetrics metrics(painter->font());
    const int label = option.textVisible && !busy ? metrics.horizontalAdvance(u"100%"_s) + 12 : 0;
    QRect track(option.rect.left(), option.rect.center().y() - 3, std::max(8, option.rect.width() - label), 8);
    track = QStyle::visualRect(option.direction, option.rect, track);
    PaintBox(painter, track, 4, Token("raised"_L1), Token("edge"_L1));
    const bool mirrored = (option.direction == Qt::RightToLeft) != option.invertedAppearance;
    QRectF filled(track);
    if (busy) {
        const qreal part = track.width() * 0.3;
        const qreal start = BusyPhase() * (track.width() + part) - part;
        filled = QRectF(track.left() + start, track.top(), part, track.height()).intersected(QRectF(track));
        if (widget)
            BusyBars::instance().add(const_cast<QWidget*>(widget));
    } else {
        const qint64 span = qint64(option.maximum) - option.minimum;
        const qint64 done = qint64(std::clamp(option.progress, option.minimum, option.maximum)) - option.minimum;
        filled.setWidth(track.width() * static_cast<qreal>(done) / static_cast<qreal>(span));
        if (mirrored)
            filled.moveRight(track.right() + 1);
    }
    if (filled.width() >= 1)
        PaintBox(painter, filled, std::min(4.0, filled.width() / 2), Token("accent"_L1));
    if (label) {
        const QRect place(option.rect.right() - label + 1, option.rect.top(), label, option.rect.height());
        painter->setPen(Token(IsEnabled(option) ? "text"_L1 : "disabled"_L1));
        painter->drawText(
            QStyle::visualRect(option.direction, option.rect, place),
            static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignRight | Qt::AlignVCenter)),
            option.text);
    }
}
