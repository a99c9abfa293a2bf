#pragma once

#include "recorders/camera/ChannelListModel.h"
#include "recorders/detect/ModifyApply.h"
#include "recorders/detect/RecorderCall.h"
#include "recorders/ui/RecorderFields.h"

#include <QWidget>
#include <memory>

class QPushButton;
namespace Ui {
class NVRDetailFrame;
}

// Frame 3: a stored recorder, its login and its channels. Works on the edit pair.
class NVRDetailFrame : public QWidget
{
    Q_OBJECT

public:
    // `work` asks the recorder; it belongs to the window.
    NVRDetailFrame(DetectContext context, Work& work, QWidget* parent);
    ~NVRDetailFrame() override;

    void SetNVR(int slot); // opens the recorder of a working slot (from 0)
    int slot() const { return m_slot; }
    void GridChannelList();        // fills the list from the edit pair
    void showChannel(int channel); // makes it the current row
    // The recorder has taken a change of a channel: the working slot follows, see TakeOverWritten.
    void channelWritten(int channel);
    void takeFocus(); // to the list
    void editName();  // to the name
    // Takes everything over into the station, see ModifyApply; applied() tells what came of it, unless something is
    // missing.
    void apply();
    bool changed() const; // something would be lost without apply
    // Whether another address or login is typed than the edit pair's: then Detect is what Return presses.
    bool needsDetection() const { return differing().message != 0; }
    QPushButton* detectButton() const;
    void changeLanguage();

public slots:
    void lbNVRDetect_Click();

signals:
    void channelWanted(int channel); // from 0
    void applied(Modified modified);
    void changesChanged();

private:
    ManualFault differing() const; // message 703 and the first field that is not as detected
    void prepareGrid();
    void clearChannel(int channel); // asks
    struct Detected
    {
        ManualFault fault;
        DetectStatus last;
        bool done = false;
    };
    QCoro::Task<Detected> detect();
    void takeDetected(const Detected& detected);
    QCoro::Task<RecorderOutcome> writeCameraEvents(std::vector<std::pair<int, bool>> changes);
    void takeOver();
    void tell(const RecorderOutcome& outcome) const;
    void showFacts();
    void showCounts();
    void showStep(const QString& words, int percent);
    void fitGrid();

    DetectContext m_context;
    Work& m_work;
    std::unique_ptr<Ui::NVRDetailFrame> m_ui;
    RecorderFields m_fields;
    ChannelListModel* m_channels;
    int m_slot = 0;
    bool m_detected = false; // the edit pair is no longer the working slot's
};
