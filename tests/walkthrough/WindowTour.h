#pragma once

#include "app/Station.h"
#include "app/ui/Form_Initial.h"
#include "tests/walkthrough/DeskWindows.h"
#include "tests/walkthrough/Driver.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <utility>

// How a tour shows windows: pages of the desk, dialogs without a loop of their own, and modal ones. A subject with many
// windows has a function `void …Windows(WindowTour&)` in a file of its own, called by DeskWindows.cpp; it puts into the
// station what the windows show and takes it out again.
class WindowTour
{
public:
    WindowTour(Form_Initial& desk, Station& station, const VisitWindow& visit)
        : m_desk(desk)
        , m_station(station)
        , m_visit(visit)
    {
    }

    Form_Initial& desk() { return m_desk; }
    Station& station() { return m_station; }

    void pages(const QString& prefix, const QList<int>& which)
    {
        for (const int page : which) {
            Driver::click(QStringLiteral("lbMenu_%1").arg(page));
            if (page == kTooling && !prefix.isEmpty())
                Driver::click(QStringLiteral("lbSysSearch"));
            visit(prefix + QStringLiteral("page%1").arg(page), m_desk);
        }
    }
    // A dialog that needs no loop of its own; `prepare` brings it to what is to be seen.
    template <class Dialog>
    void show(const QString& name, Dialog&& dialog, const std::function<void()>& prepare = {})
    {
        dialog.show();
        if (prepare)
            prepare();
        visit(name, dialog);
        dialog.hide(); // closing may mean a question, or one level back
    }
    // Whatever modal window `open` brings up and waits for.
    void modal(const QString& name, const std::function<void()>& open)
    {
        QTimer::singleShot(0, &m_desk, [this, name] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            visit(name, *dialog);
            dialog->reject();
        });
        open();
    }

    void visit(const QString& name, QWidget& window)
    {
        // A caption that grows passes through one layout after another.
        for (int level = 0; level < kNestedLayouts; ++level)
            QCoreApplication::processEvents();
        m_visit(name, window);
    }

    static constexpr int kTooling = 11;

protected:
    Form_Initial& m_desk;
    Station& m_station;

private:
    static constexpr int kNestedLayouts = 8;

    const VisitWindow& m_visit;
};
