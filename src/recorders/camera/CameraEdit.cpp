#include "recorders/camera/CameraEdit.h"

#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "device/bridge/ModuleCGI.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/ReplyParsers.h"
#include "device/protocol/ReplyText.h"
#include "recorders/camera/CameraWrite.h"
#include "recorders/camera/ChannelClear.h"
#include "support/Conversions.h"
#include "support/HostNames.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kDetectSource("Form_CameraSetting - lbCamDetect_Click");
constexpr qsizetype kShownReply = 200; // characters of a device's reply in a box

enum Words
{
    kUnusable = 73,
    kPortFault = 556,
    kNameEmpty = 603,
    kAddressEmpty = 604,
    kPortEmpty = 605,
    kUserEmpty = 606,
    kPasswordEmpty = 607,
    kNoCamera = 609,
    kNameQuote = 980
};

enum Field
{
    kName,
    kAddress,
    kPort,
    kUser,
    kPassword
};

using Control = CameraEdit::Control;

bool PortFits(const QString& port)
{
    bool ok = false;
    const int number = port.trimmed().toInt(&ok);
    return ok && number >= 1 && number <= 65535;
}

// The answer of a device as it fits into a box.
QString Shown(const QString& reply)
{
    return u" : "_s + reply.left(kShownReply).simplified();
}

} // namespace

CameraEdit::CameraEdit(Form_COM& com, RecorderSet& recorders, QObject* parent)
    : QObject(parent)
    , m_com(com)
    , m_recorders(recorders)
{
}

CameraEdit::~CameraEdit() = default;

void CameraEdit::open(int channel)
{
    m_draft.svr = At(m_recorders.SVREdit.channels, channel);
    m_draft.pro = At(m_recorders.SVRProEdit.channels, channel);
    m_channel = channel;
    m_draft.svr.iSub_Channel = static_cast<qint16>(channel + 1);
    m_fields = storedFields();
    m_detectedFields = m_fields;
    m_detected = m_changed = m_stale = false;
    m_source = std::max<qint16>(m_draft.svr.iSub_CH_VideoID, 1);
    m_probeReply.clear();
    m_draft.states = lists().isPro() ? StatesOfStreams(m_draft.pro.streams) : FormatStates();
    m_draft.told = m_draft.states;
    m_seen = {};
    if (const int present = FormatIndex(m_draft.svr.sSub_CH_VideoFormat); present >= 0) {
        const auto slot = static_cast<std::size_t>(present);
        m_draft.states[slot] = presentState();
        PutState(m_draft.pro.streams, slot, m_draft.states[slot]);
    }
    CamDetailFill();
}

CameraEdit::Fields CameraEdit::storedFields() const
{
    const SVRChannel& svr = editChannel();
    return {svr.sSub_CH_Name, svr.sSub_CH_IP, QString::number(svr.iSub_CH_HttpPort), svr.sSub_CH_UserName,
            svr.sSub_CH_Password};
}

void CameraEdit::setFields(const Fields& fields)
{
    if (fields == m_fields)
        return;
    const bool other = fields.address != m_fields.address || fields.port != m_fields.port;
    m_fields = fields;
    m_detected = false;
    m_changed = true;
    if (!other)
        return;
    m_probeReply.clear(); // the sources were those of another camera
    at(Control::VideoSource) = {};
    emit choicesChanged();
}

void CameraEdit::putFields(SVRChannel& svr) const
{
    svr.sSub_CH_Name = m_fields.name;
    svr.sSub_CH_IP = m_fields.address.trimmed();
    svr.iSub_CH_HttpPort = m_fields.port.trimmed().toInt();
    svr.sSub_CH_UserName = m_fields.user;
    svr.sSub_CH_Password = m_fields.password;
}

QString CameraEdit::brand() const
{
    const qint16 number = m_draft.svr.iSub_CH_Brand;
    return number > 0 ? QString::number(number) : QString();
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::checkFields(Work& work) const
{
    const std::pair<const QString&, int> needed[] = {{m_fields.name, kNameEmpty},
                                                     {m_fields.address, kAddressEmpty},
                                                     {m_fields.port, kPortEmpty},
                                                     {m_fields.user, kUserEmpty},
                                                     {m_fields.password, kPasswordEmpty}};
    for (int field = 0; const auto& [text, message] : needed) {
        if (text.isEmpty())
            co_return Outcome::Failed(message, {}, field);
        ++field;
    }
    const QString address = m_fields.address.trimmed();
    QString found = address;
    if (!CheckIP(address))
        found = co_await GetIpByName(address, work);
    if (found.isEmpty())
        co_return Outcome::Failed(Message::kAddressFault, {}, kAddress);
    if (m_fields.name.contains(u'"'))
        co_return Outcome::Failed(kNameQuote, {}, kName);
    if (!PortFits(m_fields.port))
        co_return Outcome::Failed(kPortFault, {}, kPort);
    co_return Outcome::Done();
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::detect(Work& work)
{
    const Outcome fault = co_await checkFields(work);
    if (!fault.ok)
        co_return fault;
    const bool pro = lists().isPro();
    const bool ownSource = m_draft.svr.iSub_CH_VideoID == editChannel().iSub_CH_VideoID;
    if (!pro && ownSource && m_fields == storedFields() && HasStoredDetection({editChannel(), editProChannel(), pro})) {
        open(m_channel);
        m_detected = true;
        co_return Outcome::Done(Message::kDetectSuccess);
    }
    const bool answers = co_await CgiGetGid(m_com.web, AddressOf(recorder()), work);
    if (!answers)
        co_return Outcome::Failed(kNoCamera);
    QCoro::Task<Outcome> detection = pro ? ChannelDetectPro(work) : detectSvr(work);
    const Outcome outcome = co_await detection;
    co_return outcome;
}

bool CameraEdit::sameCamera() const
{
    return m_fields.address.trimmed() == m_detectedFields.address.trimmed() &&
           m_fields.port.trimmed() == m_detectedFields.port.trimmed();
}

bool CameraEdit::storedCamera() const
{
    const SVRChannel& stored = editChannel();
    return m_fields.address.trimmed() == stored.sSub_CH_IP &&
           m_fields.port.trimmed().toInt() == stored.iSub_CH_HttpPort;
}

// What an earlier camera has left would pass for what the asked one says: another camera begins as an empty channel.
CameraEdit::Draft CameraEdit::draftForDetection() const
{
    Draft draft = m_draft;
    if (!sameCamera()) {
        draft = {};
        draft.svr.iSub_CH_VideoID = 1;
        if (storedCamera())
            draft = {editChannel(), editProChannel(), {}, {}};
        draft.svr.iSub_Channel = static_cast<qint16>(m_channel + 1);
    }
    ForgetCamera(draft.svr, draft.pro);
    return draft;
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::detectSvr(Work& work)
{
    Draft draft = draftForDetection();
    const DeviceAddress recorder = AddressOf(this->recorder());
    const QString password = m_fields.password.trimmed().isEmpty() ? u"0"_s : m_fields.password;
    const QString address = m_fields.address.trimmed();
    const QString port = m_fields.port.trimmed();
    const QString brand = sameCamera() ? this->brand() : QString();
    auto source = std::max<qint16>(draft.svr.iSub_CH_VideoID, 1);
    const bool oneSource = choice(Control::VideoSource).shown;
    QCoro::Task<QString> asked =
        oneSource ? CgiDetectCameraAs(m_com.web, recorder, address, port, m_fields.user, password, source, brand, work)
                  : CgiDetectCamera(m_com.web, recorder, address, port, m_fields.user, password, brand, work);
    const QString reply = co_await asked;
    if (work.stopped())
        co_return Outcome();
    std::optional<DetectedCameraText> camera = ReadDetectedCamera(reply, source);
    if (camera && oneSource) { // the answer need not repeat how many there are
        camera->VideoSources = std::max(camera->VideoSources, m_draft.svr.iSub_CH_VideoIDCount);
    } else if (camera && source > camera->VideoSources) {
        source = 1;
        camera = ReadDetectedCamera(reply, source);
    }
    if (!camera)
        co_return refuse(Outcome::Failed(Message::kDetectFault, Shown(reply)));
    if (!TakeDetectedText(*camera, draft.svr, draft.states))
        co_return refuse(Outcome::FailedPlain(kUnusable));
    draft.svr.iSub_CH_VideoID = source;
    m_probeReply = reply.size() <= kMaxReplySize ? reply : QString();
    co_return takeDetected(std::move(draft));
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::ChannelDetectPro(Work& work)
{
    Draft draft = draftForDetection();
    const auto source = std::max<qint16>(draft.svr.iSub_CH_VideoID, 1);
    const QString request = BuildDetectCamera(m_fields.address.trimmed(), m_fields.port.trimmed().toInt(),
                                              m_fields.user, m_fields.password, source);
    const QString reply = co_await m_com.web.SendCmdXml(AddressOf(recorder()), request, work);
    if (work.stopped())
        co_return Outcome();
    qint16 result = -100;
    const bool read = Trapped(kDetectSource, [&] { result = ParseDetectedCamera(reply, draft.svr, draft.pro); });
    if (!read || result != 0)
        co_return refuse(Outcome::FailedPlain(ProbeMessage(read ? result : qint16(-100))));
    const SVRProStreams& streams = draft.pro.streams;
    draft.svr.sCH_ResolutionList =
        streams[0].sResolutionList + u';' + streams[1].sResolutionList + u';' + streams[2].sResolutionList;
    draft.states = StatesOfStreams(streams);
    draft.told = draft.states;
    readFishEyeModes(draft.svr);
    co_return takeDetected(std::move(draft));
}

void CameraEdit::readFishEyeModes(SVRChannel& svr) const
{
    Trapped(kDetectSource, [&] { FishEyeModeListPaser(svr.FishEyeModes, svr.sSub_CH_MD_FishEyeModeList); });
}

CameraEdit::Outcome CameraEdit::takeDetected(Draft draft)
{
    m_draft = std::move(draft);
    putFields(m_draft.svr);
    m_detectedFields = m_fields;
    m_detected = true;
    m_changed = true;
    m_stale = false;
    m_source = std::max<qint16>(m_draft.svr.iSub_CH_VideoID, 1);
    m_seen = {};
    CamDetailFill();
    return Outcome::Done(Message::kDetectSuccess);
}

CameraEdit::Outcome CameraEdit::refuse(Outcome outcome)
{
    m_detected = false;
    CamClear();
    return outcome;
}

CameraEdit::Outcome CameraEdit::checkApply() const
{
    const QString address = m_fields.address.trimmed();
    if (m_fields.name.isEmpty() && address.isEmpty()) // a channel to be cleared
        return Outcome::Done();
    if (address != editChannel().sSub_CH_IP) {
        // The recorder's own slot counts as it stands on the page, unless the station already knew it fuller.
        const int known = CameraTotal(m_recorders.SVRWorkList);
        const int slot = m_recorders.SVREdit.iSVR_Num - 1;
        const bool own = slot >= 0 && slot < kMaxSVR && !At(m_recorders.SVRWorkList, slot).sSVR_IP.isEmpty();
        const int edited =
            known - (own ? CameraCount(At(m_recorders.SVRWorkList, slot)) : 0) + CameraCount(m_recorders.SVREdit);
        if (std::max(known, edited) + 1 > iChannelLimit + 1)
            return Outcome::FailedPlain(Message::kTooManyChannels, u"(256)"_s);
    }
    if (m_stale || (m_fields != m_detectedFields && !m_detected))
        return Outcome::FailedPlain(Message::kDetectAgain);
    return Outcome::Done();
}

ChannelParameters CameraEdit::parameters() const
{
    ChannelParameters out;
    out.Name = Escape(m_fields.name);
    out.IP = m_fields.address.trimmed();
    out.HttpPort = m_fields.port.trimmed();
    out.UserName = m_fields.user;
    out.Password = m_fields.password;
    out.Brand = QString::number(m_draft.svr.iSub_CH_Brand);
    if (m_draft.svr.iSub_CH_VideoIDCount > 1)
        out.VideoID = QString::number(m_draft.svr.iSub_CH_VideoID);
    const QString format = choice(Control::Format).text();
    out.Format = format.isEmpty() ? QString() : GetFMTNameFromCode(format, 1);
    out.Resolution = choice(Control::Resolution).text();
    const auto code = [&](Control control, auto toNumber) {
        const Choice& row = choice(control);
        return row.shown && row.text() != kAbsent ? QString::number(toNumber(row.text())) : QString();
    };
    const CameraLists lists = this->lists();
    out.FPS = code(Control::FrameRate, [&](const QString& entry) { return lists.frameRateOf(entry); });
    out.RateCtrl = code(Control::RateControl, &CameraLists::rateControlOf);
    out.BitRate = code(Control::BitRate, [&](const QString& entry) { return lists.bitRateOf(entry); });
    out.Quality = code(Control::Quality, &CameraLists::qualityOf);
    return out;
}

ChannelSettings CameraEdit::settings(const Draft& draft) const
{
    ChannelSettings out = ChannelSettingsOf(draft.svr, draft.pro);
    if (const int slot = format(); slot >= 0) {
        const qint16 gop = draft.pro.streams[static_cast<std::size_t>(slot)].iGOP;
        out.GOP = gop >= 0 ? gop : out.GOP;
    }
    return out;
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::write(Draft& draft, Work& work) const
{
    const auto number = static_cast<qint16>(m_channel);
    if (!lists().isPro())
        return WriteSvrChannel(m_com, AddressOf(recorder()), number, parameters(), work);
    return WriteProChannel(m_com, AddressOf(recorder()), draft.svr, draft.pro, number, settings(draft), work);
}

QCoro::Task<CameraEdit::Outcome> CameraEdit::writeBack(Work& work)
{
    if (m_fields.name.isEmpty() && m_fields.address.trimmed().isEmpty()) {
        const Outcome outcome = co_await ClearRecorderChannel(m_com, m_recorders, m_channel, work);
        if (outcome.ok)
            open(m_channel);
        co_return outcome;
    }
    if (m_fields.name.contains(u'"')) // no device can be told
        co_return Outcome::Failed(kNameQuote, {}, kName);
    gather();
    Draft draft = m_draft;
    putFields(draft.svr);
    for (int slot = 0; lists().isPro() && slot < kMaxStream; ++slot) { // one format is sent, the others stay
        const auto other = static_cast<std::size_t>(slot);
        if (slot != format())
            PutState(draft.pro.streams, other, draft.told[other]);
    }
    const Choice& rates = choice(Control::FrameRate);
    if (rates.shown) {
        draft.svr.sCH_FPS_Customer = rates.text();
        draft.svr.sCH_FPS_List_Customer = rates.entries.join(u',');
    }
    const Outcome outcome = co_await write(draft, work);
    if (!outcome.ok) {
        if (!lists().isPro() && !work.stopped())
            refuse(outcome);
        co_return outcome;
    }
    readFishEyeModes(draft.svr);
    draft.svr.bSub_CH_Modified = true;
    editChannel() = draft.svr;
    editProChannel() = draft.pro;
    open(m_channel);
    co_return outcome;
}

QCoro::Task<CameraEdit::Search> CameraEdit::searchCameras(Work& work)
{
    Search search;
    std::vector<FoundCamera>& found = search.found;
    const DeviceAddress recorder = AddressOf(m_recorders.SVREdit);
    if (IsProFamily(m_recorders.SVREdit.sSVR_DeviceType)) {
        const QString reply = co_await m_com.web.SendCmdXml(recorder, BuildSearchCameras(), work);
        if (Accepted(reply))
            Trapped("Form_NVRSetting - GetSVRCameraSearch", [&] { ParseSearchResult(reply, found); });
        std::erase_if(found, [](const FoundCamera& camera) { return camera.IP.isEmpty(); });
        if (found.size() > kMaxFoundCameras)
            found.resize(kMaxFoundCameras);
    } else {
        const QString reply = co_await GetSVRCameraSearch(m_com.web, recorder, work);
        found = ReadCameraSearch(reply).value_or(std::vector<FoundCamera>());
    }
    search.outcome = found.empty() ? Outcome::Failed(kNoCamera) : Outcome::Done();
    co_return search;
}
