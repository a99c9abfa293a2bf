#pragma once

#include "look/widgets/DialogFrame.h"
#include "recorders/detect/ModifyApply.h"
#include "recorders/ui/HeldBack.h"
#include "recorders/ui/RecorderFields.h"

#include <functional>
#include <memory>
#include <optional>

class CameraFrame;
class CameraSearchFrame;
class DetectStatusFrame;
class NVRDetailFrame;
class QPushButton;
class RecorderSearchFrame;
namespace Ui {
class Form_NVRSetting;
}

// What becomes of the recorders that the wizard has read into free slots. A hook that is not set is passed over.
struct WizardHooks
{
    std::function<void()> finish;  // saves them: rights of the new recorders, then every marked record
    std::function<void()> discard; // takes them out of the station again
};

// The pages of recorders, one frame at a time. Frames 0 to 2 are the wizard that brings recorders into the station: 0
// choice of the way and the typed recorder, 1 the recorders that answered a search, 2 the running status of each
// recorder being detected. Frames 3 to 5 are a stored recorder: 3 its login and channels, 4 one camera, 5 a search for
// cameras.
class Form_NVRSetting : public DialogFrame
{
    Q_OBJECT

public:
    Form_NVRSetting(DetectContext context, WizardHooks wizard, QWidget* parent);
    ~Form_NVRSetting() override;

    // Opens a stored recorder (working slot from 0) on frame 3, in place of the wizard. `save` writes every marked
    // record, `remove` takes the recorder of a slot out of the station and saves.
    using RemoveRecorder = std::function<QCoro::Task<>(int slot, Work& work)>;
    void SetNVR(int slot, std::function<void()> save, RemoveRecorder remove);
    // The keyboard goes to the recorder's name, ready to be typed anew.
    void editName();
    void LoadFrame(int index); // hides all frames, shows this one
    int frame() const { return m_frame; }
    void ChangeLanguage();

    // Esc and the close button: a work under way is stopped, a camera's frames go back one level, and what was typed or
    // added is asked about before the window closes.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override; // stops the work and goes on as Esc

public slots:
    void lbNext_Click(int index);
    void lbBack_Click();                    // the frame that led to this one
    void lbCancel_Click();                  // while recorders are detected: stops, and keeps what is done
    void lbModifyApply_Click(int index);    // 0 applies and closes, 1 closes
    void lbCamModifyApply_Click(int index); // 0 writes the camera, 1 does not; both go back to frame 3

private:
    void takeRoom(QSize least, double share);
    void fillSlots();
    void showSteps();
    bool searches() const;
    bool typed() const; // in frame 0, beyond what stands there at first
    void beginManual();
    void takeManual(const ManualFault& fault);
    void beginChosen();
    void showChosen();
    void showDetection();
    void detectionEnded();
    void finishWizard();
    void leaveWizard(bool askTyped);
    void leaveRecorder();
    void leaveCamera();
    void leave(Modified modified, bool applied);
    void setBusy(bool busy);
    void pressNext();
    void pressCancel();
    void showChanges();

    DetectContext m_context;
    WizardHooks m_wizard;
    std::unique_ptr<Ui::Form_NVRSetting> m_ui;
    std::unique_ptr<RecorderFields> m_manual;
    RecorderSearchFrame* m_search;
    DetectStatusFrame* m_status;
    QPushButton* m_cancel;
    QPushButton* m_back;
    QPushButton* m_next;
    NVRDetailFrame* m_detail = nullptr; // only with a stored recorder, as the frames behind it
    CameraFrame* m_camera = nullptr;
    CameraSearchFrame* m_camSearch = nullptr;
    std::function<void()> m_save;
    RemoveRecorder m_remove;
    int m_frame = 0;
    std::optional<HeldBack> m_held;
    Work m_work; // stopped with the window, while all that it works for is still there
};
