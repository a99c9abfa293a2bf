#pragma once

#include <QWidget>

// One page of the main window. A page changes edit copies only.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // The opening routine: redraws from memory.
    virtual void open() {}
    // Whether Apply is active: the page has unsaved changes.
    virtual bool hasChanges() const { return false; }
    // What Yes and No of the question at leaving do.
    virtual void applyAtLeave() {}
    virtual void revertAtLeave() {}
    // Texts that tags cannot reach.
    virtual void changeLanguage() {}
    // Beside the page's name in the header.
    virtual QString subtitle() const { return {}; }

signals:
    // hasChanges() may answer differently now.
    void changesChanged();
    void subtitleChanged();
};
