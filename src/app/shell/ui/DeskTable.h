#pragma once

#include "app/shell/TableModel.h"

#include <QTableView>
#include <functional>

class SearchField;
class QSortFilterProxyModel;

// The table of the desk: widths, faces, icons and checks come from the columns of the list that it shows, and the
// widths to which a user drags the columns are kept from one run to the next under the table's object name. When the
// list is filled anew the same record stays current, or the one that has come to its place.
class DeskTable : public QTableView
{
    Q_OBJECT

public:
    explicit DeskTable(QWidget* parent = nullptr);

    // Again only with a list of the same columns.
    void setList(TableModel* list);
    // Clicks on heads sort. At first rows are in the order of this column, for -1 in that of the list.
    void sortBy(int column);
    // Shows the rows that hold the filter's text. Return in it goes to the table, Esc in the table empties it.
    void filterBy(SearchField* filter);

    // The ways to act on the current record. A double click, Return and the column that opens open it; Delete and the
    // column that removes remove it; where that cell is empty nothing can be removed. The context menu offers the same.
    void whenOpened(std::function<void(int record)> act);
    void whenRemoved(std::function<void(int record)> act);
    // A further entry of the context menu, with its key; `text` is a message number.
    void addRowAction(int text, const QKeySequence& key, std::function<void(int record)> act);

    int shownRows() const;     // those that the filter lets through
    int currentRecord() const; // -1 for none
    // The cell of a record; invalid when it is not on show.
    QModelIndex cellOf(int record, int column = 0) const;
    // Turns the check of a row over; false where it has none.
    bool toggle(const QModelIndex& row);

signals:
    void shownChanged(); // other rows are on show, or they say something else

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QAction* makeAction(const QList<QKeySequence>& keys, std::function<void(int record)> act);
    void clickedCell(const QModelIndex& cell);
    void doubleClickedCell(const QModelIndex& cell);
    void setUpColumns();
    void keepColumns();
    void restoreCurrent();
    int columnOf(TableColumn::Kind kind) const; // the first of its kind, -1 for none

    TableModel* m_list = nullptr;
    QSortFilterProxyModel* m_rows;
    SearchField* m_filter = nullptr;
    QAction* m_open = nullptr;
    QAction* m_remove = nullptr;
    bool m_columnsKept = false;
    int m_keptRow = 0; // the current one while the list is filled anew
    int m_keptRecord = -1;
};
