#include "look/widgets/NavRail.h"

#include "look/style/DeskPaint.h"
#include "look/style/Icons.h"

#include <QAccessibleWidget>
#include <QButtonGroup>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollArea>
#include <QStyle>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int kRailWidth = 212;
constexpr int kWidestRail = 280;
constexpr int kLabelLeft = 40;
constexpr int kDotRoom = 24;

// What assistive technology says of an entry: a tab of the pages, chosen or not; at the bottom a button.
class EntryAccess : public QAccessibleWidget
{
public:
    explicit EntryAccess(NavEntry* entry)
        : QAccessibleWidget(entry)
    {
    }

    QAccessible::Role role() const override
    {
        return entry().isCheckable() ? QAccessible::PageTab : QAccessible::Button;
    }
    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Name ? entry().text() : QAccessibleWidget::text(text);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = entry().isCheckable();
        state.selected = entry().isCheckable() && entry().isChecked();
        return state;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            entry().click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    NavEntry& entry() const { return *static_cast<NavEntry*>(widget()); }
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object)
{
    if (auto* entry = qobject_cast<NavEntry*>(object))
        return new EntryAccess(entry);
    if (auto* rail = qobject_cast<NavRail*>(object))
        return new QAccessibleWidget(rail, QAccessible::PageTabList);
    return nullptr;
}

} // namespace

NavEntry::NavEntry(QLatin1StringView icon, const QString& label, QWidget* parent)
    : QAbstractButton(parent)
    , m_icon(icon.data(), icon.size())
{
    setText(label);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void NavEntry::setDirty(bool dirty, const QString& meaning)
{
    m_dirty = dirty;
    setAccessibleDescription(dirty ? meaning : QString());
    update();
}

QSize NavEntry::sizeHint() const
{
    return {kLabelLeft + fontMetrics().horizontalAdvance(text()) + kDotRoom, std::max(34, fontMetrics().height() + 14)};
}

QSize NavEntry::minimumSizeHint() const
{
    return {kLabelLeft + 48, std::max(28, fontMetrics().height() + 6)};
}

bool NavEntry::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        QStringList lines;
        if (sizeHint().width() > width())
            lines.append(text());
        if (!toolTip().isEmpty())
            lines.append(toolTip());
        if (!accessibleDescription().isEmpty())
            lines.append(accessibleDescription());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), lines.join(u'\n'), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void NavEntry::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool current = isCheckable() && isChecked();
    const auto place = [this](const QRect& logical) { return QStyle::visualRect(layoutDirection(), rect(), logical); };
    const bool hovered = isEnabled() && underMouse();
    if (current || isDown() || hovered)
        PaintBox(&painter, rect(), kControlRadius,
                 Token(current    ? "accentGround"_L1
                       : isDown() ? "line"_L1
                                  : "railHover"_L1));
    if (current)
        PaintBox(&painter, place(QRect(0, 8, 3, height() - 16)), 1.5, Token("accent"_L1));
    const QColor ink = Token(!isEnabled() ? "disabled"_L1 : current || hovered ? "text"_L1 : "muted"_L1);
    const QRect icon(13, (height() - kIconSize) / 2, kIconSize, kIconSize);
    painter.drawPixmap(place(icon), IconPixmap(QLatin1StringView(m_icon), icon.size(),
                                               current && isEnabled() ? Token("accent"_L1) : ink, devicePixelRatioF()));
    const QRect label(kLabelLeft, 0, width() - kLabelLeft - (m_dirty ? kDotRoom : 8), height());
    painter.setPen(ink);
    painter.drawText(place(label),
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)),
                     fontMetrics().elidedText(text(), Qt::ElideRight, label.width()));
    if (m_dirty)
        PaintBox(&painter, QRectF(place(QRect(width() - 17, (height() - 7) / 2, 7, 7))), 3.5, Token("warning"_L1));
    if (hasFocus() && WalkedByKeyboard(this))
        PaintFocusRing(&painter, rect(), kControlRadius);
}

// The program's icon with its name, and the second line below.
class NavRail::Brand : public QWidget
{
public:
    explicit Brand(QWidget* parent)
        : QWidget(parent)
    {
        setFixedHeight(64);
    }

    void set(const QString& name, const QString& caption)
    {
        m_name = name;
        m_caption = caption;
        setAccessibleName(caption.isEmpty() ? name : QString(name + u", " + caption));
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const auto place = [this](const QRect& logical) {
            return QStyle::visualRect(layoutDirection(), rect(), logical);
        };
        ProgramIcon().paint(&painter, place(QRect(16, (height() - 28) / 2, 28, 28)));
        const int alignment = static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
        const QRect text(54, 0, width() - 54 - 8, height());
        const QFont bold = DeskFont(1.08, true);
        const QFont small = DeskFont(0.88);
        const QFontMetrics boldMetrics(bold);
        const QFontMetrics smallMetrics(small);
        const int block = boldMetrics.height() + (m_caption.isEmpty() ? 0 : smallMetrics.height());
        const int top = (height() - block) / 2;
        painter.setFont(bold);
        painter.setPen(Token("text"_L1));
        painter.drawText(place(QRect(text.left(), top, text.width(), boldMetrics.height())), alignment,
                         boldMetrics.elidedText(m_name, Qt::ElideRight, text.width()));
        if (m_caption.isEmpty())
            return;
        painter.setFont(small);
        painter.setPen(Token("muted"_L1));
        painter.drawText(place(QRect(text.left(), top + boldMetrics.height(), text.width(), smallMetrics.height())),
                         alignment, smallMetrics.elidedText(m_caption, Qt::ElideRight, text.width()));
    }

private:
    QString m_name;
    QString m_caption;
};

NavRail::NavRail(QWidget* parent)
    : QWidget(parent)
    , m_brand(new Brand(this))
    , m_pages(new QVBoxLayout)
    , m_bottom(new QVBoxLayout)
    , m_group(new QButtonGroup(this))
{
    static const bool told = (QAccessible::installFactory(MakeAccess), true);
    Q_UNUSED(told);
    m_group->setExclusive(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);

    auto* pages = new QWidget;
    m_pages->setContentsMargins(10, 0, 10, 0);
    m_pages->setSpacing(2);
    auto* column = new QVBoxLayout(pages);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(m_pages);
    column->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(pages);

    m_bottom->setContentsMargins(10, 8, 10, 12);
    m_bottom->setSpacing(2);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_brand);
    layout->addWidget(scroll, 1);
    layout->addLayout(m_bottom);
}

void NavRail::setBrand(const QString& name, const QString& caption)
{
    m_brand->set(name, caption);
}

NavEntry* NavRail::addEntry(QLatin1StringView icon, const QString& label)
{
    NavEntry* entry = add(new NavEntry(icon, label), m_pages);
    entry->setCheckable(true);
    m_group->addButton(entry, count() - 1);
    if (count() == 1)
        entry->setChecked(true);
    return entry;
}

NavEntry* NavRail::addBottomEntry(QLatin1StringView icon, const QString& label)
{
    return add(new NavEntry(icon, label), m_bottom);
}

NavEntry* NavRail::add(NavEntry* entry, QVBoxLayout* layout)
{
    const int index = count();
    m_entries.append(entry);
    layout->addWidget(entry);
    entry->installEventFilter(this);
    connect(entry, &QAbstractButton::clicked, this, [this, index] { emit entryClicked(index); });
    updateGeometry();
    return entry;
}

int NavRail::currentIndex() const
{
    return m_group->checkedId();
}

void NavRail::setCurrentIndex(int index)
{
    if (NavEntry* wanted = entry(index); wanted && wanted->isCheckable())
        wanted->setChecked(true);
}

QSize NavRail::sizeHint() const
{
    int width = kRailWidth;
    for (const NavEntry* each : m_entries)
        width = std::max(width, each->sizeHint().width() + 21);
    return {std::min(width, kWidestRail), 480};
}

bool NavRail::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto* entry = static_cast<NavEntry*>(watched);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        focusNeighbour(entry, 1);
        return true;
    case Qt::Key_Up:
        focusNeighbour(entry, -1);
        return true;
    case Qt::Key_Home:
        focusNeighbour(m_entries.last(), 1);
        return true;
    case Qt::Key_End:
        focusNeighbour(m_entries.first(), -1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        entry->click();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

// The next entry that is on show and enabled, going round at the ends.
void NavRail::focusNeighbour(NavEntry* from, int step)
{
    const qsizetype size = m_entries.size();
    qsizetype index = m_entries.indexOf(from);
    for (qsizetype tried = 0; tried < size; ++tried) {
        index = (index + step + size) % size;
        if (m_entries[index]->isVisibleTo(this) && m_entries[index]->isEnabled()) {
            m_entries[index]->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            window()->setAttribute(Qt::WA_KeyboardFocusChange);
            return;
        }
    }
}

void NavRail::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), Token("rail"_L1));
    const QRect edge = QStyle::visualRect(layoutDirection(), rect(), QRect(width() - 1, 0, 1, height()));
    painter.fillRect(edge, Token("line"_L1));
}
