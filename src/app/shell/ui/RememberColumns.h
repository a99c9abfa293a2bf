#pragma once

class QTableView;
class QWidget;

// The columns of a table keep the widths that the user drags them to, from one run to the next. A table is known by its
// object name; columns that take the rest of the room are the layout's affair. A DeskTable does this by itself.
void KeepColumns(QTableView* table);
// The same for every other table inside a window or page.
void RememberColumns(QWidget* window);
