#pragma once

#include <QStringList>
#include <QWidget>

// The steps of a wizard in a row: those done with a check, the present one filled, the coming ones quiet. It shows
// where one is and is no control; the accessible name says the step in words.
class StepStrip : public QWidget
{
    Q_OBJECT
public:
    explicit StepStrip(QWidget* parent = nullptr);

    void setSteps(const QStringList& labels);
    // Index from 0.
    void setCurrent(int index);
    int current() const { return m_current; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    QStringList m_steps;
    int m_current = 0;
};
