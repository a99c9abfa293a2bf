#pragma once

#include "recorders/detect/DetectStatusModel.h"

#include <QWidget>
#include <memory>

class QPushButton;
class QTimer;
namespace Ui {
class DetectStatusFrame;
}

// Frame 2: the running status of each recorder being detected. Those that failed can be tried again with another login.
class DetectStatusFrame : public QWidget
{
    Q_OBJECT

public:
    // `context.stopped` ends the run at its next step.
    DetectStatusFrame(DetectContext context, QWidget* parent);
    ~DetectStatusFrame() override;

    // Detects the recorders one after the other, as soon as the event loop runs.
    void begin(std::vector<NVRDetectItem> items);
    // The slots (from 0) that runs of this frame have filled, in order.
    const std::vector<int>& added() const { return m_added; }
    // Whether anything is left to try again: then Try again is what Return presses.
    bool incomplete() const;
    QString summary() const; // "1 of 3 added, 2 failed"; while it runs, "1 of 3 done"
    QPushButton* retryButton() const;
    void takeFocus(); // to the other login
    void changeLanguage();

public slots:
    void lbRetry_Click();

signals:
    void busyChanged(bool busy, bool stoppable);
    void progressed();

private:
    void start();
    void detectAll();
    void detect(int row);

    DetectContext m_context;
    std::unique_ptr<Ui::DetectStatusFrame> m_ui;
    DetectStatusModel* m_status;
    QTimer* Timer_StartDetect;
    std::vector<int> m_added;
    bool m_running = false;
};
