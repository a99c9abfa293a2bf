#pragma once

class QAbstractItemView;
class QHeaderView;
class QTableView;
class QTreeView;

// Gives a table the desk's form: whole-row selection, no grid but a line below each row, 34 px rows, hover over the
// whole row, quiet heads aligned with their columns, the last column taking the rest, columns moved by the keyboard.
// Call it after the model is set or before; sections, widths and sorting remain the caller's, but no head is left
// narrower than its text.
void StyleTable(QTableView* table);
// The same for a tree or list: hover, row height, no frame decorations.
void StyleTree(QTreeView* tree);
// Sets a column in the figures face, for addresses, ports and times.
void MonospaceColumn(QAbstractItemView* view, int column);
// A dot before the words and, where the model gives a progress, a thin bar below them (see StatusRoles.h). Long words
// wrap and the rows grow with them. Call it after the model is set.
void StatusColumn(QTableView* table, int column);
