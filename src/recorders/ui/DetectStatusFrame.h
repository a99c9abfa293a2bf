#pragma once

#include "recorders/detect/DetectStatusModel.h"

#include <QWidget>
#include <memory>

class QPushButton;
namespace Ui {
class DetectStatusFrame;
}

// Frame 2: the running status of each recorder being detected. Those that failed can be tried again with another login.
class DetectStatusFrame : public QWidget
{
    Q_OBJECT

public:
    // `work` detects; it belongs to the window.
    DetectStatusFrame(DetectContext context, Work& work, QWidget* parent);
    ~DetectStatusFrame() override;

    // Detects the recorders side by side.
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
    void progressed();
    void ended();

private:
    void start();
    QCoro::Task<> detectAll();
    void report(int row, const DetectStatus& status);

    DetectContext m_context;
    Work& m_work;
    std::unique_ptr<Ui::DetectStatusFrame> m_ui;
    DetectStatusModel* m_status;
    std::vector<int> m_added;
};
