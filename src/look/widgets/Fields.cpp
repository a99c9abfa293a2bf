#include "look/widgets/Fields.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"

#include <QDateTimeEdit>
#include <QEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDateFieldFrame = 44; // px: padding and the calendar's arrow
constexpr int kTimeFieldFrame = 36; // px: padding and buttons

// A button inside the trailing end of a field; it keeps its place and the text clear of it.
class FieldButton : public QToolButton
{
public:
    explicit FieldButton(QLineEdit* field)
        : QToolButton(field)
        , m_field(field)
    {
        setAutoRaise(true);
        setFocusPolicy(Qt::TabFocus);
        setCursor(Qt::ArrowCursor);
        setIconSize({kIconSize, kIconSize});
        field->installEventFilter(this);
        place();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange)
            place();
        return QToolButton::eventFilter(watched, event);
    }

private:
    void place()
    {
        const int side = m_field->height() - 6;
        const QRect logical(m_field->width() - side - 3, 3, side, side);
        setGeometry(QStyle::visualRect(m_field->layoutDirection(), m_field->rect(), logical));
        const bool mirrored = m_field->layoutDirection() == Qt::RightToLeft;
        m_field->setTextMargins(mirrored ? side : 0, 0, mirrored ? 0 : side, 0);
    }

    QLineEdit* m_field;
};

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

void AddEye(QLineEdit* field, const QString& showText, const QString& hideText)
{
    field->setEchoMode(QLineEdit::Password);
    auto* eye = new FieldButton(field);
    QWidget::setTabOrder(field, eye);
    eye->setCheckable(true);
    const auto tell = [field, eye, showText, hideText](bool shown) {
        field->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password);
        eye->setIcon(Icon(shown ? "eye-off"_L1 : "eye"_L1, "muted"_L1));
        eye->setToolTip(shown ? hideText : showText);
        eye->setAccessibleName(shown ? hideText : showText);
    };
    tell(false);
    QObject::connect(eye, &QToolButton::toggled, field, tell);
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

void SelectOnFocus(QLineEdit* field)
{
    field->installEventFilter(new FocusSelector(field));
}

void SetFaulty(QLineEdit* field, bool faulty)
{
    field->setProperty("faulty", faulty);
    field->update();
}
