#pragma once

#include "store/records/UserRecords.h"

#include <QWidget>
#include <functional>

// What the desk does for its pages.
struct PageContext
{
    std::function<void()> save;            // writes everything that is marked, with its audit lines (SaveCheck)
    std::function<void()> languageChanged; // another language is live: the texts of the desk are put in place anew
    std::function<void()> usersChanged;    // there are other users than before
};

// How a page stands in the navigation and the header. Texts are message numbers; where `label` is 0 the entry's text is
// `fixed`, the same in every language.
struct PageFace
{
    QLatin1String icon;
    int label = 0;
    int title = 0;
    QLatin1String fixed{};
    // Whether the entry is on show, and whether it opens (else the desk says "Unauthorised"); null: always.
    bool (*shown)(const GroupPrivilegeRecord& rights) = nullptr;
    bool (*allowed)(const GroupPrivilegeRecord& rights) = nullptr;

    QString labelText() const;
    QString titleText() const;
};

// One page of the main window. It changes edit copies only; what it needs of the desk it is given as a PageContext when
// it is made. A small page overrides enter() and changeLanguage() and nothing more.
class Page : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Comes on show: redraws from memory.
    virtual void enter() = 0;
    // F5: reads again what the page shows. Not called while it has changes.
    virtual void reread() { enter(); }
    // Texts that tags cannot reach.
    virtual void changeLanguage() {}
    // Beside the page's title in the header.
    virtual QString subtitle() const { return {}; }

    // Whether Apply is active: the page has unsaved changes.
    virtual bool hasChanges() const { return false; }
    // Apply, and Cancel. After an apply() that is refused hasChanges() is still true.
    virtual void apply() {}
    virtual void revert() {}
    // Asks what becomes of unsaved changes and does it. False: the user stays, or the changes cannot be applied.
    bool leave();
    // The menu was clicked: what runs while the page is on show pauses until it is entered again.
    virtual void pause() {}
    // The window is being closed: work of the page that talks to devices ends at once.
    virtual void stopWork() {}
    // The one primary action of the page, where another place of the desk leads to it.
    virtual void primaryAction() {}

signals:
    // hasChanges() may answer differently now.
    void changesChanged();
    void subtitleChanged();
    // Work of the page begins or ends that must not be left alone: the navigation is held back meanwhile.
    void workRunning(bool running);
};
