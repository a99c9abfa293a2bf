#include "look/Tables.h"

#include "look/StatusDelegate.h"
#include "look/Theme.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

// Keeps the number of the row below the pointer at the viewport, where the style finds it. The table may be half
// destroyed when the viewport's last events come, so that only a moving pointer asks it.
class RowHover : public QObject
{
public:
    explicit RowHover(QTableView* table)
        : QObject(table)
        , m_table(table)
        , m_viewport(table->viewport())
    {
        table->setMouseTracking(true);
        table->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::MouseMove:
            set(m_table->rowAt(static_cast<QMouseEvent*>(event)->pos().y()));
            break;
        case QEvent::Wheel:
        case QEvent::Leave:
        case QEvent::Hide:
            set(-1);
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void set(int row)
    {
        if (row == m_row)
            return;
        m_row = row;
        m_viewport->setProperty("deskHoverRow", row);
        m_viewport->update();
    }

    QTableView* m_table;
    QWidget* m_viewport;
    int m_row = -1;
};

class MonospaceDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->font = MonoFont();
        option->fontMetrics = QFontMetrics(option->font);
        // Addresses and times keep their order in a right-to-left desk.
        if (option->direction == Qt::RightToLeft)
            option->text = QString(QChar(0x202a) + option->text + QChar(0x202c));
    }
};

} // namespace

void StyleTable(QTableView* table)
{
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setAlternatingRowColors(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setFrameShape(QFrame::StyledPanel);
    table->setCornerButtonEnabled(false);
    table->setTabKeyNavigation(false);
    table->viewport()->setAutoFillBackground(false);
    QHeaderView* rows = table->verticalHeader();
    rows->setVisible(false);
    rows->setMinimumSectionSize(24);
    rows->setDefaultSectionSize(TableRowHeight());
    QHeaderView* head = table->horizontalHeader();
    head->setHighlightSections(false);
    head->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    head->setStretchLastSection(true);
    head->setMinimumSectionSize(48);
    head->setFixedHeight(TableRowHeight());
    head->setFont(DeskFont(0.92, true));
    head->viewport()->setAutoFillBackground(false);
    new RowHover(table);
}

void StyleTree(QTreeView* tree)
{
    tree->setFrameShape(QFrame::StyledPanel);
    tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    tree->setAnimated(false);
    tree->setUniformRowHeights(true);
    tree->setMouseTracking(true);
    tree->viewport()->setAutoFillBackground(false);
    tree->header()->setStretchLastSection(true);
    tree->header()->viewport()->setAutoFillBackground(false);
}

void MonospaceColumn(QTableView* table, int column)
{
    table->setItemDelegateForColumn(column, new MonospaceDelegate(table));
}

void StatusColumn(QTableView* table, int column)
{
    table->setItemDelegateForColumn(column, new StatusDelegate(table));
}
