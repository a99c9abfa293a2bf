#pragma once

#include "look/widgets/DialogFrame.h"

#include <memory>

class QProgressBar;
class QPushButton;
namespace Ui {
class ProgressWindow;
}

// The small window of long work: what is being done, a bar and, if the work can be stopped, a button. Its object name
// is formProgressBar. Neither Esc nor the user closes it; whoever does the work does.
class ProgressWindow : public DialogFrame
{
    Q_OBJECT
public:
    explicit ProgressWindow(const QString& text, QWidget* parent = nullptr);
    ~ProgressWindow() override;

    void setText(const QString& text);
    // `maximum` 0 shows that work goes on without saying how far it is.
    void setMaximum(int maximum);
    void setValue(int value);
    // Offers to stop; an empty label takes the offer away.
    void setCancelText(const QString& text);

    QProgressBar* bar() const;

    void reject() override;

signals:
    void cancelled();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Ui::ProgressWindow> m_ui;
    QPushButton* m_cancel = nullptr;
};
