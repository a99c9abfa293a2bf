#pragma once

#include "look/widgets/DialogFrame.h"
#include "recorders/detect/DetectStatusModel.h"
#include "recorders/detect/ModifyApply.h"
#include "recorders/detect/SearchListModel.h"
#include "recorders/ui/RecorderFields.h"

#include <functional>
#include <memory>

class CameraFrame;
class CameraSearchFrame;
class NVRDetailFrame;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTimer;
namespace Ui {
class Form_NVRSetting;
}

// The pages of recorders, one frame at a time. Frames 0 to 2 are the wizard that brings recorders into the station: 0
// choice of the way and the typed recorder, 1 the recorders that answered a search, 2 the running status of each
// recorder being detected. Frames 3 to 5 are a stored recorder: 3 its login and channels, 4 one camera, 5 a search for
// cameras.
class Form_NVRSetting : public DialogFrame
{
    Q_OBJECT

public:
    // `finish` saves what was detected: rights of the new recorders, then every marked record.
    Form_NVRSetting(DetectContext context, std::function<void()> finish, QWidget* parent);
    ~Form_NVRSetting() override;

    // Opens a stored recorder (working slot from 0) on frame 3, in place of the wizard.
    void SetNVR(int slot, ModifyHooks hooks);
    void LoadFrame(int index); // hides all frames, shows this one
    int frame() const { return m_frame; }
    void ChangeLanguage();

    void reject() override;

public slots:
    void lbNext_Click(int index);
    void lbCancel_Click();                  // while recorders are detected: stops, and keeps what is done
    void lbSearch_Click();                  // searches anew
    void lbModifyApply_Click(int index);    // 0 applies and closes, 1 closes
    void lbCamModifyApply_Click(int index); // 0 writes the camera, 1 does not; both go back to frame 3

protected:
    void keyPressEvent(QKeyEvent* event) override; // Esc leads back a frame before it closes

private:
    void fillSlots();
    void beginManual();
    void beginChosen();
    void beginDetection(std::vector<NVRDetectItem> items);
    void searchEnded();
    void showChosen();
    void detectAll();
    void setBusy(bool busy, bool stoppable = true);
    void pressNext();
    void pressCancel();
    void showChanges();

    DetectContext m_context;
    std::function<void()> m_finish;
    std::unique_ptr<Ui::Form_NVRSetting> m_ui;
    std::unique_ptr<RecorderFields> m_manual;
    DetectStatusModel* m_status;
    SearchListModel* m_found;
    QSortFilterProxyModel* m_foundProxy;
    bool m_stopped = false;
    QTimer* Timer_StartDetect;
    QPushButton* m_cancel;
    QPushButton* m_next;
    NVRDetailFrame* m_detail = nullptr; // only with a stored recorder, as the frames behind it
    CameraFrame* m_camera = nullptr;
    CameraSearchFrame* m_camSearch = nullptr;
    ModifyHooks m_hooks;
    int m_frame = 0;
    bool m_busy = false;
};
