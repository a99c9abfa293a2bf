#include "recorders/detect/NVRDetect.h"

#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "device/bridge/ModuleCGI.h"
#include "device/protocol/Module_XML.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/ReplyParsers.h"
#include "recorders/camera/CameraEvents.h"
#include "recorders/camera/CameraLists.h"
#include "support/Conversions.h"
#include "support/HostNames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kNoSizes(";;"); // of the three formats
constexpr QLatin1String kSource("Form_NVRSetting - DetectNVR");
constexpr qint32 kNewEventVersion = 30026804; // fourth piece of the firmware version

enum Words
{
    kLogin = 25,
    kIncorrectAccount = 44,
    kRepeatAdd = 78,
    kNoResponse = 221,
    kGetCapability = 293,
    kGetChannels = 294,
    kGetInfo = 295,
    kInitialValue = 296,
    kAddSuccess = 297,
    kNameEmpty = 553,
    kNotSupported = 619,
    kNoChannel = 719
};

// Ends a detection with a message.
struct DetectFailure
{
    int message;
    QString suffix = {};
};

// The digit that follows a key in the login reply; a null character when the key is not there.
QChar DigitBehind(const QString& reply, const QString& key)
{
    const qsizetype at = reply.indexOf(key);
    return at >= 0 && at + key.size() < reply.size() ? reply.at(at + key.size()) : QChar();
}

int MessageOfLogin(qint32 result)
{
    switch (result) {
    case 401:
        return kIncorrectAccount;
    case 404:
        return kNoResponse;
    default:
        return Message::kConnectionError;
    }
}

// What "camera_c<n>.device" tells of a channel.
void TakeDevice(const RecorderChannel& read, SVRChannel& camera)
{
    if (!read.Name.isNull())
        camera.sSub_CH_Name = Unescape(read.Name).left(kMaxDeviceText);
    const std::pair<QString&, QString> texts[] = {{camera.sSub_CH_UserName, read.UserName},
                                                  {camera.sSub_CH_Password, read.Password},
                                                  {camera.sSub_CH_Resolution, read.Resolution}};
    for (const auto& [field, text] : texts) {
        if (!text.isNull())
            field = text.left(kMaxDeviceText);
    }
    camera.iSub_CH_HttpPort = read.HttpPort.value_or(camera.iSub_CH_HttpPort);
    camera.iSub_CH_Brand = read.Brand.value_or(camera.iSub_CH_Brand);
    if (read.Format)
        camera.sSub_CH_VideoFormat = GetFMTNameFromCode(QString::number(*read.Format), 0);
}

// As it is compared and stored: no blanks round address and name, a name of the length that fields have, and the
// address where there is none.
NVRDetectItem Trimmed(NVRDetectItem item)
{
    item.sIP = item.sIP.trimmed();
    item.sName = item.sName.trimmed().left(kRecorderNameLength).trimmed();
    if (item.sName.isEmpty())
        item.sName = item.sIP.left(kRecorderNameLength);
    return item;
}

// One run of DetectNVR.
class Detection
{
public:
    Detection(const DetectContext& context, const NVRDetectItem& item, const DetectReport& report, Work& work,
              DetectMode mode)
        : m_context(context)
        , m_item(Trimmed(item))
        , m_report(report)
        , m_work(work)
        , m_modify(mode == DetectMode::Modify)
        , m_web(context.com.web)
        , m_device{m_item.sIP, item.iPort, item.sUser, item.sPassword}
        , m_svr(std::make_unique<SVRRecord>())
        , m_pro(std::make_unique<SVRProRecord>())
    {
        if (!m_modify)
            return;
        *m_svr = context.recorders.SVREdit; // what the recorder does not mention stays
        *m_pro = context.recorders.SVRProEdit;
    }

    QCoro::Task<> run(DetectOrder* order, std::size_t row)
    {
        say(kLogin, 5);
        const QString loginReply = co_await logIn();
        say(kGetCapability, 20);
        co_await readCapability();
        if (!LoginLevelPasses(loginReply, m_family))
            throw DetectFailure{Message::kUnauthorised};
        checkStation(); // what is refused already stays refused
        std::exception_ptr fault;
        try {
            co_await readRecorder();
        } catch (...) {
            fault = std::current_exception();
        }
        if (order)
            co_await order->turn(row);
        if (m_work.stopped())
            throw DetectFailure{kDetectStopped};
        checkStation();
        if (fault)
            std::rethrow_exception(fault);
        if (m_svr->iSVR_ValidCH == 0)
            throw DetectFailure{kNoChannel};
        say(kInitialValue, 100);
        store();
    }

    int slot() const { return m_slot; }

private:
    void say(int message, int percent)
    {
        if (m_work.stopped())
            throw DetectFailure{kDetectStopped};
        m_report({message, percent, DetectStatus::State::Running, {}});
    }

    QCoro::Task<LoginReply> tryLogin(QString user, QString password)
    {
        m_device.user = user;
        m_device.password = password;
        return CgiLogin(m_web, m_device, m_work);
    }

    // The login's reply; the login that worked stays in m_device.
    QCoro::Task<QString> logIn()
    {
        LoginReply reply;
        reply.result = -1;
        if (m_modify || !m_item.sUser.isEmpty() || !m_item.sPassword.isEmpty()) {
            const auto orAdmin = [](const QString& text) { return text.isEmpty() ? u"admin"_s : text; };
            reply = co_await tryLogin(orAdmin(m_item.sUser), orAdmin(m_item.sPassword));
        } else {
            const std::vector<NVRAccountRecord> accounts = m_context.accounts;
            for (const NVRAccountRecord& account : accounts) {
                reply = co_await tryLogin(account.sUser, account.sPass);
                if (reply.result == 1 || m_work.stopped())
                    break;
            }
        }
        if (reply.result != 1)
            throw DetectFailure{MessageOfLogin(reply.result)};
        co_return reply.text;
    }

    QCoro::Task<> readCapability()
    {
        const std::optional<SvrCapability> read = co_await CgiGetServerCapability(m_web, m_device, m_work);
        if (!read)
            throw DetectFailure{Message::kConnectionError};
        m_capability = *read;
        m_family = GetsDeviceType(m_capability.DeviceType, m_capability.MaxHDSupport);
        if (m_capability.DeviceType.contains("SVD"_L1) || (IsProFamily(m_family) && !m_capability.CMSSupport))
            throw DetectFailure{kNotSupported};
        m_channels = qBound(qint16(0), m_capability.MaxChannelSupport, qint16(kMaxChannel));
    }

    // What the other recorders of the station, and those that came before in the list, leave for this one.
    void checkStation()
    {
        const auto& known = m_context.recorders.SVRWorkList;
        m_slot = m_item.iSlot >= 0 ? m_item.iSlot : FirstFreeSlot(known);
        At(known, m_slot);
        for (const SVRRecord& other : known) {
            if (!m_modify && !other.sSVR_IP.isEmpty() && other.sSVR_IP == m_item.sIP &&
                other.iSVR_HttpPort == m_item.iPort)
                throw DetectFailure{kRepeatAdd};
        }
        if (CameraTotal(known) > iChannelLimit)
            throw DetectFailure{Message::kTooManyChannels, u"(256)"_s};
    }

    QCoro::Task<> readRecorder()
    {
        if (m_family == kFamilySVR)
            co_await readFirmwareVersion();
        say(kGetChannels, 40);
        co_await readChannels();
        say(kGetInfo, 75);
        co_await readSystem();
        fillRecord();
        if (m_svr->iSVR_ValidCH > 0)
            co_await TakeRecorderCameraEvents(m_context.com, *m_svr, m_work);
    }

    QCoro::Task<> readFirmwareVersion()
    {
        const QString reply = co_await CgiGetFwVersion(m_web, m_device, m_work);
        if (!reply.contains("OK"_L1))
            co_return;
        Trapped(kSource, [&] {
            const QStringList pieces = reply.section(u'=', 1, 1).split(u'.');
            m_svr->bSVR_N_EventSupport = ToInt32(At(pieces, 3)) >= kNewEventVersion;
        });
    }

    QCoro::Task<> readChannels()
    {
        if (IsProFamily(m_family))
            co_await readProChannels();
        else
            co_await readSvrChannels();
        for (int channel = m_channels; channel < kMaxChannel; ++channel)
            ClearChannel(*m_svr, *m_pro, channel);
    }

    QCoro::Task<> readProChannels()
    {
        const QString reply = co_await m_web.SendCmdXml(m_device, BuildGetChannels(false, m_channels), m_work);
        const auto svr = std::make_unique<SVRRecord>(); // what the reply says by itself
        const auto pro = std::make_unique<SVRProRecord>();
        if (!DeviceBridge::DeviceTook(reply) || !parseChannels(reply, *svr, *pro) ||
            !parseChannels(reply, *m_svr, *m_pro))
            throw DetectFailure{Message::kConnectionError};
        for (std::size_t c = 0; c < kMaxChannel; ++c) {
            const SVRChannel& told = svr->channels[c];
            if (told.sSub_CH_IP.isEmpty()) {
                ClearChannel(*m_svr, *m_pro, static_cast<int>(c));
            } else if (!m_modify || told.sSub_CH_IP != m_context.recorders.SVREdit.channels[c].sSub_CH_IP) {
                m_svr->channels[c] = told;
                m_pro->channels[c] = pro->channels[c];
            } else if (told.sCH_ResolutionList == kNoSizes) {
                keepSizes(c);
            }
        }
    }

    // A list that breaks off half-way would leave cameras out.
    static bool parseChannels(const QString& reply, SVRRecord& svr, SVRProRecord& pro)
    {
        qint16 result = 0;
        return Trapped(kSource, [&] { result = ParseChannelList(reply, svr, pro); }) && result == 1;
    }

    // The reader empties the lists of sizes also where a reply has none.
    void keepSizes(std::size_t channel)
    {
        m_svr->channels[channel].sCH_ResolutionList = m_context.recorders.SVREdit.channels[channel].sCH_ResolutionList;
        const SVRProStreams& before = m_context.recorders.SVRProEdit.channels[channel].streams;
        for (std::size_t slot = 0; slot < kMaxStream; ++slot) {
            SVRProStream& stream = m_pro->channels[channel].streams[slot];
            stream.sResolutionList = before[slot].sResolutionList;
            stream.iFPSUpper = before[slot].iFPSUpper;
            stream.iFPSLower = before[slot].iFPSLower;
            stream.iBPSUpper = before[slot].iBPSUpper;
            stream.iBPSLower = before[slot].iBPSLower;
        }
    }

    // The older family describes one channel at a time, its picture and movement in groups of their own.
    QCoro::Task<> readSvrChannels()
    {
        for (qint16 channel = 0; channel < m_channels; ++channel) {
            say(kGetChannels, 40 + 35 * channel / m_channels);
            const auto number = static_cast<qint16>(channel + 1);
            const std::optional<RecorderChannel> told =
                co_await m_context.com.device.GetChannel(m_device, number, m_work);
            if (!told)
                throw DetectFailure{Message::kConnectionError};
            const RecorderChannel& read = *told;
            SVRChannel& camera = At(m_svr->channels, channel);
            if (read.IP.isEmpty() || camera.sSub_CH_IP != read.IP)
                ClearChannel(*m_svr, *m_pro, channel);
            if (read.IP.isEmpty())
                continue;
            camera.sSub_CH_IP = read.IP;
            TakeDevice(read, camera);
            // A group that cannot be had or read costs its own values only.
            const bool onvif = camera.iSub_CH_Brand == kOnvifBrand;
            const ChannelParams params = co_await CgiGetChannelParams(m_web, m_device, number, onvif, m_work);
            CHImageInfoPaser(camera, params.Image);
            CHPTZInfoPaser(camera, params.Ptz);
            if (onvif)
                CHOnvifInfoPaser(camera, params.Onvif);
        }
    }

    QCoro::Task<> readSystem()
    {
        if (IsProFamily(m_family)) {
            co_await readProSystem();
            co_return;
        }
        const std::optional<RecorderFacts> facts = co_await m_context.com.device.GetSystemFacts(m_device, m_work);
        if (!facts)
            co_return;
        m_svr->iSVR_VideoPort = facts->VideoPort.value_or(m_svr->iSVR_VideoPort);
        m_svr->iSVR_TimeZoneNum = facts->TimeZone.value_or(m_svr->iSVR_TimeZoneNum);
        m_svr->iSVR_SummerTime = facts->SummerTime.value_or(m_svr->iSVR_SummerTime);
    }

    QCoro::Task<> readProSystem()
    {
        const QString system = co_await m_web.SendCmdXml(m_device, BuildGetSystemInfo(), m_work);
        if (!DeviceBridge::DeviceTook(system))
            throw DetectFailure{Message::kConnectionError};
        Trapped(kSource, [&] { ParseSystemInfo(system, *m_svr); });

        const QString device = co_await m_web.SendCmdXml(m_device, BuildGetDeviceInfo(), m_work);
        Trapped(kSource, [&] {
            DeviceInfo info;
            ParseDeviceInfo(device, info);
            const double version = ToReal(info.CMDVersion);
            m_svr->bSVR_N_EventSupport = version >= 1.4;
            m_svr->bSVR_Pro20Support = m_family == kFamilyOmluPro && version >= 2.0;
        });
        if (m_family == kFamilyTXR632) {
            const QString time = co_await m_web.SendCmdXml(m_device, BuildGetTime(), m_work);
            Trapped(kSource, [&] { ParseTimeSettings(time, *m_svr); });
        }
    }

    void fillRecord()
    {
        m_svr->bSVR_Changed = true;
        m_svr->bSVR_ConnChanged = true;
        m_svr->sSVR_Name = m_item.sName;
        m_svr->sSVR_IP = m_item.sIP;
        m_svr->iSVR_HttpPort = m_item.iPort;
        m_svr->sSVR_UserName = m_device.user;
        m_svr->sSVR_Password = m_device.password;
        m_svr->sSVR_Brand = m_capability.Brand;
        m_svr->iSVR_Maxchannel = m_channels;
        m_svr->sSVR_DeviceType = m_family;
        m_svr->sSVR_DeviceTypeSource = m_capability.DeviceType;
        m_svr->sSVR_DisplayDeviceType = m_capability.ModelName;
        m_svr->bSVR_CEventSupport = m_capability.CustomEventSupport;
        m_svr->sSVR_Version = m_capability.FirmwareVersion;
        m_svr->iSVR_ValidCH = static_cast<qint16>(CameraCount(*m_svr));
    }

    void store()
    {
        m_svr->iSVR_Num = static_cast<qint16>(m_slot + 1);
        m_svr->iSVRId = m_svr->iSVR_Num;
        if (m_modify) {
            m_context.recorders.SVREdit = *m_svr;
            m_context.recorders.SVRProEdit = *m_pro;
        } else {
            At(m_context.recorders.SVRWorkList, m_slot) = *m_svr;
            At(m_context.recorders.SVRProWorkList, m_slot) = *m_pro;
        }
    }

    const DetectContext& m_context;
    const NVRDetectItem m_item;
    const DetectReport& m_report;
    Work& m_work;
    const bool m_modify;
    WebBridge& m_web;
    DeviceAddress m_device;
    SvrCapability m_capability;
    QString m_family;
    int m_slot = -1;
    qint16 m_channels = 0;
    std::unique_ptr<SVRRecord> m_svr;
    std::unique_ptr<SVRProRecord> m_pro;
};

} // namespace

QCoro::Task<ManualFault> ValidateManualNVR(QString typedName, QString typedAddress, QString port, Work& work)
{
    const QString name = typedName.trimmed();
    const QString address = typedAddress.trimmed();
    ManualFault fault;
    if (name.isEmpty()) {
        fault = {kNameEmpty, ManualField::Name};
    } else if (address.isEmpty()) {
        fault = {491, ManualField::Address};
    } else {
        QString found = address;
        if (!CheckIP(address))
            found = co_await GetIpByName(address, work);
        if (found.isEmpty() || address == "127.0.0.1"_L1)
            fault = {Message::kAddressFault, ManualField::Address};
        else if (port.trimmed().isEmpty())
            fault = {492, ManualField::Port};
    }
    co_return fault;
}

QStringList DoubleNames(const RecorderSet& recorders, const std::vector<NVRDetectItem>& items)
{
    QStringList doubles;
    for (const NVRDetectItem& item : items) {
        auto same = std::count_if(items.begin(), items.end(),
                                  [&](const NVRDetectItem& other) { return other.sName == item.sName; });
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            const SVRRecord& record = At(recorders.SVRWorkList, slot);
            same += slot != item.iSlot && !record.sSVR_IP.isEmpty() && record.sSVR_Name == item.sName ? 1 : 0;
        }
        if (same > 1 && !doubles.contains(item.sName))
            doubles += item.sName;
    }
    return doubles;
}

bool LoginLevelPasses(const QString& loginReply, const QString& family)
{
    const QChar level = DigitBehind(loginReply, u"securitylevel="_s);
    const QChar group = DigitBehind(loginReply, u"group="_s);
    if (loginReply.contains("securitylevel="_L1)) {
        if (level != u'7')
            return false;
        return group != (IsProFamily(family) ? u'1' : u'7');
    }
    return group != u'7';
}

class DetectOrder::Turn final : public WorkAwaitable
{
public:
    Turn(DetectOrder& order, std::size_t row)
        : WorkAwaitable(order.m_work)
        , m_order(order)
        , m_row(row)
    {
    }
    ~Turn() override { abandon(); }
    auto operator co_await() { return Awaiter<Turn>(*this); }
    void result() const {}

    std::size_t row() const { return m_row; }
    void come()
    {
        abandon();
        finish();
    }

protected:
    void begin() override { m_order.m_waiting.push_back(this); }
    void abandon() override { std::erase(m_order.m_waiting, this); }

private:
    DetectOrder& m_order;
    std::size_t m_row;
};

QCoro::Task<> DetectOrder::turn(std::size_t row)
{
    if (reached(row))
        co_return;
    Turn turn(*this, row);
    co_await turn;
}

void DetectOrder::ended(std::size_t row)
{
    m_ended.insert(row);
    while (m_ended.erase(m_next) > 0)
        ++m_next;
    const auto due =
        std::find_if(m_waiting.begin(), m_waiting.end(), [this](const Turn* turn) { return reached(turn->row()); });
    if (due != m_waiting.end())
        (*due)->come();
}

QCoro::Task<bool> DetectNVR(DetectContext context, NVRDetectItem item, DetectReport report, Work& work, DetectMode mode,
                            DetectOrder* order, std::size_t row)
{
    int message = Message::kConnectionError;
    QString suffix;
    try {
        Detection detection(context, item, report, work, mode);
        co_await detection.run(order, row);
        report({mode == DetectMode::Modify ? Message::kDetectSuccess : kAddSuccess,
                100,
                DetectStatus::State::Done,
                {},
                detection.slot()});
        co_return true;
    } catch (const DetectFailure& failure) {
        // A request that was broken off on the operator's wish is no fault of the recorder.
        message = work.stopped() ? kDetectStopped : failure.message;
        suffix = work.stopped() ? QString() : failure.suffix;
    } catch (const std::exception& error) {
        LogTrap(kSource, QString::fromUtf8(error.what()));
    }
    report({message, 100, DetectStatus::State::Failed, suffix});
    co_return false;
}

namespace {

// At most this many recorders are asked at a time: all that the station can hold.
constexpr std::size_t kSideBySide = kMaxSVR;

// One row of a list.
QCoro::Task<bool> DetectRow(const DetectContext& context, const std::vector<NVRDetectItem>& items, std::size_t row,
                            const ListReport& report, Work& work, DetectOrder& order)
{
    const NVRDetectItem& item = items[row];
    bool added = false;
    if (!item.sIP.isEmpty()) {
        // A device that stands in the list before is asked again once that row has ended.
        const auto same = [&](const NVRDetectItem& other) {
            return other.sIP.trimmed() == item.sIP.trimmed() && other.iPort == item.iPort;
        };
        if (std::any_of(items.begin(), items.begin() + static_cast<std::ptrdiff_t>(row), same))
            co_await order.turn(row);
        const auto tell = [&](const DetectStatus& status) { report(row, status); };
        added = co_await DetectNVR(context, item, tell, work, DetectMode::Add, &order, row);
    }
    order.ended(row);
    co_return added;
}

} // namespace

QCoro::Task<std::vector<std::optional<bool>>> DetectList(DetectContext context, std::vector<NVRDetectItem> items,
                                                         ListReport report, Work& work)
{
    DetectOrder order(work);
    std::vector<std::function<QCoro::Task<bool>()>> rows;
    for (std::size_t row = 0; row < items.size(); ++row)
        rows.push_back([&, row] { return DetectRow(context, items, row, report, work, order); });
    std::vector<std::optional<bool>> added = co_await Together<bool>(work, std::move(rows), kSideBySide);
    co_return added;
}
