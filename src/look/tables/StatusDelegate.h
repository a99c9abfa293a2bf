#pragma once

#include "look/tables/StatusRoles.h"

#include <QColor>
#include <QStyledItemDelegate>

// The colour of a state's dot in the live scheme; invalid for Status::None.
QColor StatusColour(Status status);

// Paints a state inside a table cell: dot, words and an optional thin bar, from kStatusRole and kProgressRole. Words
// that are too long for the cell take further lines where the row is high enough.
class StatusDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit StatusDelegate(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
