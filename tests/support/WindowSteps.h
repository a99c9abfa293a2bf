#pragma once

#include "tests/walkthrough/Driver.h"

#include <QApplication>
#include <QTest>

// Steps of a test through windows. Each waits until the widget of its name can be used.
class WindowSteps
{
protected:
    void step(const QString& name, std::function<void()> act)
    {
        const auto ready = [name] {
            QWidget* modal = QApplication::activeModalWidget();
            return Driver::usable(name) && (!modal || modal == QApplication::activeWindow());
        };
        driver.add(name, ready, std::move(act));
    }
    void waitClosed(const QString& dialog)
    {
        driver.add(
            dialog + QStringLiteral(" closed"), [dialog] { return !Driver::find(dialog); }, [] {});
    }
    static void press(const QString& name, Qt::Key key) { QTest::keyClick(Driver::find(name), key); }

    Driver driver;
};
