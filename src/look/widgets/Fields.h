#pragma once

#include <QLineEdit>

class QDateTimeEdit;

// A line edit that filters something: search icon in front, clear button behind, Esc clears. Return emits returnPressed
// and no more. It is never narrower than its placeholder.
class SearchField : public QLineEdit
{
    Q_OBJECT
public:
    explicit SearchField(QWidget* parent = nullptr);

    void setPlaceholderText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// Gives a date or time field its format, the figures face and a calendar. It reads from left to right in every desk: a
// right-to-left field would turn the order of its parts round.
void SetTimeFormat(QDateTimeEdit* field, const QString& format);
// Ctrl+F: the first filter on show inside a window or page gets the focus, its text selected.
void FocusFilter(const QWidget* window);
// The whole text is selected whenever the field gets the focus, by the pointer too.
void SelectOnFocus(QLineEdit* field);
// Marks a line edit, combo box, spin box or time as faulty or not: a border in the colour of faults. The words belong
// in a label beside it or in a box.
void SetFaulty(QWidget* field, bool faulty);
// The field at fault gets that border and the focus, a line edit its text selected; the next change of its value takes
// the border away.
void PointAtFault(QWidget* field);
