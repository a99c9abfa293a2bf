#pragma once

#include "look/DialogFrame.h"
#include "recorders/DetectStatusModel.h"
#include "recorders/SearchListModel.h"

#include <functional>
#include <memory>

class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTimer;
namespace Ui {
class Form_NVRSetting;
}

// The wizard that brings recorders into the station, one frame at a time: 0 choice of the way and the typed recorder,
// 1 the recorders that answered a search, 2 the running status of each recorder being detected.
class Form_NVRSetting : public DialogFrame
{
    Q_OBJECT

public:
    // `finish` saves what was detected: rights of the new recorders, then every marked record.
    Form_NVRSetting(DetectContext context, std::function<void()> finish, QWidget* parent);
    ~Form_NVRSetting() override;

    void LoadFrame(int index); // hides all frames, shows this one
    int frame() const { return m_frame; }
    void ChangeLanguage();

    void reject() override;

public slots:
    void lbNext_Click(int index);
    void lbCancel_Click(); // while recorders are detected: stops, and keeps what is done
    void lbSearch_Click(); // searches anew

private:
    void fillSlots();
    void beginManual();
    void beginChosen();
    void beginDetection(std::vector<NVRDetectItem> items);
    void searchEnded();
    void showChosen();
    void detectAll();
    void setBusy(bool busy);
    QLineEdit* field(ManualField which) const;

    DetectContext m_context;
    std::function<void()> m_finish;
    std::unique_ptr<Ui::Form_NVRSetting> m_ui;
    DetectStatusModel* m_status;
    SearchListModel* m_found;
    QSortFilterProxyModel* m_foundProxy;
    bool m_stopped = false;
    QTimer* Timer_StartDetect;
    QPushButton* m_cancel;
    QPushButton* m_next;
    int m_frame = 0;
    bool m_busy = false;
};
