#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

// A part of a window that takes no input while a device is asked, under a busy pointer. Afterwards it is as before, and
// the keyboard is where it was. Not for a window with dialogs: they would be disabled with it, their Stop button too
// (what lies behind a modal dialog takes no input anyway).
class HeldBack
{
public:
    explicit HeldBack(QWidget* part)
        : m_part(part)
        , m_focus(QApplication::focusWidget())
    {
        part->setEnabled(false);
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    }
    ~HeldBack()
    {
        QGuiApplication::restoreOverrideCursor();
        if (m_part)
            m_part->setEnabled(true);
        if (m_focus && m_focus->isVisible() && m_focus->isEnabled())
            m_focus->setFocus();
    }
    HeldBack(const HeldBack&) = delete;
    HeldBack& operator=(const HeldBack&) = delete;

private:
    QPointer<QWidget> m_part;
    QPointer<QWidget> m_focus;
};
