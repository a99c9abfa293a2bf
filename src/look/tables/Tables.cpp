#include "look/tables/Tables.h"

#include "look/style/Theme.h"
#include "look/tables/StatusDelegate.h"
#include "look/widgets/SecondClick.h"

#include <QHash>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <limits>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr int kSortArrow = 17; // px beside the text of the sorted head

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

// Keeps every head whole: whenever the heads or the room change or the table comes on show, sections that are narrower
// than their text grow, and where the last one would be cut the others give what they can spare. Sections that may be
// left out are, as long as the cells have no room.
class HeadRoom : public QObject
{
public:
    explicit HeadRoom(QTableView* table)
        : QObject(table)
        , m_table(table)
    {
        table->horizontalHeader()->installEventFilter(this);
        connect(table->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &HeadRoom::fit);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            follow(m_table->model());
        if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
            fit();
        return QObject::eventFilter(watched, event);
    }

    // A width somebody sets, be it the very one the section has just now, is the one it gets back later.
    void set(int section, int width)
    {
        m_given.remove(section);
        m_table->setColumnWidth(section, width);
    }

    void leaveOut(std::span<const int> sections)
    {
        m_dispensable.assign(sections.begin(), sections.end());
        fit();
    }

private:
    void follow(QAbstractItemModel* model)
    {
        if (model == m_model)
            return;
        if (m_model)
            m_model->disconnect(this);
        m_model = model;
        if (model) {
            connect(model, &QAbstractItemModel::headerDataChanged, this, &HeadRoom::fit, Qt::QueuedConnection);
            connect(model, &QAbstractItemModel::modelReset, this, &HeadRoom::fit, Qt::QueuedConnection);
        }
    }

    void fit()
    {
        QHeaderView* heads = m_table->horizontalHeader();
        for (const int section : m_dispensable)
            heads->setSectionHidden(section, false);
        QList<int> shown;
        for (int visual = 0; visual < heads->count(); ++visual) {
            if (const int section = heads->logicalIndex(visual); !heads->isSectionHidden(section))
                shown << section;
        }
        if (shown.isEmpty())
            return;
        const auto needed = [heads](int section) {
            // The header's own idea leaves room for an arrow in every section; only the sorted one shows it.
            const bool sorted = heads->isSortIndicatorShown() && heads->sortIndicatorSection() == section;
            const QString text = heads->model()->headerData(section, Qt::Horizontal).toString();
            const int beside = 2 * heads->style()->pixelMetric(QStyle::PM_HeaderMargin) + (sorted ? kSortArrow : 0);
            return std::max(heads->fontMetrics().horizontalAdvance(text) + beside + 1, heads->minimumSectionSize());
        };
        // The section that takes the rest: one set to stretch, else the last.
        int rest = heads->stretchLastSection() ? shown.last() : -1;
        for (const int section : std::as_const(shown))
            if (heads->sectionResizeMode(section) == QHeaderView::Stretch)
                rest = section;
        shown.removeOne(rest);
        // What gave way before gets back what it had, unless somebody has set it since.
        for (const int section : std::as_const(shown)) {
            const auto given = m_given.constFind(section);
            if (given != m_given.constEnd() && given->second == heads->sectionSize(section))
                heads->resizeSection(section, given->first);
        }
        m_given.clear();
        for (const int section : std::as_const(shown))
            m_given.insert(section, {heads->sectionSize(section), 0});
        const auto content = [this, &needed](int section) {
            const auto* view = static_cast<const QAbstractItemView*>(m_table);
            return std::max(needed(section), view->sizeHintForColumn(section) + 1);
        };
        const auto wanted = [&](int sum, int section) {
            return sum + std::max(needed(section), std::min(heads->sectionSize(section), content(section)));
        };
        // As if the scroll bar were there: it comes and goes with the height of wrapped rows.
        const int room = m_table->maximumViewportSize().width() - m_table->verticalScrollBar()->sizeHint().width();
        for (const int section : m_dispensable) {
            if (std::accumulate(shown.cbegin(), shown.cend(), rest < 0 ? 0 : content(rest), wanted) <= room)
                break;
            heads->setSectionHidden(section, true);
            shown.removeOne(section);
        }
        for (const int section : std::as_const(shown))
            if (heads->sectionSize(section) < needed(section))
                heads->resizeSection(section, needed(section));
        // Air goes first, for the sake of the cells of the last one too; then what the cells would like.
        giveWay(shown, (rest < 0 ? 0 : content(rest)), content);
        giveWay(shown, (rest < 0 ? 0 : needed(rest)), needed);
        for (const int section : std::as_const(shown))
            m_given[section].second = heads->sectionSize(section);
    }

    // Narrows the sections, none below what `least` says, until all and the rest have room.
    template <class Least>
    void giveWay(const QList<int>& sections, int rest, const Least& least)
    {
        QHeaderView* heads = m_table->horizontalHeader();
        int excess = rest - m_table->viewport()->width();
        int spare = 0;
        for (const int section : sections) {
            excess += heads->sectionSize(section);
            spare += std::max(0, heads->sectionSize(section) - least(section));
        }
        if (excess <= 0 || spare <= 0)
            return;
        excess = std::min(excess, spare);
        for (const int section : sections) {
            const int own = std::max(0, heads->sectionSize(section) - least(section));
            heads->resizeSection(section,
                                 heads->sectionSize(section) - std::min(own, (own * excess + spare - 1) / spare));
        }
    }

    QTableView* m_table;
    QPointer<QAbstractItemModel> m_model;
    std::vector<int> m_dispensable;          // what is left out first stands first
    QHash<int, std::pair<int, int>> m_given; // by section: the width it was set to, the width it has been given
};

HeadRoom* HeadRoomOf(const QTableView* table)
{
    for (QObject* child : table->children()) {
        if (auto* room = dynamic_cast<HeadRoom*>(child))
            return room;
    }
    return nullptr;
}

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

// Fits the height of rows to their contents, once for all changes of an event: measuring a row costs as much as
// painting it.
class RowHeights : public QObject
{
public:
    explicit RowHeights(QTableView* table)
        : QObject(table)
        , m_table(table)
    {
        m_later.setSingleShot(true);
        connect(&m_later, &QTimer::timeout, this, &RowHeights::fit);
    }

    void all() { take(0, std::numeric_limits<int>::max()); }
    void some(const QModelIndex& first, const QModelIndex& last) { take(first.row(), last.row()); }

private:
    void take(int first, int last)
    {
        m_first = m_later.isActive() ? std::min(m_first, first) : first;
        m_last = m_later.isActive() ? std::max(m_last, last) : last;
        m_later.start(0);
    }
    void fit()
    {
        const int rows = m_table->model() ? m_table->model()->rowCount() : 0;
        // The table's own measure takes the hidden row heads in, which want more than the cells.
        const QAbstractItemView* cells = m_table;
        for (int row = m_first; row < rows && row <= m_last; ++row)
            m_table->setRowHeight(row, std::max(cells->sizeHintForRow(row), TableRowHeight()));
    }

    QTableView* m_table;
    QTimer m_later;
    int m_first = 0;
    int m_last = 0;
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
    new HeadRoom(table);
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

void MonospaceColumn(QAbstractItemView* view, int column)
{
    view->setItemDelegateForColumn(column, new MonospaceDelegate(view));
}

void SetColumnWidths(QTableView* table, std::span<const int> widths)
{
    HeadRoom* room = HeadRoomOf(table);
    for (std::size_t column = 0; column < widths.size(); ++column) {
        if (widths[column] > 0 && room)
            room->set(static_cast<int>(column), widths[column]);
    }
}

void LeaveOutColumns(QTableView* table, std::span<const int> columns)
{
    if (HeadRoom* room = HeadRoomOf(table))
        room->leaveOut(columns);
}

void StatusColumn(QTableView* table, int column)
{
    table->setItemDelegateForColumn(column, new StatusDelegate(table));
    // Long words wrap, so that rows follow the words and the width of the column.
    auto* heights = new RowHeights(table);
    QObject::connect(table->horizontalHeader(), &QHeaderView::sectionResized, heights, &RowHeights::all);
    if (const QAbstractItemModel* model = table->model()) {
        QObject::connect(model, &QAbstractItemModel::dataChanged, heights, &RowHeights::some);
        QObject::connect(model, &QAbstractItemModel::modelReset, heights, &RowHeights::all);
    }
}

void ActOnRows(QTableView* table, RowColumns columns, std::function<void(const QModelIndex& cell)> act)
{
    WatchClicks();
    const auto acts = [columns](const QModelIndex& cell) {
        return cell.column() == columns.open || cell.column() == columns.remove;
    };
    const auto in = [act](const QModelIndex& cell, int column) {
        if (cell.isValid())
            act(column < 0 ? cell : cell.siblingAtColumn(column));
    };
    QObject::connect(table, &QTableView::clicked, table, [acts, act](const QModelIndex& cell) {
        if (acts(cell))
            act(cell);
    });
    QObject::connect(table, &QTableView::doubleClicked, table, [acts, in, columns](const QModelIndex& cell) {
        if (!acts(cell) && !cell.flags().testFlag(Qt::ItemIsUserCheckable))
            in(cell, columns.open);
    });
    const auto key = [table, in](Qt::Key which, int column) {
        auto* shortcut = new QShortcut(which, table, nullptr, nullptr, Qt::WidgetShortcut);
        shortcut->setAutoRepeat(false); // a key held down does not go on in what it has opened
        QObject::connect(shortcut, &QShortcut::activated, table,
                         [table, in, column] { in(table->currentIndex(), column); });
    };
    key(Qt::Key_Return, columns.open);
    key(Qt::Key_Enter, columns.open);
    if (columns.remove >= 0)
        key(Qt::Key_Delete, columns.remove);
}
