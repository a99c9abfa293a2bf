#include "app/language/ui/ChangeLanguage.h"

#include "app/language/CutText.h"
#include "app/language/Languages.h"
#include "look/style/Theme.h"
#include "look/widgets/DialogFrame.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Fields.h"
#include "look/widgets/PasswordField.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

void SetCaption(QWidget* control, const QString& text)
{
    if (auto* label = qobject_cast<QLabel*>(control))
        label->setText(text);
    else if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->setText(text);
    else if (auto* box = qobject_cast<QGroupBox*>(control))
        box->setTitle(text);
}

void SetHint(QWidget* control, const QString& text)
{
    if (auto* filter = qobject_cast<SearchField*>(control))
        filter->setPlaceholderText(text);
    else if (auto* field = qobject_cast<QLineEdit*>(control))
        field->setPlaceholderText(text);
    else if (auto* choice = qobject_cast<QComboBox*>(control))
        choice->setPlaceholderText(text);
    else if (auto* empty = qobject_cast<EmptyState*>(control))
        empty->setHint(text);
}

constexpr int kClose = 881;     // message
constexpr int kBoxMargins = 32; // pixels beside the title of a box

// Keeps a control's whole caption. Layouts give way to it; it is cut only where they cannot: in a control of fixed or
// limited width, or one whose width does not follow its text.
class CaptionKeeper : public QObject
{
public:
    CaptionKeeper(QWidget* control)
        : QObject(control)
        , m_control(control)
    {
        setObjectName(u"CaptionKeeper"_s);
        control->installEventFilter(this);
    }
    static CaptionKeeper& of(QWidget* control)
    {
        auto* keeper =
            static_cast<CaptionKeeper*>(control->findChild<QObject*>(u"CaptionKeeper"_s, Qt::FindDirectChildrenOnly));
        return keeper ? *keeper : *new CaptionKeeper(control);
    }
    void setText(const QString& text, bool rightToLeft)
    {
        m_text = text;
        m_rightToLeft = rightToLeft;
        SetCaption(m_control, text);
        m_control->setToolTip(text);
        // What the control needs beside its text: margins, an icon, an indicator.
        // A box is as wide as its content, which says nothing of its title.
        m_extra = qobject_cast<QGroupBox*>(m_control) ? kBoxMargins : m_control->sizeHint().width() - width(text);
        fit();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Resize)
            fit();
        return QObject::eventFilter(watched, event);
    }

private:
    int width(const QString& text) const { return m_control->fontMetrics().horizontalAdvance(text); }
    // The width the control will not grow beyond, -1 when the layout decides.
    int limit() const
    {
        if (m_control->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored ||
            m_control->minimumWidth() == m_control->maximumWidth())
            return m_control->width();
        return m_control->maximumWidth() < QWIDGETSIZE_MAX ? m_control->maximumWidth() : -1;
    }
    void fit()
    {
        const auto* label = qobject_cast<QLabel*>(m_control);
        const int most = limit();
        if (most < 0 || (label && label->wordWrap()))
            return;
        SetCaption(m_control, CutText(m_text, most - qMax(0, m_extra), m_rightToLeft,
                                      [this](const QString& text) { return width(text); }));
    }

    QWidget* m_control;
    QString m_text;
    bool m_rightToLeft = false;
    int m_extra = 0;
};

void ApplyTag(QWidget* control)
{
    const QString tags = control->property("tag").toString();
    for (const QStringView tag : QStringView(tags).split(u' ', Qt::SkipEmptyParts)) {
        const qsizetype colon = tag.indexOf(u':');
        const QStringView what = tag.left(colon);
        const QString text = GetLangString(tag.mid(colon + 1).toInt());
        if (auto* empty = qobject_cast<EmptyState*>(control); empty && what == "Caption"_L1)
            empty->setHeadline(text);
        else if (what == "Caption"_L1)
            CutString(control, text, Language() == kRightToLeftLanguage);
        else if (what == "ToolTip"_L1)
            control->setToolTip(text);
        else if (what == "Name"_L1)
            control->setAccessibleName(text);
        else if (what == "Hint"_L1)
            SetHint(control, text);
    }
}

// Every language but Japanese is written in one and the same family where it is installed. Chinese and Japanese have
// forms of their own for the same characters: a face for one of them must not stand in for the others.
QStringList LeadingFamilies()
{
    QStringList families;
    if (LanguageCharset() != kJapaneseCharset)
        families << u"Verdana"_s;
    switch (Language()) {
    case 2:
        return families << u"Noto Sans CJK TC"_s << u"Noto Sans TC"_s << u"Microsoft JhengHei UI"_s;
    case 3:
        return families << u"Noto Sans CJK SC"_s << u"Noto Sans SC"_s << u"Microsoft YaHei UI"_s;
    case 4:
        return families << u"Noto Sans CJK JP"_s << u"Noto Sans JP"_s << u"Yu Gothic UI"_s;
    default:
        return families;
    }
}

// The toolkit's own words (choice of files, menus of fields) and its calendars follow the language too.
void SettleToolkit(QWidget* window)
{
    static QTranslator words;
    static int settled = 1; // the toolkit speaks English by itself
    const QString code = LanguageCode(Language());
    if (settled != Language()) {
        settled = Language();
        QCoreApplication::removeTranslator(&words);
        if (words.load(u":/toolkit/qtbase_"_s + code + u".qm"_s))
            QCoreApplication::installTranslator(&words);
    }
    window->setLocale(QLocale(code));
}

} // namespace

void CutString(QWidget* control, const QString& text, bool rightToLeft)
{
    CaptionKeeper::of(control).setText(text, rightToLeft);
}

void ApplyLanguage(QWidget* window)
{
    QApplication::setLayoutDirection(Language() == kRightToLeftLanguage ? Qt::RightToLeft : Qt::LeftToRight);
    SetBodyFamilies(LeadingFamilies());
    SettleToolkit(window);
    if (auto* dialog = qobject_cast<DialogFrame*>(window))
        dialog->setCloseText(GetLangString(kClose));
    ApplyTag(window);
    const QList<QWidget*> controls = window->findChildren<QWidget*>();
    for (QWidget* control : controls) {
        ApplyTag(control);
        if (auto* password = qobject_cast<PasswordField*>(control))
            password->setEyeTexts(GetLangString(887), GetLangString(899), GetLangString(1080));
    }
}
