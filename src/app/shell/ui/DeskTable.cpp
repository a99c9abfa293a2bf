#include "app/shell/ui/DeskTable.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Fields.h"
#include "look/widgets/SecondClick.h"
#include "platform/UserSettings.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <algorithm>

using namespace Qt::StringLiterals;
using Kind = TableColumn::Kind;

namespace {

// Sorts and filters a list over all its columns, and turns the names of icons into icons.
class ListProxy final : public QSortFilterProxyModel
{
public:
    explicit ListProxy(QObject* parent)
        : QSortFilterProxyModel(parent)
    {
        setFilterKeyColumn(-1);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
        setSortRole(TableModel::kSortRole);
        setSortLocaleAware(true);
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DecorationRole)
            return QSortFilterProxyModel::data(index, role);
        const QByteArray name = index.data(TableModel::kIconRole).toString().toLatin1();
        return name.isEmpty() ? QVariant() : Icon(QLatin1StringView(name));
    }
};

// Columns keep the widths that the user drags them to, from one run to the next, under the name of their table.
class ColumnKeeper : public QObject
{
public:
    explicit ColumnKeeper(QTableView* table)
        : QObject(table)
        , m_head(table->horizontalHeader())
        , m_key(u"columns/"_s + table->objectName())
    {
        const QVariantList widths = UserSetting(m_key).toList();
        for (int column = 0; column < m_head->count() && widths.size() == m_head->count(); ++column) {
            if (m_head->sectionResizeMode(column) == QHeaderView::Interactive && widths[column].toInt() > 0)
                m_head->resizeSection(column, widths[column].toInt());
        }
        connect(m_head, &QHeaderView::sectionResized, this, [this] { m_dragged = m_pressed; });
        m_head->viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            m_pressed = true;
        if (event->type() == QEvent::MouseButtonRelease) {
            m_pressed = false;
            if (std::exchange(m_dragged, false))
                save();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void save() const
    {
        const QVariantList before = UserSetting(m_key).toList();
        QVariantList widths;
        for (int column = 0; column < m_head->count(); ++column) {
            const bool leftOut = m_head->isSectionHidden(column);
            widths << (leftOut ? before.value(column, 0) : m_head->sectionSize(column));
        }
        SetUserSetting(m_key, widths);
    }

    QHeaderView* m_head;
    QString m_key;
    bool m_pressed = false;
    bool m_dragged = false;
};

QString WordsOf(const QModelIndex& cell)
{
    return cell.data(Qt::AccessibleTextRole).toString();
}

} // namespace

DeskTable::DeskTable(QWidget* parent)
    : QTableView(parent)
    , m_rows(new ListProxy(this))
{
    WatchClicks();
    StyleTable(this);
    setIconSize(QSize(kIconSize, kIconSize));
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
}

void DeskTable::setList(TableModel* list)
{
    // Before the rows follow the list, and with them the current one goes.
    connect(list, &TableModel::modelAboutToBeReset, this, [this] {
        m_keptRow = std::max(0, currentIndex().row());
        m_keptRecord = currentRecord();
    });
    const bool first = !m_list;
    m_list = list;
    m_rows->setSourceModel(list);
    if (!first)
        return;
    setModel(m_rows);
    connect(this, &QTableView::clicked, this, &DeskTable::clickedCell);
    connect(this, &QTableView::doubleClicked, this, &DeskTable::doubleClickedCell);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &DeskTable::restoreCurrent);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(m_rows, signal, this, &DeskTable::shownChanged);
    connect(m_rows, &QAbstractItemModel::modelReset, this, &DeskTable::shownChanged);
    connect(m_rows, &QAbstractItemModel::dataChanged, this, &DeskTable::shownChanged);
    setUpColumns();
}

void DeskTable::setUpColumns()
{
    horizontalHeader()->setStretchLastSection(false);
    std::vector<int> widths;
    for (const TableColumn& column : m_list->columns()) {
        const int index = static_cast<int>(widths.size());
        const bool icon = column.kind == Kind::Open || column.kind == Kind::Remove;
        widths.push_back(icon ? horizontalHeader()->minimumSectionSize() : column.width);
        if (widths.back() == 0)
            horizontalHeader()->setSectionResizeMode(index, QHeaderView::Stretch);
        if (column.kind == Kind::Figures)
            MonospaceColumn(this, index);
        else if (column.kind == Kind::State)
            StatusColumn(this, index);
    }
    SetColumnWidths(this, widths);
    if (testAttribute(Qt::WA_WState_Polished))
        keepColumns();
}

void DeskTable::keepColumns()
{
    if (model() && !objectName().isEmpty() && !std::exchange(m_columnsKept, true))
        new ColumnKeeper(this);
}

void DeskTable::sortBy(int column)
{
    setSortingEnabled(true);
    sortByColumn(column, Qt::AscendingOrder);
}

void DeskTable::filterBy(SearchField* filter)
{
    m_filter = filter;
    connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_rows->setFilterFixedString(text);
        emit shownChanged();
    });
    connect(filter, &QLineEdit::returnPressed, this, [this] {
        if (shownRows() > 0)
            setFocus();
    });
}

QAction* DeskTable::makeAction(const QList<QKeySequence>& keys, std::function<void(int record)> act)
{
    auto* action = new QAction(this);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setAutoRepeat(false); // a key held down does not go on in what it has opened
    action->setShortcutVisibleInContextMenu(true);
    connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
        if (const int record = currentRecord(); record >= 0)
            act(record);
    });
    addAction(action);
    return action;
}

void DeskTable::whenOpened(std::function<void(int record)> act)
{
    m_open = makeAction({Qt::Key_Return, Qt::Key_Enter}, std::move(act));
    if (columnOf(Kind::Open) < 0)
        m_open->setData(Message::kChoose);
}

void DeskTable::whenRemoved(std::function<void(int record)> act)
{
    m_remove = makeAction({Qt::Key_Delete}, [this, act = std::move(act)](int record) {
        if (!WordsOf(cellOf(record, columnOf(Kind::Remove))).isEmpty())
            act(record);
    });
}

void DeskTable::addRowAction(int text, const QKeySequence& key, std::function<void(int record)> act)
{
    makeAction({key}, std::move(act))->setData(text);
}

int DeskTable::columnOf(Kind kind) const
{
    const auto found = std::ranges::find(m_list->columns(), kind, &TableColumn::kind);
    return found == m_list->columns().end() ? -1 : static_cast<int>(found - m_list->columns().begin());
}

int DeskTable::shownRows() const
{
    return m_rows->rowCount();
}

int DeskTable::currentRecord() const
{
    return currentIndex().isValid() ? currentIndex().data(TableModel::kRecordRole).toInt() : -1;
}

QModelIndex DeskTable::cellOf(int record, int column) const
{
    return m_rows->mapFromSource(m_list->index(m_list->rowOf(record), column));
}

void DeskTable::restoreCurrent()
{
    if (actions().isEmpty())
        return;
    const QModelIndex same = cellOf(m_keptRecord);
    setCurrentIndex(same.isValid() ? same : m_rows->index(std::min(m_keptRow, shownRows() - 1), 0));
}

void DeskTable::clickedCell(const QModelIndex& cell)
{
    const Kind kind = At(m_list->columns(), cell.column()).kind;
    QAction* action = kind == Kind::Open ? m_open : kind == Kind::Remove ? m_remove : nullptr;
    if (action)
        action->trigger();
}

void DeskTable::doubleClickedCell(const QModelIndex& cell)
{
    const Kind kind = At(m_list->columns(), cell.column()).kind;
    if (kind == Kind::Open || kind == Kind::Remove || cell.flags().testFlag(Qt::ItemIsUserCheckable))
        return;
    if (m_open)
        m_open->trigger();
    else
        toggle(cell);
}

bool DeskTable::toggle(const QModelIndex& row)
{
    const QModelIndex cell =
        row.flags().testFlag(Qt::ItemIsUserCheckable) ? row : row.siblingAtColumn(columnOf(Kind::Check));
    if (!cell.flags().testFlag(Qt::ItemIsUserCheckable))
        return false;
    const bool on = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    m_rows->setData(cell, on ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return true;
}

bool DeskTable::event(QEvent* event)
{
    if (event->type() == QEvent::Polish) // it has its name, and its columns the widths that they begin with
        keepColumns();
    return QTableView::event(event);
}

void DeskTable::keyPressEvent(QKeyEvent* event)
{
    // The pointer hits the box alone; Space means the row.
    if (event->key() == Qt::Key_Space && m_list && toggle(currentIndex()))
        return;
    if (event->key() == Qt::Key_Escape && m_filter && !m_filter->text().isEmpty()) {
        m_filter->clear();
        return;
    }
    QTableView::keyPressEvent(event);
}

void DeskTable::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byPointer = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex row = byPointer ? indexAt(event->pos()) : currentIndex();
    if (!row.isValid() || row.row() != currentIndex().row() || actions().isEmpty())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QAction* action : actions()) {
        const Kind kind = action == m_open ? Kind::Open : Kind::Remove;
        const QModelIndex cell = action->data().isValid() ? QModelIndex() : row.siblingAtColumn(columnOf(kind));
        const QString words = cell.isValid() ? WordsOf(cell) : GetLangString(action->data().toInt());
        action->setText(words);
        action->setIcon(cell.data(Qt::DecorationRole).value<QIcon>());
        if (!words.isEmpty())
            menu->addAction(action);
    }
    menu->popup(byPointer ? event->globalPos() : viewport()->mapToGlobal(visualRect(row).center()));
}
