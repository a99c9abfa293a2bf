#include "look/widgets/DeskMessageBox.h"

#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"
#include "look/widgets/ActionBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNarrowest = 280;
constexpr int kWidest = 480;
constexpr int kTallest = 360;

// The box's icon on a disc of its quiet ground.
class KindBadge : public QWidget
{
public:
    explicit KindBadge(DeskMessageBox::Kind kind)
        : m_kind(kind)
    {
        setFixedSize(40, 40);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const bool warning = m_kind == DeskMessageBox::Kind::Warning;
        PaintBox(&painter, rect(), 20, Token(warning ? "warningGround"_L1 : "accentGround"_L1));
        const QLatin1StringView name = warning                                    ? "warning"_L1
                                       : m_kind == DeskMessageBox::Kind::Question ? "question"_L1
                                                                                  : "info"_L1;
        Icon(name, warning ? "warning"_L1 : "accent"_L1).paint(&painter, rect().adjusted(9, 9, -9, -9));
    }

private:
    DeskMessageBox::Kind m_kind;
};

} // namespace

DeskMessageBox::DeskMessageBox(Kind kind, const QString& text, const QString& title, QWidget* parent)
    : DialogFrame(parent)
    , m_text(new QLabel(text))
    , m_answer(kind == Kind::Question ? Answer::No : Answer::Ok)
{
    setWindowTitle(title);
    setSizeGripEnabled(false);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_text->setObjectName(u"lbText"_s);
    setAccessibleName(text);

    // The text decides the width within limits; what is longer than the box may be tall scrolls.
    const int natural = m_text->fontMetrics().boundingRect(QRect(0, 0, 4000, 4000), Qt::TextExpandTabs, text).width();
    const int width = std::clamp(natural + 4, kNarrowest, kWidest);
    m_text->setFixedWidth(width);
    const int height = m_text->heightForWidth(width);
    m_text->setFixedHeight(std::max(height, 40));
    m_text->setAlignment(Qt::AlignLeading | (height < 40 ? Qt::AlignVCenter : Qt::AlignTop));

    auto* row = new QHBoxLayout(content());
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    row->addWidget(new KindBadge(kind), 0, Qt::AlignTop);
    if (height > kTallest) {
        auto* scroll = new QScrollArea;
        scroll->setWidget(m_text);
        scroll->setFixedSize(width + 16, kTallest);
        row->addWidget(scroll);
    } else {
        row->addWidget(m_text, 1);
    }

    if (kind == Kind::Question) {
        m_no = addAnswer(Answer::No, u"No"_s, u"btnNo"_s, {});
        m_yes = addAnswer(Answer::Yes, u"Yes"_s, u"btnYes"_s, "primary"_L1);
        setDefaultAnswer(Answer::Yes);
    } else {
        m_ok = addAnswer(Answer::Ok, u"OK"_s, u"btnOk"_s, "primary"_L1);
        setDefaultAnswer(Answer::Ok);
    }
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QPushButton* DeskMessageBox::addAnswer(Answer answer, const QString& text, const QString& name, QLatin1StringView kind)
{
    QPushButton* button = footer()->addButton(text, kind);
    button->setObjectName(name);
    connect(button, &QPushButton::clicked, this, [this, answer] {
        m_answer = answer;
        done(answer == Answer::No ? Rejected : Accepted);
    });
    return button;
}

void DeskMessageBox::setButtonTexts(const QString& ok, const QString& yes, const QString& no)
{
    const auto set = [](QPushButton* button, const QString& text) {
        if (button && !text.isEmpty())
            button->setText(text);
    };
    set(m_ok, ok);
    set(m_yes, yes);
    set(m_no, no);
}

void DeskMessageBox::setDefaultAnswer(Answer answer)
{
    for (QPushButton* button : {m_ok, m_yes, m_no})
        if (button)
            button->setAutoDefault(true);
    QPushButton* wanted = answer == Answer::Ok ? m_ok : answer == Answer::Yes ? m_yes : m_no;
    if (wanted) {
        wanted->setDefault(true);
        wanted->setFocus();
    }
}

void DeskMessageBox::setRightToLeftText(bool on)
{
    m_text->setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment vertical = m_text->alignment() & Qt::AlignVertical_Mask;
    m_text->setAlignment(vertical | (on ? Qt::AlignRight | Qt::AlignAbsolute : Qt::AlignLeft | Qt::AlignAbsolute));
}

DeskMessageBox::Answer DeskMessageBox::ask()
{
    exec();
    return m_answer;
}

void DeskMessageBox::reject()
{
    m_answer = m_yes ? Answer::No : Answer::Ok;
    DialogFrame::reject();
}
