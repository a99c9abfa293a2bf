#pragma once

#include "look/widgets/DialogFrame.h"

class QLabel;
class QProgressBar;
class QPushButton;

// The small window of long work: what is being done, a bar and, if the work can be stopped, a button. Its object name
// is formProgressBar. Neither Esc nor the user closes it; whoever does the work does.
class ProgressWindow : public DialogFrame
{
    Q_OBJECT
public:
    explicit ProgressWindow(const QString& text, QWidget* parent = nullptr);

    void setText(const QString& text);
    // `maximum` 0 shows that work goes on without saying how far it is.
    void setMaximum(int maximum);
    void setValue(int value);
    // Offers to stop; an empty label takes the offer away.
    void setCancelText(const QString& text);

    QProgressBar* bar() const { return m_bar; }

    void reject() override;

signals:
    void cancelled();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QLabel* m_text;
    QProgressBar* m_bar;
    QPushButton* m_cancel = nullptr;
};
