#pragma once

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

// A key that acts anywhere in a part of a window. Held down it acts once.
template <class Act>
void OnKey(QWidget* part, const QKeySequence& key, Act act)
{
    auto* shortcut = new QShortcut(key, part, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, part, act);
}
