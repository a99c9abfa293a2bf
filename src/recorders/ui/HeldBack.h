#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

// Windows and parts of a window that take no input while a device is asked, under a busy pointer. Afterwards they are
// as before, and the keyboard is where it was.
class HeldBack
{
public:
    explicit HeldBack(std::initializer_list<QWidget*> widgets)
        : m_focus(QApplication::focusWidget())
    {
        for (QWidget* widget : widgets) {
            if (widget && widget->isEnabled()) {
                widget->setEnabled(false);
                m_widgets << widget;
            }
        }
        QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    }
    ~HeldBack()
    {
        QGuiApplication::restoreOverrideCursor();
        for (const QPointer<QWidget>& widget : m_widgets) {
            if (widget)
                widget->setEnabled(true);
        }
        if (m_focus && m_focus->isVisible() && m_focus->isEnabled())
            m_focus->setFocus();
    }
    HeldBack(const HeldBack&) = delete;
    HeldBack& operator=(const HeldBack&) = delete;

private:
    QList<QPointer<QWidget>> m_widgets;
    QPointer<QWidget> m_focus;
};
