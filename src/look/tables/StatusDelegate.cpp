#include "look/tables/StatusDelegate.h"

#include "look/style/DeskPaint.h"

#include <QApplication>
#include <QStyle>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {
constexpr int kPadding = 12;
constexpr int kDot = 9;
constexpr int kBar = 4;
constexpr int kBeside = 2 * kPadding + kDot + 8; // what a cell needs beside its words

// The words of a cell, in as many lines as its width asks for.
int WordsHeight(const QStyleOptionViewItem& item, int width)
{
    return item.fontMetrics.boundingRect(QRect(0, 0, std::max(1, width), 10000), Qt::TextWordWrap, item.text).height();
}
} // namespace

QColor StatusColour(Status status)
{
    switch (status) {
    case Status::Ok:
        return Token("ok"_L1);
    case Status::Warning:
        return Token("warning"_L1);
    case Status::Bad:
        return Token("bad"_L1);
    case Status::Busy:
        return Token("accent"_L1);
    case Status::None:
        break;
    }
    return {};
}

StatusDelegate::StatusDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

void StatusDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);

    const auto status = static_cast<Status>(index.data(kStatusRole).toInt());
    const QVariant progress = index.data(kProgressRole);
    const int percent = progress.isValid() ? std::min(progress.toInt(), 100) : -1;
    const auto place = [&item](const QRect& logical) { return QStyle::visualRect(item.direction, item.rect, logical); };
    QRect content = item.rect.adjusted(kPadding, 0, -kPadding, -1);
    const bool enabled = item.state.testFlag(QStyle::State_Enabled);

    QRect line = content;
    if (percent >= 0) {
        const int block = item.fontMetrics.height() + 2 + kBar;
        line = QRect(content.left(), content.top() + (content.height() - block) / 2, content.width(),
                     item.fontMetrics.height());
        const QRect track(content.left(), line.bottom() + 3, std::min(content.width(), 220), kBar);
        PaintBox(painter, place(track), kBar / 2.0, Token("edge"_L1));
        QRect done = track;
        done.setWidth(track.width() * percent / 100);
        if (done.width() > 0)
            PaintBox(painter, place(done), std::min(kBar, done.width()) / 2.0, Token("accent"_L1));
    } else if (status != Status::None) {
        const QRectF dot(place(QRect(content.left(), content.center().y() - kDot / 2, kDot, kDot)));
        PaintBox(painter, dot, kDot / 2.0, enabled ? StatusColour(status) : Token("disabled"_L1));
        line.setLeft(content.left() + kDot + 8);
    }
    painter->setFont(item.font);
    // What goes on is read while the table is held back.
    painter->setPen(Token(percent >= 0             ? "text"_L1
                          : !enabled               ? "disabled"_L1
                          : status == Status::None ? "muted"_L1
                                                   : "text"_L1));
    const auto alignment = static_cast<int>(QStyle::visualAlignment(item.direction, Qt::AlignLeft | Qt::AlignVCenter));
    if (percent < 0 && WordsHeight(item, line.width()) <= line.height())
        painter->drawText(place(line), alignment | Qt::TextWordWrap, item.text);
    else
        painter->drawText(place(line), alignment, item.fontMetrics.elidedText(item.text, Qt::ElideRight, line.width()));
    if (item.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(item);
        focus.state |= QStyle::State_Item;
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, item.widget);
    }
}

QSize StatusDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const bool bar = index.data(kProgressRole).isValid();
    const int width = item.fontMetrics.horizontalAdvance(item.text) + kBeside;
    if (bar)
        return {width, std::max(TableRowHeight(), item.fontMetrics.height() + kBar + 14)};
    const auto* table = qobject_cast<const QTableView*>(item.widget);
    const int given = table ? table->columnWidth(index.column()) : 0;
    if (given <= 0 || given >= width)
        return {width, TableRowHeight()};
    return {given, std::max(TableRowHeight(), WordsHeight(item, given - kBeside) + 12)};
}
