#include "look/widgets/EmptyState.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

EmptyState::EmptyState(QLatin1StringView illustration, QWidget* parent)
    : QWidget(parent)
    , m_picture(new QLabel)
    , m_headline(new QLabel)
    , m_hint(new QLabel)
    , m_button(new QPushButton)
{
    SetRole(m_headline, "headline"_L1);
    SetRole(m_hint, "muted"_L1);
    SetKind(m_button, "primary"_L1);
    m_button->setObjectName(u"btnEmptyState"_s);
    for (QLabel* label : {m_picture, m_headline, m_hint})
        label->setAlignment(Qt::AlignCenter);
    m_headline->setWordWrap(true);
    m_hint->setWordWrap(true);
    m_hint->setFixedWidth(400);
    m_button->hide();
    connect(m_button, &QPushButton::clicked, this, &EmptyState::clicked);
    connect(&ThemeEvents(), &ThemeNotifier::schemeChanged, this, &EmptyState::showPicture);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(8);
    layout->addStretch(2);
    layout->addWidget(m_picture);
    layout->addSpacing(8);
    layout->addWidget(m_headline);
    auto* hint = new QHBoxLayout;
    hint->addStretch();
    hint->addWidget(m_hint);
    hint->addStretch();
    layout->addLayout(hint);
    layout->addSpacing(8);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    setIllustration(illustration);
}

void EmptyState::setIllustration(QLatin1StringView illustration)
{
    m_illustration = QByteArray(illustration.data(), illustration.size());
    showPicture();
}

void EmptyState::showPicture()
{
    m_picture->setPixmap(Illustration(QLatin1StringView(m_illustration), devicePixelRatioF()));
}

void EmptyState::setHeadline(const QString& text)
{
    m_headline->setText(text);
    setAccessibleName(text);
}

void EmptyState::setHint(const QString& text)
{
    m_hint->setText(text);
    m_hint->setVisible(!text.isEmpty());
}

void EmptyState::setButton(const QString& text)
{
    m_button->setText(text);
    m_button->setVisible(!text.isEmpty());
}
