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

struct KindFace
{
    QLatin1StringView icon;
    QLatin1StringView ink;
    QLatin1StringView ground;
};

KindFace FaceOf(DeskMessageBox::Kind kind)
{
    using Kind = DeskMessageBox::Kind;
    switch (kind) {
    case Kind::Success:
    case Kind::Offer:
        return {"ok"_L1, "ok"_L1, "okGround"_L1};
    case Kind::Warning:
        return {"warning"_L1, "warning"_L1, "warningGround"_L1};
    case Kind::Error:
        return {"error"_L1, "bad"_L1, "badGround"_L1};
    case Kind::Destroy:
        return {"delete"_L1, "bad"_L1, "badGround"_L1};
    case Kind::Question:
    case Kind::QuestionOrStay:
        return {"question"_L1, "accent"_L1, "accentGround"_L1};
    case Kind::Information:
        break;
    }
    return {"info"_L1, "accent"_L1, "accentGround"_L1};
}

// The box's icon on a disc of its quiet ground.
class KindBadge : public QWidget
{
public:
    explicit KindBadge(DeskMessageBox::Kind kind)
        : m_face(FaceOf(kind))
    {
        setObjectName(u"badge"_s);
        setProperty("icon", QString(m_face.icon));
        setFixedSize(40, 40);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        PaintBox(&painter, rect(), 20, Token(m_face.ground));
        Icon(m_face.icon, m_face.ink).paint(&painter, rect().adjusted(9, 9, -9, -9));
    }

private:
    KindFace m_face;
};

DeskMessageBox::Answer EscapeOf(DeskMessageBox::Kind kind)
{
    using Kind = DeskMessageBox::Kind;
    if (kind == Kind::QuestionOrStay)
        return DeskMessageBox::Answer::Cancel;
    const bool asks = kind == Kind::Question || kind == Kind::Offer || kind == Kind::Destroy;
    return asks ? DeskMessageBox::Answer::No : DeskMessageBox::Answer::Ok;
}

} // namespace

DeskMessageBox::DeskMessageBox(Kind kind, const QString& text, const QString& title, QWidget* parent)
    : DialogFrame(parent)
    , m_text(new QLabel(text))
    , m_escape(EscapeOf(kind))
    , m_answer(m_escape)
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

    if (m_escape == Answer::Ok) {
        addAnswer(Answer::Ok, u"OK"_s, u"btnOk"_s, "primary"_L1);
        setDefaultAnswer(Answer::Ok);
    } else {
        if (m_escape == Answer::Cancel)
            addAnswer(Answer::Cancel, u"Cancel"_s, u"btnCancel"_s, {});
        const bool destroys = kind == Kind::Destroy;
        addAnswer(Answer::No, u"No"_s, u"btnNo"_s, {});
        addAnswer(Answer::Yes, u"Yes"_s, u"btnYes"_s, destroys ? "danger"_L1 : "primary"_L1);
        setDefaultAnswer(destroys || kind == Kind::Offer ? Answer::No : Answer::Yes);
    }
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void DeskMessageBox::addAnswer(Answer answer, const QString& text, const QString& name, QLatin1StringView kind)
{
    QPushButton* button = footer()->addButton(text, kind);
    button->setObjectName(name);
    button->setAutoDefault(true);
    m_buttons[static_cast<std::size_t>(answer)] = button;
    connect(button, &QPushButton::clicked, this, [this, answer] {
        m_answer = answer;
        done(answer == Answer::Ok || answer == Answer::Yes ? Accepted : Rejected);
    });
}

void DeskMessageBox::setButtonTexts(const QString& ok, const QString& yes, const QString& no, const QString& cancel)
{
    const std::pair<Answer, const QString&> texts[] = {
        {Answer::Ok, ok}, {Answer::Yes, yes}, {Answer::No, no}, {Answer::Cancel, cancel}};
    for (const auto& [answer, text] : texts) {
        if (button(answer) && !text.isEmpty())
            button(answer)->setText(text);
    }
}

void DeskMessageBox::setDefaultAnswer(Answer answer)
{
    if (QPushButton* wanted = button(answer)) {
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
    m_answer = m_escape;
    DialogFrame::reject();
}
