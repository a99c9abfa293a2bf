#pragma once

#include "app/shell/Messages.h"
#include "app/shell/ui/DeskTable.h"

#include <QWidget>

class EmptyState;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class Work;

// What a list is called and what it says. Object names, and message numbers, 0 for none.
struct ListFace
{
    QLatin1StringView table;
    QLatin1StringView filter{"txtFilter"};
    QLatin1StringView button{};
    int name = 0;       // of the table, for assistive technology
    int filterText = 0; // without one there is no filter
    int buttonText = 0; // without one there is no button
    QLatin1StringView buttonIcon{"add"};
    QLatin1StringView buttonKind{"primary"};
    QLatin1StringView illustration{"empty-page"};
    int none = 0;     // in place of an empty list and its tools; without it they stay
    int noneHint = 0; // what can be done about it
    int noMatch = Message::kNoMatch;
    std::function<QString()> counts{}; // beside the filter
};

// A list with all that belongs to it: above it filter, counts, tools and one button; in its place, while it has nothing
// to show, what to do about it. What is done with its rows is said to its table.
class ListPane : public QWidget
{
    Q_OBJECT

public:
    explicit ListPane(QWidget* parent = nullptr);

    void setList(TableModel* list, ListFace face); // once
    DeskTable* table() const { return m_table; }
    SearchField* filter() const { return m_filter; }
    QPushButton* button() const { return m_button; }
    // Filter, counts, tools and button. A card may take it into its title.
    QWidget* toolRow() const { return m_toolRow; }
    void addTool(QWidget* tool); // before the button
    void changeLanguage();
    // The list is being filled: a bar and "Searching…" until it is over.
    void setSearching(bool searching);
    // Holds the list back while a work runs, behind its step and Stop.
    void showWork(Work& work);

signals:
    void buttonClicked(); // the button, also where it stands in the empty list

private:
    void showState();

    ListFace m_face;
    TableModel* m_list = nullptr;
    QWidget* m_toolRow;
    QHBoxLayout* m_tools;
    SearchField* m_filter;
    QWidget* m_lastTool; // in the order of the Tab key
    QLabel* m_counts;
    QProgressBar* m_bar;
    QPushButton* m_button;
    QStackedWidget* m_stack;
    DeskTable* m_table;
    EmptyState* m_empty;
    bool m_searching = false;
};
