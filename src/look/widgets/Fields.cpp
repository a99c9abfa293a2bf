#include "look/widgets/Fields.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QKeyEvent>
#include <QSpinBox>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDateFieldFrame = 44; // px: padding and the calendar's arrow
constexpr int kTimeFieldFrame = 36; // px: padding and buttons

class FocusSelector : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Later, or the press that gave the focus would take the selection away again.
        if (event->type() == QEvent::FocusIn)
            QMetaObject::invokeMethod(static_cast<QLineEdit*>(watched), &QLineEdit::selectAll, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
{
    addAction(Icon("search"_L1, "muted"_L1), QLineEdit::LeadingPosition);
    setClearButtonEnabled(true);
    setProperty("leadingIcon", true);
}

void SearchField::setPlaceholderText(const QString& text)
{
    QLineEdit::setPlaceholderText(text);
    updateGeometry();
}

QSize SearchField::sizeHint() const
{
    const QSize base = QLineEdit::sizeHint();
    return {std::max(base.width(), minimumSizeHint().width()), base.height()};
}

QSize SearchField::minimumSizeHint() const
{
    constexpr int kBeside = 64; // the magnifying glass and the margins
    return {fontMetrics().horizontalAdvance(placeholderText()) + kBeside, QLineEdit::minimumSizeHint().height()};
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        return;
    }
    QLineEdit::keyPressEvent(event);
    // Return belongs to the list that is filtered, not to the default button of the window.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

void SetTimeFormat(QDateTimeEdit* field, const QString& format)
{
    field->setLayoutDirection(Qt::LeftToRight); // before the format
    field->setDisplayFormat(format);
    field->setCalendarPopup(format.contains(u'd'));
    field->setFont(MonoFont());
    // The style sheet's idea of its width leaves the padding out.
    const QFontMetrics metrics(MonoFont());
    field->setMinimumWidth(metrics.horizontalAdvance(QString(format.size(), u'0')) +
                           (field->calendarPopup() ? kDateFieldFrame : kTimeFieldFrame));
}

void FocusFilter(const QWidget* window)
{
    const QList<SearchField*> filters = window->findChildren<SearchField*>();
    const auto shown = std::find_if(filters.begin(), filters.end(), [](auto* filter) { return filter->isVisible(); });
    if (shown == filters.end())
        return;
    (*shown)->setFocus(Qt::ShortcutFocusReason);
    (*shown)->selectAll();
}

void SelectOnFocus(QLineEdit* field)
{
    field->installEventFilter(new FocusSelector(field));
}

void SetFaulty(QWidget* field, bool faulty)
{
    field->setProperty("faulty", faulty);
    field->update();
}

void PointAtFault(QWidget* field)
{
    SetFaulty(field, true);
    field->setFocus(Qt::OtherFocusReason);
    // Each fault makes one connection, gone with the first change.
    auto* watch = new QObject(field);
    const auto changed = [field, watch] {
        SetFaulty(field, false);
        watch->deleteLater();
    };
    if (auto* line = qobject_cast<QLineEdit*>(field)) {
        line->selectAll();
        QObject::connect(line, &QLineEdit::textChanged, watch, changed);
    } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
        QObject::connect(combo, &QComboBox::currentTextChanged, watch, changed);
    } else if (auto* spin = qobject_cast<QSpinBox*>(field)) {
        spin->selectAll();
        QObject::connect(spin, &QSpinBox::textChanged, watch, changed);
    } else if (auto* time = qobject_cast<QDateTimeEdit*>(field)) {
        QObject::connect(time, &QDateTimeEdit::dateTimeChanged, watch, changed);
    }
}
