#include "app/log/Module_Log.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/RelativeFormat.h"
#include "recorders/camera/CameraEdit.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// What the page's lists offer, and what a choice in one does to the others.

namespace {

using Control = CameraEdit::Control;

bool Offers(const QStringList& entries)
{
    return std::any_of(entries.begin(), entries.end(), [](const QString& entry) { return entry != kAbsent; });
}

// The last entry of an ascending list whose number does not go beyond `value`; the first when all do.
template <class ToNumber>
QString HighestUpTo(const QStringList& entries, qint16 value, ToNumber&& toNumber)
{
    QString best = entries.value(0);
    for (const QString& entry : entries) {
        if (toNumber(entry) <= value)
            best = entry;
    }
    return best;
}

} // namespace

int CameraEdit::format() const
{
    return FormatIndex(choice(Control::Format).text());
}

// The first of `wanted` that the list has is selected, else its first entry.
void CameraEdit::setEntries(Choice& choice, QStringList entries, const QStringList& wanted)
{
    choice.entries = std::move(entries);
    choice.shown = Offers(choice.entries);
    choice.current = choice.entries.isEmpty() ? -1 : 0;
    for (const QString& text : wanted) {
        if (const qsizetype at = choice.entries.indexOf(text); at >= 0) {
            choice.current = static_cast<int>(at);
            return;
        }
    }
}

FormatState CameraEdit::presentState() const
{
    const SVRChannel& svr = m_draft.svr;
    return {svr.sSub_CH_Resolution, svr.iCH_FPS, svr.iCH_RateCtrl, svr.iCH_Quality, svr.iCH_BitRate};
}

// What is unknown leaves the channel's own value.
void CameraEdit::putState(const FormatState& state)
{
    SVRChannel& svr = m_draft.svr;
    if (!state.resolution.isEmpty())
        svr.sSub_CH_Resolution = state.resolution;
    const std::pair<qint16&, qint16> numbers[] = {{svr.iCH_FPS, state.frameRate},
                                                  {svr.iCH_RateCtrl, state.rateControl},
                                                  {svr.iCH_Quality, state.quality},
                                                  {svr.iCH_BitRate, state.bitRate}};
    for (const auto& [field, value] : numbers) {
        if (value >= 0)
            field = value;
    }
}

// Takes over what the shown rows say; "N/A" says nothing.
void CameraEdit::gather()
{
    SVRChannel& svr = m_draft.svr;
    const CameraLists lists = this->lists();
    const auto take = [&](Control control, qint16& value, auto toNumber) {
        const Choice& row = choice(control);
        if (row.shown && row.current >= 0 && row.text() != kAbsent)
            value = toNumber(row.text());
    };
    take(Control::FrameRate, svr.iCH_FPS, [&](const QString& entry) { return lists.frameRateOf(entry); });
    take(Control::RateControl, svr.iCH_RateCtrl, &CameraLists::rateControlOf);
    take(Control::Quality, svr.iCH_Quality, &CameraLists::qualityOf);
    take(Control::BitRate, svr.iCH_BitRate, [&](const QString& entry) { return lists.bitRateOf(entry); });

    const int slot = format();
    if (slot < 0)
        return;
    const auto at = static_cast<std::size_t>(slot);
    m_draft.states[at] = presentState();
    if (!lists.isPro())
        return;
    SVRProStreams& streams = m_draft.pro.streams;
    streams[at].sFMT = svr.sSub_CH_VideoFormat;
    PutState(streams, at, m_draft.states[at]);
}

void CameraEdit::CamClear()
{
    m_choices.fill({});
    m_stale = true;
    emit choicesChanged();
}

void CameraEdit::CamDetailFill()
{
    const SVRChannel& svr = m_draft.svr;
    const int sources = std::min<int>(svr.iSub_CH_VideoIDCount, kMaxChannel);
    QStringList numbers;
    for (int number = 1; sources > 1 && number <= sources; ++number)
        numbers += QString::number(number);
    setEntries(at(Control::VideoSource), numbers, {QString::number(svr.iSub_CH_VideoID)});

    // The channel's format in the camera's spelling.
    const QString present = svr.sSub_CH_VideoFormat;
    QStringList formats = lists().formats();
    QStringList wanted{present};
    for (const QString& name : formats) {
        if (FormatIndex(name) == FormatIndex(present))
            wanted += name;
    }
    setEntries(at(Control::Format), std::move(formats), wanted);
    fillFormat();
    fillModes();
    emit choicesChanged();
}

void CameraEdit::fillFormat()
{
    SVRChannel& svr = m_draft.svr;
    const QString before = svr.sSub_CH_Resolution;
    QStringList wanted;
    if (const int slot = format(); slot >= 0) {
        const auto chosen = static_cast<std::size_t>(slot);
        svr.sSub_CH_VideoFormat = choice(Control::Format).text();
        putState(m_draft.states[chosen]);
        if (!m_seen[chosen]) // the size stays where the format has it
            wanted += before;
        m_seen[chosen] = true;
    }
    QString& present = svr.sSub_CH_Resolution;
    Choice& sizes = at(Control::Resolution);
    wanted += present;
    setEntries(sizes, lists().resolutions(format()), wanted);
    if (sizes.current >= 0)
        present = sizes.text();
    CameraDetailVauleAssign();
}

void CameraEdit::CameraDetailVauleAssign()
{
    const SVRChannel& svr = m_draft.svr;
    const CameraLists lists = this->lists();
    const QString resolution = choice(Control::Resolution).text();
    const QStringList frameRates = lists.frameRates(format(), resolution);
    const QStringList bitRates = lists.bitRates(format(), resolution);
    QStringList frameRate{lists.frameRateText(svr.iCH_FPS)};
    QStringList bitRate{lists.bitRateText(svr.iCH_BitRate)};
    if (lists.isPro()) {
        frameRate += HighestUpTo(frameRates, svr.iCH_FPS, [&](auto& entry) { return lists.frameRateOf(entry); });
        bitRate += HighestUpTo(bitRates, svr.iCH_BitRate, [&](auto& entry) { return lists.bitRateOf(entry); });
    }
    setEntries(at(Control::FrameRate), frameRates, frameRate);
    setEntries(at(Control::RateControl), lists.rateControls(format()),
               {CameraLists::rateControlText(svr.iCH_RateCtrl)});
    setEntries(at(Control::Quality), lists.qualities(format()), {CameraLists::qualityText(svr.iCH_Quality)});
    setEntries(at(Control::BitRate), bitRates, bitRate);
    if (HasRelativeFormat(svr.sCH_Relativeformat)) {
        CheckRelativeformat(RelativeList::FrameRate);
        CheckRelativeformat(RelativeList::BitRate);
    }
    showRateRows();
}

void CameraEdit::CheckRelativeformat(RelativeList list)
{
    SVRChannel& svr = m_draft.svr;
    const auto codes = RelativeFormatValues(svr.sCH_Relativeformat, format(), choice(Control::Resolution).text(), list);
    if (!codes)
        return;
    const bool rates = list == RelativeList::FrameRate;
    const CameraLists lists = this->lists();
    const auto nameOf = [&](qint16 code) { return rates ? lists.frameRateText(code) : lists.bitRateText(code); };
    QStringList names;
    for (const QString& code : *codes) {
        bool ok = false;
        const short number = code.trimmed().toShort(&ok);
        const QString name = ok ? nameOf(number) : QString();
        if (!name.isEmpty() && !names.contains(name))
            names += name;
    }
    qint16& stored = rates ? svr.iCH_FPS : svr.iCH_BitRate;
    Choice& row = at(rates ? Control::FrameRate : Control::BitRate);
    const QString present = nameOf(stored);
    setEntries(row, names, {present});
    if (row.current >= 0 && row.text() != present && row.text() != kAbsent)
        stored = rates ? lists.frameRateOf(row.text()) : lists.bitRateOf(row.text());
}

// A variable bit rate goes by quality, a constant one by bit rate.
void CameraEdit::showRateRows()
{
    const Choice& control = choice(Control::RateControl);
    const bool variable = GetsRateControl(control.text(), 1) == "0"_L1;
    Choice& quality = at(Control::Quality);
    Choice& bitRate = at(Control::BitRate);
    quality.shown = Offers(quality.entries) && (!control.shown || variable);
    bitRate.shown = Offers(bitRate.entries) && (!control.shown || !variable);
}

void CameraEdit::fillModes()
{
    const SVRChannel& svr = m_draft.svr;
    const SVRProChannel& pro = m_draft.pro;
    const auto fillFrom = [&](Control control, const QString& list, const QString& present) {
        setEntries(at(control), list.split(u',', Qt::SkipEmptyParts), {present});
    };
    fillFrom(Control::LensMode, pro.sCH_Pro_LensModeList, pro.sCH_Pro_LensMode);
    fillFrom(Control::LeftMode, pro.sCH_Pro_LeftDisplayModeList, pro.sCH_Pro_LeftDisplayMode);
    fillFrom(Control::RightMode, pro.sCH_Pro_RightDisplayModeList, pro.sCH_Pro_RightDisplayMode);
    std::vector<FishEyeMode> modes;
    Trapped("Form_CameraSetting - CamDetailFill", [&] { FishEyeModeListPaser(modes, svr.sSub_CH_MD_FishEyeModeList); });
    QStringList views;
    for (const FishEyeMode& mode : modes)
        views += mode.sModeName;
    // The view is told, not chosen: one the list lacks is the camera's present one all the same.
    const QString& present = svr.sSub_CH_Mode4FishEye;
    if (!views.isEmpty() && !views.contains(present))
        views.prepend(present.isEmpty() ? QString(kAbsent) : present);
    setEntries(at(Control::FishEyeMode), lists().isPro() ? views : QStringList(), {present});
}

void CameraEdit::choose(Control control, int entry)
{
    Choice& chosen = at(control);
    if (control == Control::FishEyeMode || entry < 0 || entry >= chosen.entries.size() || entry == chosen.current)
        return;
    SVRChannel& svr = m_draft.svr;
    SVRProChannel& pro = m_draft.pro;
    gather(); // before a list changes under what is chosen in it
    chosen.current = entry;
    const QString text = chosen.text();
    m_changed = true;
    switch (control) {
    case Control::VideoSource:
        chooseSource(static_cast<qint16>(entry + 1));
        break;
    case Control::Format:
        fillFormat();
        break;
    case Control::Resolution:
        svr.sSub_CH_Resolution = text;
        fitOtherStreams();
        CameraDetailVauleAssign();
        break;
    case Control::FrameRate:
        svr.iCH_FPS = lists().frameRateOf(text);
        break;
    case Control::RateControl:
        svr.iCH_RateCtrl = CameraLists::rateControlOf(text);
        if (fitOtherStreams())
            CameraDetailVauleAssign();
        else
            showRateRows();
        break;
    case Control::Quality:
        svr.iCH_Quality = CameraLists::qualityOf(text);
        break;
    case Control::BitRate:
        svr.iCH_BitRate = lists().bitRateOf(text);
        break;
    case Control::LensMode:
        pro.sCH_Pro_LensMode = text;
        break;
    case Control::LeftMode:
        pro.sCH_Pro_LeftDisplayMode = text;
        break;
    case Control::RightMode:
        pro.sCH_Pro_RightDisplayMode = text;
        break;
    case Control::FishEyeMode:
        break;
    }
    emit choicesChanged();
}

// A newer recorder tells of all streams of a camera: those beside the chosen one come within what their lists offer.
bool CameraEdit::fitOtherStreams()
{
    if (recorder().sSVR_DeviceType != kFamilyTXR632 || format() < 0)
        return false;
    const auto chosen = static_cast<std::size_t>(format());
    SVRProStreams& streams = m_draft.pro.streams;
    FitStreams(streams, chosen);
    const FormatState present = m_draft.states[chosen];
    m_draft.states = StatesOfStreams(streams);
    m_draft.states[chosen] = present;
    return true;
}

// The lists of another video source, as far as the recorder's answer tells of it.
void CameraEdit::chooseSource(qint16 source)
{
    m_draft.svr.iSub_CH_VideoID = source;
    if (m_probeReply.isEmpty() || !DescribesSource(m_probeReply, source)) {
        m_stale = source != m_source;
        return;
    }
    std::optional<DetectedCameraText> camera = ReadDetectedCamera(m_probeReply, source);
    if (camera)
        camera->VideoSources = std::max(camera->VideoSources, m_draft.svr.iSub_CH_VideoIDCount);
    Draft draft = m_draft;
    ForgetCamera(draft.svr, draft.pro);
    if (!camera || !TakeDetectedText(*camera, draft.svr, draft.states)) {
        refuse({});
        return;
    }
    m_draft = std::move(draft);
    m_source = source;
    m_stale = false;
    CamDetailFill();
}
