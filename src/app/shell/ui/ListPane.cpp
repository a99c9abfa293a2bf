#include "app/shell/ui/ListPane.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Fields.h"
#include "platform/Work.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

ListPane::ListPane(QWidget* parent)
    : QWidget(parent)
    , m_toolRow(new QWidget)
    , m_tools(new QHBoxLayout(m_toolRow))
    , m_filter(new SearchField)
    , m_lastTool(m_filter)
    , m_counts(new QLabel)
    , m_bar(new QProgressBar)
    , m_button(new QPushButton)
    , m_stack(new QStackedWidget)
    , m_table(new DeskTable)
    , m_empty(new EmptyState)
{
    m_filter->setMinimumWidth(260);
    m_filter->setMaximumWidth(320);
    SetRole(m_counts, "muted"_L1);
    m_counts->setObjectName(u"lbCounts"_s);
    m_bar->setMaximum(0);
    m_bar->setMaximumWidth(120);
    m_bar->setTextVisible(false);
    m_bar->hide();
    m_tools->setContentsMargins(0, 0, 0, 0);
    m_tools->setSpacing(12);
    m_tools->addWidget(m_filter);
    m_tools->addStretch();
    for (QWidget* tool :
         {static_cast<QWidget*>(m_bar), static_cast<QWidget*>(m_counts), static_cast<QWidget*>(m_button)})
        m_tools->addWidget(tool);
    m_stack->addWidget(m_table);
    m_stack->addWidget(m_empty);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_toolRow);
    column->addWidget(m_stack, 1);
    connect(m_button, &QPushButton::clicked, this, &ListPane::buttonClicked);
    connect(m_empty, &EmptyState::clicked, this, &ListPane::buttonClicked);
    connect(m_table, &DeskTable::shownChanged, this, &ListPane::showState);
}

void ListPane::setList(TableModel* list, ListFace face)
{
    m_list = list;
    m_face = std::move(face);
    m_table->setObjectName(m_face.table);
    m_filter->setObjectName(m_face.filter);
    m_button->setObjectName(m_face.button);
    m_table->setProperty("tag", u"Name:%1"_s.arg(m_face.name));
    m_filter->setProperty("tag", u"Hint:%1 Name:%1"_s.arg(m_face.filterText));
    if (m_face.buttonText != 0)
        m_button->setProperty("tag", u"Caption:%1"_s.arg(m_face.buttonText));
    m_filter->setVisible(m_face.filterText != 0);
    m_button->setVisible(m_face.buttonText != 0);
    m_button->setIcon(Icon(m_face.buttonIcon));
    SetKind(m_button, m_face.buttonKind);
    m_empty->setIllustration(m_face.illustration);
    m_table->setList(list);
    m_table->filterBy(m_filter);
    showState();
}

void ListPane::addTool(QWidget* tool)
{
    m_tools->insertWidget(m_tools->indexOf(m_button), tool);
    if (tool->focusPolicy() == Qt::NoFocus)
        return;
    setTabOrder(m_lastTool, tool);
    setTabOrder(tool, m_button);
    setTabOrder(m_button, m_table);
    m_lastTool = tool;
}

void ListPane::changeLanguage()
{
    m_list->retranslate();
    showState();
}

void ListPane::setSearching(bool searching)
{
    m_searching = searching;
    m_bar->setVisible(searching);
    m_button->setEnabled(!searching);
    showState();
}

void ListPane::showState()
{
    const bool any = m_list->rowCount() > 0;
    const bool none = !any && !m_searching && m_face.none != 0;
    const bool noMatch = any && m_table->shownRows() == 0;
    m_toolRow->setVisible(!none);
    m_counts->setText(m_searching ? GetLangString(Message::kSearching) : m_face.counts ? m_face.counts() : QString());
    // Also while the table is on show: what is hidden asks for room too.
    m_empty->setHeadline(GetLangString(none ? m_face.none : m_face.noMatch));
    m_empty->setHint(none && m_face.noneHint != 0 ? GetLangString(m_face.noneHint) : QString());
    m_empty->setButton(none && m_face.buttonText != 0 ? GetLangString(m_face.buttonText) : QString());
    m_stack->setCurrentWidget(none || noMatch ? static_cast<QWidget*>(m_empty) : m_table);
}

void ListPane::showWork(Work& work)
{
    auto* step = new QLabel;
    auto* stop = new QPushButton;
    step->setObjectName(u"lbWorkStep"_s);
    stop->setObjectName(u"lbWorkStop"_s);
    SetRole(step, "muted"_L1);
    step->hide();
    stop->hide();
    addTool(step);
    addTool(stop);
    connect(stop, &QPushButton::clicked, &work, &Work::stop);
    connect(&work, &Work::stepChanged, this, [&work, step] { step->setText(work.step()); });
    connect(&work, &Work::runningChanged, this, [this, step, stop](bool running) {
        stop->setText(GetLangString(Message::kStop));
        stop->setShortcut(Qt::Key_Escape); // a text takes the shortcut of its button
        for (QWidget* widget : {static_cast<QWidget*>(step), static_cast<QWidget*>(stop)})
            widget->setVisible(running);
        for (QWidget* widget :
             {static_cast<QWidget*>(m_filter), static_cast<QWidget*>(m_button), static_cast<QWidget*>(m_stack)})
            widget->setEnabled(!running);
        (running ? static_cast<QWidget*>(stop) : m_table)->setFocus();
    });
}
