#pragma once

#include "recorders/camera/ChannelListModel.h"
#include "recorders/detect/ModifyApply.h"
#include "recorders/detect/RecorderCall.h"
#include "recorders/ui/RecorderFields.h"

#include <QWidget>
#include <memory>

class IconProxy;
class QPushButton;
namespace Ui {
class NVRDetailFrame;
}

// Frame 3: a stored recorder, its login and its channels. Works on the edit pair.
class NVRDetailFrame : public QWidget
{
    Q_OBJECT

public:
    // `context.stopped` ends a detection at its next step.
    NVRDetailFrame(DetectContext context, QWidget* parent);
    ~NVRDetailFrame() override;

    void SetNVR(int slot); // opens the recorder of a working slot (from 0)
    int slot() const { return m_slot; }
    void GridChannelList();        // fills the list from the edit pair
    void showChannel(int channel); // makes it the current row
    // The recorder has taken a change of a channel: the working slot follows, see TakeOverWritten.
    void channelWritten(int channel);
    void takeFocus(); // to the list
    void editName();  // to the name
    // Takes everything over into the station, see ModifyApply; false: something is missing or was declined.
    Modified apply();
    // Takes the recorder out of the station by `remove`, which may wait for it.
    void remove(const std::function<void(int slot)>& remove);
    bool changed() const; // something would be lost without apply
    // Whether another address or login is typed than the edit pair's: then Detect is what Return presses.
    bool needsDetection() const { return differing().message != 0; }
    QPushButton* detectButton() const;
    void changeLanguage();

public slots:
    void lbNVRDetect_Click();
    // The edit icon opens the channel, the delete icon asks and clears it; other columns do nothing.
    void Grid_ChannelList_Click(const QModelIndex& cell);

signals:
    void channelWanted(int channel); // from 0
    // A device is being asked; `stoppable` while the context's `stopped` is looked at.
    void busyChanged(bool busy, bool stoppable);
    void changesChanged();

private:
    ManualFault differing() const; // message 703 and the first field that is not as detected
    void prepareGrid();
    void clearChannel(int channel);
    bool writeCameraEvents();
    void hold(int words, const std::function<void()>& call);
    RecorderOutcome ask(int words, const std::function<RecorderOutcome()>& call);
    void showFacts();
    void showCounts();
    void showStep(const QString& words, int percent);
    void fitGrid();

    DetectContext m_context;
    std::unique_ptr<Ui::NVRDetailFrame> m_ui;
    RecorderFields m_fields;
    ChannelListModel* m_channels;
    IconProxy* m_proxy;
    int m_slot = 0;
    bool m_detected = false; // the edit pair is no longer the working slot's
};
