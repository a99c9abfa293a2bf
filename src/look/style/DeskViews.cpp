#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QAbstractItemView>
#include <QHeaderView>
#include <QPainterPath>
#include <QStyle>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

bool IsEnabled(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_Enabled);
}

// The row the pointer is over in a view that StyleTable set up, -1 for none.
int HoverRow(const QTableView* table)
{
    const QVariant row = table->viewport()->property("deskHoverRow");
    return row.isValid() ? row.toInt() : -1;
}

// The inside of a framed view, where its corners are round.
QRectF InnerBox(const QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    if (!view)
        return {};
    const QWidget* viewport = view->viewport();
    return QRectF(QPointF(1, 1) - viewport->pos(), QSizeF(view->width() - 2, view->height() - 2));
}

QColor RowColour(const QStyleOptionViewItem& option, const QWidget* widget, bool hovered)
{
    if (option.state.testFlag(QStyle::State_Selected))
        return Token("accentGround"_L1);
    if (hovered && widget && widget->isEnabled())
        return Token("hover"_L1);
    return {};
}

} // namespace

void FillWithin(QPainter* painter, const QRect& rect, const QRectF& box, qreal radius, const QColor& fill)
{
    if (!fill.isValid())
        return;
    const QRectF core = box.adjusted(radius, radius, -radius, -radius);
    const bool corner = !box.isEmpty() && (rect.left() < core.left() || rect.right() > core.right()) &&
                        (rect.top() < core.top() || rect.bottom() > core.bottom());
    if (!corner) {
        painter->fillRect(rect, fill);
        return;
    }
    QPainterPath outline;
    outline.addRoundedRect(box, radius, radius);
    QPainterPath part;
    part.addRect(rect);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(outline.intersected(part), fill);
    painter->restore();
}

void PaintViewRow(const QStyleOptionViewItem& option, QPainter* painter, const QWidget* widget)
{
    const auto* table = qobject_cast<const QTableView*>(widget);
    if (!table)
        return;
    // The view does not say which row it is painting here.
    const int row = HoverRow(table);
    const bool hovered = row >= 0 && table->rowAt(option.rect.center().y()) == row;
    FillWithin(painter, option.rect, InnerBox(widget), kCardRadius - 1, RowColour(option, widget, hovered));
    // Rows are parted by a line; the frame closes the last one where the table ends with it.
    if (option.rect.bottom() < table->viewport()->height() - 1)
        painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), Token("rowLine"_L1));
}

void PaintViewItem(const QStyleOptionViewItem& option, QPainter* painter, const QWidget* widget)
{
    if (option.backgroundBrush.style() != Qt::NoBrush)
        painter->fillRect(option.rect, option.backgroundBrush);
    if (qobject_cast<const QTableView*>(widget))
        return; // the row has painted it
    const QColor fill = RowColour(option, widget, option.state.testFlag(QStyle::State_MouseOver));
    if (!fill.isValid())
        return;
    PaintBox(painter, QRectF(option.rect).adjusted(2, 1, -2, -1), 5, fill);
}

void PaintBranch(const QStyleOption& option, QPainter* painter)
{
    if (!option.state.testFlag(QStyle::State_Children))
        return;
    QRect box(0, 0, 13, 13);
    box.moveCenter(option.rect.center());
    const bool open = option.state.testFlag(QStyle::State_Open);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    Icon(open ? "chevron-down"_L1 : "following"_L1, hovered ? "text"_L1 : "muted"_L1)
        .paint(painter, box, Qt::AlignCenter);
}

void PaintHeaderSection(const QStyleOption& option, QPainter* painter, const QWidget* widget)
{
    const auto* header = qobject_cast<const QHeaderView*>(widget);
    const bool upright = header && header->orientation() == Qt::Vertical;
    QRectF box;
    if (header && !upright && qobject_cast<const QAbstractItemView*>(header->parentWidget())) {
        // Round at the top, straight at the bottom.
        const QWidget* view = header->parentWidget();
        box = QRectF(1 - header->x(), 1 - header->y(), view->width() - 2, view->height() - 2);
    }
    const bool hovered =
        IsEnabled(option) && option.state.testFlag(QStyle::State_MouseOver) && header && header->sectionsClickable();
    FillWithin(painter, option.rect, box, kCardRadius - 1, Token(hovered ? "raisedHover"_L1 : "raised"_L1));
    const QRect line = upright ? QRect(option.rect.right(), option.rect.top(), 1, option.rect.height())
                               : QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1);
    painter->fillRect(line, Token("line"_L1));
}

void PaintHeaderLabel(const QStyleOptionHeader& option, QPainter* painter, const QWidget* widget)
{
    const auto* header = qobject_cast<const QHeaderView*>(widget);
    const bool upright = header && header->orientation() == Qt::Vertical;
    // The style hands over the rectangle less its header margin; the arrow stands right behind the text.
    QRect rect = option.rect;
    const bool sorted = option.sortIndicator != QStyleOptionHeader::None;
    const int arrow = sorted ? 17 : 0;
    int alignment = static_cast<int>(QStyle::visualAlignment(option.direction, option.textAlignment));
    if (upright)
        alignment = Qt::AlignCenter;
    const QFontMetrics metrics = painter->fontMetrics();
    const QString text = metrics.elidedText(option.text, Qt::ElideRight, rect.width() - arrow);
    const int width = std::min(metrics.horizontalAdvance(text), rect.width() - arrow);
    const bool right = (alignment & Qt::AlignRight) != 0;
    const bool centred = (alignment & Qt::AlignHCenter) != 0;
    const int left = right     ? rect.right() - width + 1
                     : centred ? rect.left() + (rect.width() - width) / 2
                               : rect.left();
    painter->setPen(Token(IsEnabled(option) ? "muted"_L1 : "disabled"_L1));
    painter->drawText(QRect(left, rect.top(), width + 1, rect.height()),
                      Qt::AlignVCenter | Qt::AlignLeft | Qt::AlignAbsolute | Qt::TextDontClip, text);
    if (sorted) {
        const QRect place(right ? left - arrow : left + width + 4, rect.center().y() - 6, 13, 13);
        Icon(option.sortIndicator == QStyleOptionHeader::SortUp ? "chevron-up"_L1 : "chevron-down"_L1, "accent"_L1)
            .paint(painter, place, Qt::AlignCenter);
    }
}

void PaintTab(const QStyleOptionTab& option, QPainter* painter)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const bool hovered = IsEnabled(option) && option.state.testFlag(QStyle::State_MouseOver);
    const QRect rect = option.rect;
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), Token("line"_L1));
    if (hovered && !selected)
        PaintBox(painter, QRectF(rect).adjusted(2, 3, -2, -4), kControlRadius, Token("raisedHover"_L1));
    if (selected)
        PaintBox(painter, QRectF(rect.left() + 8, rect.bottom() - 1.5, rect.width() - 16, 2.5), 1.25,
                 Token(IsEnabled(option) ? "accent"_L1 : "disabled"_L1));
    if (ShowsFocusRing(option) || (option.state.testFlag(QStyle::State_HasFocus) && selected &&
                                   option.state.testFlag(QStyle::State_KeyboardFocusChange)))
        PaintFocusRing(painter, QRectF(rect).adjusted(2, 3, -2, -4), kControlRadius);
}
