#pragma once

#include "device/bridge/Form_COM.h"
#include "device/protocol/Module_XML.h"
#include "device/protocol/RelativeFormat.h"
#include "recorders/camera/CameraDetect.h"
#include "recorders/camera/CameraLists.h"
#include "recorders/data/RecorderSet.h"
#include "recorders/detect/RecorderCall.h"
#include "support/Conversions.h"

#include <QObject>
#include <array>
#include <vector>

// The page of one camera without its window. Works on a draft of the channel; the edit pair (SVREdit, SVRProEdit)
// takes it when the recorder has taken it, and stays as it was otherwise. Calls that talk to the recorder await the
// replies, one at a time; the page outlives them.
class CameraEdit : public QObject
{
    Q_OBJECT

public:
    enum class Control
    {
        VideoSource, // Cmb_VideoID
        Format,      // cmbFormat
        Resolution,  // cmbResolution
        FrameRate,   // cmbCameraDetail_0
        RateControl, // cmbCameraDetail_1
        Quality,     // cmbCameraDetail_2
        BitRate,     // cmbCameraDetail_3
        LensMode,    // Cmb_LensMode
        LeftMode,    // views of the lenses
        RightMode,
        FishEyeMode // cmbVideoID
    };
    static constexpr int kControls = 11;

    struct Fields // txtCam(0..4)
    {
        QString name;
        QString address;
        QString port;
        QString user;
        QString password;
        friend bool operator==(const Fields&, const Fields&) = default;
    };
    struct Choice
    {
        QStringList entries;
        int current = -1;   // index into entries, -1 for none
        bool shown = false; // a row that offers nothing, or does not count at present, is hidden
        QString text() const { return entries.value(current); }
    };
    using Outcome = RecorderOutcome;

    // Works on the edit pair of `recorders`; both must outlive the page.
    CameraEdit(Form_COM& com, RecorderSet& recorders, QObject* parent = nullptr);
    ~CameraEdit() override;

    // Takes channel `channel` (from 0) of the edit pair anew. Throws ConversionError outside 0 to 63.
    void open(int channel);
    int channel() const { return m_channel; }
    const Fields& fields() const { return m_fields; }
    void setFields(const Fields& fields); // a change asks for a new detection
    QString brand() const;                // CamBrandID: the number as text, empty when unknown

    const Choice& choice(Control control) const { return m_choices[static_cast<std::size_t>(control)]; }
    // Selects an entry and refills what depends on it; an index outside the entries does nothing. The fish-eye view is
    // the camera's own and cannot be chosen.
    void choose(Control control, int index);

    bool detected() const { return m_detected; } // a detection has succeeded since the last change of the fields
    bool changed() const { return m_changed; }   // something differs from what open() took

    // lbCamDetect. On failure the lists are emptied once the recorder has been asked.
    QCoro::Task<Outcome> detect(Work& work);
    // lbCamModifyApply before its write: the station is full (716), a change needs a new detection (616).
    Outcome checkApply() const;
    // cmbeditCam_Click after its question 611. Fields whose name and address are empty clear the channel. Where the
    // recorder has taken the channel and cannot be read afterwards, what was sent counts (and message 7 says so).
    QCoro::Task<Outcome> writeBack(Work& work);
    // The cameras that the recorder sees on its own network; none with a message when it cannot tell or sees none.
    struct Search
    {
        Outcome outcome;
        std::vector<FoundCamera> found;
    };
    QCoro::Task<Search> searchCameras(Work& work);

signals:
    void choicesChanged();

private:
    // The draft of the channel with everything that a detection brings.
    struct Draft
    {
        SVRChannel svr;
        SVRProChannel pro;
        FormatStates states; // as the page leaves them
        FormatStates told;   // as the recorder has them
    };

    CameraLists lists() const { return {m_draft.svr, m_draft.pro, IsProFamily(recorder().sSVR_DeviceType)}; }
    const SVRRecord& recorder() const { return m_recorders.SVREdit; }
    SVRChannel& editChannel() const { return At(m_recorders.SVREdit.channels, m_channel); }
    SVRProChannel& editProChannel() const { return At(m_recorders.SVRProEdit.channels, m_channel); }
    Choice& at(Control control) { return m_choices[static_cast<std::size_t>(control)]; }
    FormatState presentState() const;
    void putState(const FormatState& state);
    Fields storedFields() const;
    void putFields(SVRChannel& svr) const;
    QCoro::Task<Outcome> checkFields(Work& work) const;
    QCoro::Task<Outcome> detectSvr(Work& work);
    QCoro::Task<Outcome> ChannelDetectPro(Work& work);
    bool sameCamera() const; // the lists are those of the address on the page
    Draft draftForDetection() const;
    bool storedCamera() const; // the fields name the camera that the channel has
    void readFishEyeModes(SVRChannel& svr) const;
    Outcome takeDetected(Draft draft);
    Outcome refuse(Outcome outcome);
    QCoro::Task<Outcome> write(Draft& draft, Work& work) const;
    ChannelParameters parameters() const;
    ChannelSettings settings(const Draft& draft) const;

    // The page's lists, in CameraChoices.cpp.
    void CamClear();                // empties them
    void CamDetailFill();           // all of them
    void fillFormat();              // what the chosen format has, and all below
    void CameraDetailVauleAssign(); // the rows of cmbCameraDetail
    void CheckRelativeformat(RelativeList list);
    void showRateRows();
    bool fitOtherStreams(); // false: not a recorder that tells of several
    void fillModes();       // lenses and fish-eye views
    void chooseSource(qint16 source);
    void gather(); // the choices into the draft
    int format() const;
    static void setEntries(Choice& choice, QStringList entries, const QStringList& wanted);

    Form_COM& m_com;
    RecorderSet& m_recorders;
    Draft m_draft;
    int m_channel = 0;
    Fields m_fields;
    Fields m_detectedFields; // those that the lists belong to
    bool m_detected = false;
    bool m_changed = false;
    bool m_stale = false;                  // the lists are empty or those of another source: only a detection helps
    qint16 m_source = 0;                   // video source that the lists belong to
    QString m_probeReply;                  // older family: the answer that tells of the video sources
    std::array<bool, kMaxStream> m_seen{}; // formats that were chosen on the page
    std::array<Choice, kControls> m_choices;
};
