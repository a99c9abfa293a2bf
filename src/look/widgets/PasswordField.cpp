#include "look/widgets/PasswordField.h"

#include "look/style/Icons.h"

#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

PasswordField::PasswordField(QWidget* parent)
    : QLineEdit(parent)
    , m_eye(new QToolButton(this))
{
    setEchoMode(Password);
    m_eye->setAutoRaise(true);
    m_eye->setCheckable(true);
    m_eye->setFocusPolicy(Qt::TabFocus);
    m_eye->setCursor(Qt::ArrowCursor);
    m_eye->setIconSize({kIconSize, kIconSize});
    connect(m_eye, &QToolButton::toggled, this, [this](bool revealed) {
        setEchoMode(revealed && isTyped() ? Normal : Password);
        showState();
        emit revealedChanged(revealed);
    });
    // A change by hand is told before the change itself.
    connect(this, &QLineEdit::textEdited, this, [this] { m_byHand = true; });
    connect(this, &QLineEdit::textChanged, this, &PasswordField::follow);
    connect(this, &QLineEdit::selectionChanged, this, &PasswordField::chooseWhole);
    connect(this, &QLineEdit::cursorPositionChanged, this, &PasswordField::chooseWhole);
    showState();
    placeEye();
}

void PasswordField::setEyeTexts(const QString& show, const QString& hide, const QString& stored)
{
    m_show = show;
    m_hide = hide;
    m_stored = stored;
    showState();
}

void PasswordField::setRevealed(bool revealed)
{
    m_eye->setChecked(revealed && isTyped());
}

void PasswordField::follow()
{
    if (std::exchange(m_byHand, false) || text().isEmpty())
        m_typed = text();
    const bool typed = isTyped();
    if (!std::exchange(m_wasTyped, typed) || !typed)
        setText(text());   // no Undo brings back what stood here
    setAcceptDrops(typed); // a drop would go between the letters
    if (!typed)
        m_eye->setChecked(false);
    showState();
}

// Whatever comes next replaces a stored password.
void PasswordField::chooseWhole()
{
    if (m_choosing || isTyped() || !hasFocus() || selectionLength() == text().size())
        return;
    m_choosing = true;
    selectAll();
    m_choosing = false;
}

void PasswordField::showState()
{
    const bool revealed = m_eye->isChecked();
    const QString words = !isTyped() ? m_stored : revealed ? m_hide : m_show;
    m_eye->setEnabled(isTyped());
    m_eye->setIcon(Icon(revealed ? "eye-off"_L1 : "eye"_L1, "muted"_L1));
    m_eye->setToolTip(words);
    m_eye->setAccessibleName(revealed ? m_hide : m_show);
    setAccessibleDescription(isTyped() ? QString() : m_stored);
}

void PasswordField::placeEye()
{
    const int side = height() - 6;
    m_eye->setGeometry(QStyle::visualRect(layoutDirection(), rect(), QRect(width() - side - 3, 3, side, side)));
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    setTextMargins(mirrored ? side : 0, 0, mirrored ? 0 : side, 0);
}

// Whatever order of fields the window has settled, the eye follows its field.
void PasswordField::showEvent(QShowEvent* event)
{
    QLineEdit::showEvent(event);
    setTabOrder(this, m_eye);
}

void PasswordField::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    placeEye();
}

void PasswordField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeEye();
}

void PasswordField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    chooseWhole();
}
