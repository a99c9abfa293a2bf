#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <stdexcept>
#include <vector>

// Drives windows as a user does: a list of steps, each waiting for its condition before it acts. Steps go on while a
// modal window runs a loop of its own. A step whose condition does not come true in time ends the run with its name.
class Driver : public QObject
{
    Q_OBJECT

public:
    struct Step
    {
        QString name;
        std::function<bool()> ready;
        std::function<void()> act;
    };

    // Steps follow each other faster than any hand: no two clicks of them make a double click.
    Driver();

    void add(const QString& name, std::function<bool()> ready, std::function<void()> act);
    // Runs all steps; throws std::runtime_error naming the step that never got ready or whose action threw.
    void run(int millisecondsAStep = 30000);

    // The visible widget of a name in any window, null when there is none.
    static QWidget* find(const QString& name);
    template <class Widget>
    static Widget* find(const QString& name)
    {
        return qobject_cast<Widget*>(find(name));
    }
    static bool usable(const QString& name); // visible, enabled, and not behind a modal window
    // A click, and so the others, is over when the work that it has begun has ended.
    static void click(const QString& name);
    static void type(const QString& name, const QString& text); // replaces what stands there
    static void clickCell(const QString& table, int row, int column);
    static void press(const QString& name, Qt::Key key);
    static void settle(); // until no work is running
    // With DESK_SCREENSHOTS set, the window on show is left in that folder as a picture.
    static void picture(const QString& name);
    static QString boxText();                     // of the box on show, empty without one
    static void answerBox(const QString& button); // btnOk, btnYes, btnNo, btnCancel

private:
    void poll();
    void fail(const QString& what);

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    QElapsedTimer m_waiting;
    int m_limit = 0;
    QString m_failure;
    bool m_done = false;
};
