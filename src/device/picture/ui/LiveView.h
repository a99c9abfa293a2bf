#pragma once

#include "device/picture/LivePicture.h"

#include <QWidget>
#include <memory>

// Shows the moving picture of a channel in its own shape on a dark ground. Where none comes it says so with the reason,
// over the last picture dimmed, and goes on trying. It asks only while it is on show.
class LiveView : public QWidget
{
    Q_OBJECT

public:
    explicit LiveView(QWidget* parent = nullptr);
    ~LiveView() override;

    // Shows a channel (from 1) from now on. `http` must outlive the view or its Stop().
    void Start(HttpClient& http, const DeviceAddress& device, qint16 channel);
    void Stop(); // and forgets the picture
    // Written at the lower left of the picture, such as the camera's name.
    void setCaption(const QString& caption);
    // An aid for aiming at the middle of the picture.
    void setCross(bool shown);

    // Null before Start().
    const LivePicture* picture() const { return m_live.get(); }
    bool lost() const { return m_live && m_live->Fault() != PictureFault::None; }
    // "Live 1280 × 720", what is waited for, or why no picture comes, in the live language; empty before Start().
    QString stateText() const;

    QSize sizeHint() const override { return {320, 180}; }
    QSize minimumSizeHint() const override { return {160, 90}; }

signals:
    void stateChanged(); // of stateText()

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ask();
    void arrived();
    void tellState();
    QRect place(const QSize& picture) const; // where a picture lies, in its own shape
    void paintWords(QPainter& painter) const;

    std::unique_ptr<LivePicture> m_live;
    DeviceAddress m_device;
    qint16 m_channel = 0;
    QImage m_shown; // stays while pictures are lost, or the view is hidden
    QString m_caption;
    QString m_told; // the last state
    bool m_cross = false;
};
