#include "look/widgets/PageHeader.h"

#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/ElidedLabel.h"
#include "look/widgets/Pill.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

using namespace Qt::StringLiterals;

PageHeader::PageHeader(QWidget* parent)
    : QWidget(parent)
    , m_title(new ElidedLabel)
    , m_subtitle(new ElidedLabel)
    , m_trailing(new QHBoxLayout)
    , m_user(new Pill("user"_L1))
    , m_clock(new Pill("clock"_L1))
    , m_toggle(new QToolButton)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    SetRole(m_title, "title"_L1);
    SetRole(m_subtitle, "muted"_L1);
    m_user->setMonospace(false);
    m_clock->setMonospace(true);
    m_toggle->setAutoRaise(true);
    m_toggle->setIconSize({kIconSize, kIconSize});
    m_toggle->setFixedSize(32, 32);
    m_toggle->setFocusPolicy(Qt::TabFocus);
    const auto showScheme = [this](Scheme scheme) {
        m_toggle->setIcon(Icon(scheme == Scheme::Dark ? "sun"_L1 : "moon"_L1));
    };
    showScheme(CurrentScheme());
    connect(&ThemeEvents(), &ThemeNotifier::schemeChanged, this, showScheme);
    connect(m_toggle, &QToolButton::clicked, this,
            [] { ApplyTheme(*qApp, CurrentScheme() == Scheme::Dark ? Scheme::Light : Scheme::Dark); });

    m_trailing->setSpacing(8);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 12, 20, 13);
    layout->setSpacing(16);
    layout->addSpacing(4); // margins are not mirrored, spacings are
    layout->addWidget(m_title);
    layout->addWidget(m_subtitle, 1);
    layout->addLayout(m_trailing);
    auto* pills = new QHBoxLayout;
    pills->setSpacing(8);
    pills->addWidget(m_user);
    pills->addWidget(m_clock);
    pills->addWidget(m_toggle);
    m_user->hide(); // until there is one
    layout->addLayout(pills);
}

void PageHeader::setTitle(const QString& title)
{
    m_title->setText(title);
}

void PageHeader::setSubtitle(const QString& subtitle)
{
    m_subtitle->setText(subtitle);
}

void PageHeader::setUser(const QString& user)
{
    m_user->setText(user);
}

void PageHeader::setClock(const QString& time)
{
    m_clock->setText(time);
}

void PageHeader::setThemeToggleText(const QString& text)
{
    m_toggle->setToolTip(text);
    m_toggle->setAccessibleName(text);
}

void PageHeader::addTrailing(QWidget* widget)
{
    m_trailing->addWidget(widget);
}

QLabel* PageHeader::titleLabel() const
{
    return m_title;
}

QLabel* PageHeader::subtitleLabel() const
{
    return m_subtitle;
}

void PageHeader::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), Token("line"_L1));
}
