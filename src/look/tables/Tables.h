#pragma once

#include <functional>
#include <span>

class QAbstractItemView;
class QHeaderView;
class QModelIndex;
class QTableView;
class QTreeView;

// Gives a table the desk's form: whole-row selection, no grid but a line below each row, 34 px rows, hover over the
// whole row, quiet heads aligned with their columns, the last column taking the rest, columns moved by the keyboard.
// Call it after the model is set or before; sections, widths and sorting remain the caller's, but no head is left
// narrower than its text.
void StyleTable(QTableView* table);
// The same for a tree or list: hover, row height, no frame decorations.
void StyleTree(QTreeView* tree);
// Sets the columns from the first on to these widths, in px; one of 0 is left alone. Columns that give way to long
// heads get them back when there is room, also where a column is as wide as that at the moment.
void SetColumnWidths(QTableView* table, std::span<const int> widths);
// Where the cells of all columns have no room these are left out, the first of them first, until the others have it.
void LeaveOutColumns(QTableView* table, std::span<const int> columns);
// Sets a column in the figures face, for addresses, ports and times.
void MonospaceColumn(QAbstractItemView* view, int column);
// A dot before the words and, where the model gives a progress, a thin bar below them (see StatusRoles.h). Long words
// wrap and the rows grow with them. Call it after the model is set.
void StatusColumn(QTableView* table, int column);

// The columns that act on their row; -1 for none.
struct RowColumns
{
    int open = -1;
    int remove = -1;
};
// One way to act on the rows of a list: a click selects, and acts at once only in the two columns. A double click,
// Return and Enter stand for the column that opens, Delete for the one that removes; without a column that opens they
// mean the row. A cell with a check is left to its check. `act` gets the cell.
void ActOnRows(QTableView* table, RowColumns columns, std::function<void(const QModelIndex& cell)> act);
