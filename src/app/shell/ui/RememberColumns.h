#pragma once

class QWidget;

// The columns of every table inside a window or page keep the widths that the user drags them to, from one run to the
// next. A table is known by its object name; columns that take the rest of the room are the layout's affair.
void RememberColumns(QWidget* window);
