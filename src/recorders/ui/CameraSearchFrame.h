#pragma once

#include "recorders/camera/CameraSearchModel.h"

#include <QWidget>
#include <memory>

class CameraEdit;
class Work;
namespace Ui {
class CameraSearchFrame;
}

// Frame 5: the cameras that the recorder sees on its network.
class CameraSearchFrame : public QWidget
{
    Q_OBJECT

public:
    CameraSearchFrame(CameraEdit& edit, Work& work, QWidget* parent);
    ~CameraSearchFrame() override;

    void open(); // searches only when nothing has been found yet
    bool hasChoice() const;
    void chooseCurrent();
    void changeLanguage();

public slots:
    void lb_CamReSearch_Click();

signals:
    void chosen(const QString& address, int port);
    void choiceChanged();

private:
    void choose(int record);

    CameraEdit& m_edit;
    Work& m_work; // the window's
    std::unique_ptr<Ui::CameraSearchFrame> m_ui;
    CameraSearchModel* m_found;
};
