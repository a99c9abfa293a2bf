#pragma once

#include "recorders/camera/CameraEdit.h"

#include <QWidget>
#include <array>
#include <memory>

class QComboBox;
class QLineEdit;
class QPushButton;
namespace Ui {
class CameraFrame;
}

// Frame 4: one camera of the recorder in the edit pair. Shows what CameraEdit offers and takes the operator's choices
// to it; all rules are there.
class CameraFrame : public QWidget
{
    Q_OBJECT

public:
    CameraFrame(Form_COM& com, RecorderSet& recorders, Work& work, QWidget* parent);
    ~CameraFrame() override;

    void openChannel(int channel); // from 0
    int channel() const { return m_edit.channel(); }
    CameraEdit& edit() { return m_edit; }
    // A camera that a search has found takes the place of the address and port typed so far.
    void takeFound(const QString& address, int port);
    // Writes the camera to its recorder, after a question.
    void apply();
    // Whether the camera must be detected before it can be written: then Detect is what Return presses.
    bool needsDetection() const;
    QPushButton* detectButton() const;
    void takeFocus();
    void changeLanguage();

public slots:
    void lbCamDetect_Click();

signals:
    void searchWanted();
    void written(); // the recorder has taken the camera, and so has the edit pair
    void stateChanged();

private:
    struct Row
    {
        CameraEdit::Control control;
        QComboBox* box;
    };
    void render();
    void takeFields();
    void showFields();
    void showPicture();
    void report(const RecorderOutcome& outcome);

    Form_COM& m_com;
    const RecorderSet& m_recorders;
    CameraEdit m_edit;
    Work& m_work; // the window's
    std::unique_ptr<Ui::CameraFrame> m_ui;
    std::array<QLineEdit*, 5> txtCam;
    std::array<Row, CameraEdit::kControls - 1> m_rows; // all but the fish-eye view, which is told and not chosen
};
