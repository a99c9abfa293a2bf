#include "recorders/detect/NVRDetect.h"

#include "app/log/Module_Log.h"
#include "device/bridge/ModuleCGI.h"
#include "device/protocol/Module_XML.h"
#include "device/protocol/ParameterText.h"
#include "device/protocol/ReplyParsers.h"
#include "platform/Wait.h"
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

enum Message
{
    kConnectionError = 7,
    kLogin = 25,
    kIncorrectAccount = 44,
    kRepeatAdd = 78,
    kUnauthorised = 139,
    kNoResponse = 221,
    kGetCapability = 293,
    kGetChannels = 294,
    kGetInfo = 295,
    kInitialValue = 296,
    kAddSuccess = 297,
    kNameEmpty = 553,
    kAddressFault = 554,
    kNotSupported = 619,
    kTooManyChannels = 716,
    kNoChannel = 719,
    kDetectSuccess = 833
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
        return kConnectionError;
    }
}

bool Stopped(const DetectContext& context)
{
    return Closing() || (context.stopped && context.stopped());
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
    Detection(const DetectContext& context, const NVRDetectItem& item, const DetectReport& report, DetectMode mode)
        : m_context(context)
        , m_item(Trimmed(item))
        , m_report(report)
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

    void run()
    {
        m_slot = m_item.iSlot >= 0 ? m_item.iSlot : FirstFreeSlot(m_context.recorders.SVRWorkList);
        At(m_context.recorders.SVRWorkList, m_slot);
        const int cameras = CameraTotal(m_context.recorders.SVRWorkList);
        say(kLogin, 5);
        const QString loginReply = logIn();
        say(kGetCapability, 20);
        readCapability();
        if (!LoginLevelPasses(loginReply, m_family))
            throw DetectFailure{kUnauthorised};
        if (!m_modify)
            refuseRepeatedAdd();
        if (m_family == kFamilySVR)
            readFirmwareVersion();
        if (cameras > iChannelLimit)
            throw DetectFailure{kTooManyChannels, u"(256)"_s};
        say(kGetChannels, 40);
        readChannels();
        say(kGetInfo, 75);
        readSystem();
        m_svr->iSVR_ValidCH = static_cast<qint16>(CameraCount(*m_svr));
        if (m_svr->iSVR_ValidCH == 0)
            throw DetectFailure{kNoChannel};
        say(kInitialValue, 90);
        fillRecord();
        TakeRecorderCameraEvents(m_context.com, *m_svr);
        say(kInitialValue, 100);
        store();
    }

private:
    void say(int message, int percent)
    {
        if (Stopped(m_context))
            throw DetectFailure{kDetectStopped};
        m_report({message, percent, DetectStatus::State::Running, {}});
    }

    qint32 tryLogin(const QString& user, const QString& password, QString& reply)
    {
        m_device.user = user;
        m_device.password = password;
        return CgiLogin(m_web, m_device, reply);
    }

    // The login's reply; the login that worked stays in m_device.
    QString logIn()
    {
        QString reply;
        qint32 result = -1;
        if (m_modify || !m_item.sUser.isEmpty() || !m_item.sPassword.isEmpty()) {
            const auto orAdmin = [](const QString& text) { return text.isEmpty() ? u"admin"_s : text; };
            result = tryLogin(orAdmin(m_item.sUser), orAdmin(m_item.sPassword), reply);
        } else {
            for (const NVRAccountRecord& account : m_context.accounts) {
                result = tryLogin(account.sUser, account.sPass, reply);
                if (result == 1)
                    break;
            }
        }
        if (result != 1)
            throw DetectFailure{MessageOfLogin(result)};
        return reply;
    }

    void readCapability()
    {
        if (CgiGetServerCapability(m_web, m_device, m_capability) == -1)
            throw DetectFailure{kConnectionError};
        m_family = GetsDeviceType(m_capability.DeviceType, m_capability.MaxHDSupport);
        if (m_capability.DeviceType.contains("SVD"_L1) || (IsProFamily(m_family) && !m_capability.CMSSupport))
            throw DetectFailure{kNotSupported};
        m_channels = qBound(qint16(0), m_capability.MaxChannelSupport, qint16(kMaxChannel));
    }

    void refuseRepeatedAdd() const
    {
        for (const SVRRecord& other : m_context.recorders.SVRWorkList) {
            if (!other.sSVR_IP.isEmpty() && other.sSVR_IP == m_item.sIP && other.iSVR_HttpPort == m_item.iPort)
                throw DetectFailure{kRepeatAdd};
        }
    }

    void readFirmwareVersion()
    {
        const QString reply = CgiGetFwVersion(m_web, m_device);
        if (!reply.contains("OK"_L1))
            return;
        Trapped(kSource, [&] {
            const QStringList pieces = reply.section(u'=', 1, 1).split(u'.');
            m_svr->bSVR_N_EventSupport = ToInt32(At(pieces, 3)) >= kNewEventVersion;
        });
    }

    void readChannels()
    {
        if (IsProFamily(m_family))
            readProChannels();
        else
            readSvrChannels();
        for (int channel = m_channels; channel < kMaxChannel; ++channel)
            ClearChannel(*m_svr, *m_pro, channel);
    }

    void readProChannels()
    {
        const QString reply = SendCmdXml(m_web, m_device, BuildGetChannels(false, m_channels));
        const auto svr = std::make_unique<SVRRecord>(); // what the reply says by itself
        const auto pro = std::make_unique<SVRProRecord>();
        if (!DeviceBridge::DeviceTook(reply) || !parseChannels(reply, *svr, *pro) ||
            !parseChannels(reply, *m_svr, *m_pro))
            throw DetectFailure{kConnectionError};
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
    void readSvrChannels()
    {
        for (qint16 channel = 0; channel < m_channels; ++channel) {
            say(kGetChannels, 40 + 35 * channel / m_channels);
            const auto number = static_cast<qint16>(channel + 1);
            RecorderChannel read;
            if (m_context.com.device.GetChannel(m_device, number, read) < 0)
                throw DetectFailure{kConnectionError};
            SVRChannel& camera = At(m_svr->channels, channel);
            if (read.IP.isEmpty() || camera.sSub_CH_IP != read.IP)
                ClearChannel(*m_svr, *m_pro, channel);
            if (read.IP.isEmpty())
                continue;
            camera.sSub_CH_IP = read.IP;
            TakeDevice(read, camera);
            // A group that cannot be had or read costs its own values only.
            const bool onvif = camera.iSub_CH_Brand == kOnvifBrand;
            const ChannelParams params = CgiGetChannelParams(m_web, m_device, number, onvif);
            CHImageInfoPaser(camera, params.Image);
            CHPTZInfoPaser(camera, params.Ptz);
            if (onvif)
                CHOnvifInfoPaser(camera, params.Onvif);
        }
    }

    void readSystem()
    {
        if (IsProFamily(m_family)) {
            readProSystem();
            return;
        }
        RecorderFacts facts;
        if (m_context.com.device.GetSystemFacts(m_device, facts) < 0)
            return;
        m_svr->iSVR_VideoPort = facts.VideoPort.value_or(m_svr->iSVR_VideoPort);
        m_svr->iSVR_TimeZoneNum = facts.TimeZone.value_or(m_svr->iSVR_TimeZoneNum);
        m_svr->iSVR_SummerTime = facts.SummerTime.value_or(m_svr->iSVR_SummerTime);
    }

    void readProSystem()
    {
        const QString system = SendCmdXml(m_web, m_device, BuildGetSystemInfo());
        if (!DeviceBridge::DeviceTook(system))
            throw DetectFailure{kConnectionError};
        Trapped(kSource, [&] { ParseSystemInfo(system, *m_svr); });

        const QString device = SendCmdXml(m_web, m_device, BuildGetDeviceInfo());
        Trapped(kSource, [&] {
            DeviceInfo info;
            ParseDeviceInfo(device, info);
            const double version = ToReal(info.CMDVersion);
            m_svr->bSVR_N_EventSupport = version >= 1.4;
            m_svr->bSVR_Pro20Support = m_family == kFamilyOmluPro && version >= 2.0;
        });
        if (m_family == kFamilyTXR632) {
            const QString time = SendCmdXml(m_web, m_device, BuildGetTime());
            Trapped(kSource, [&] { ParseTimeSettings(time, *m_svr); });
        }
    }

    void fillRecord()
    {
        m_svr->bSVR_Changed = true;
        m_svr->bSVR_ConnChanged = true;
        m_svr->iSVR_Num = static_cast<qint16>(m_slot + 1);
        m_svr->iSVRId = m_svr->iSVR_Num;
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
    }

    void store()
    {
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

ManualFault ValidateManualNVR(const QString& typedName, const QString& typedAddress, const QString& port)
{
    const QString name = typedName.trimmed();
    const QString address = typedAddress.trimmed();
    if (name.isEmpty())
        return {kNameEmpty, ManualField::Name};
    if (address.isEmpty())
        return {491, ManualField::Address};
    if (!CheckIP(address) && GetIpByName(address).isEmpty())
        return {kAddressFault, ManualField::Address};
    if (address == "127.0.0.1"_L1)
        return {kAddressFault, ManualField::Address};
    if (port.trimmed().isEmpty())
        return {492, ManualField::Port};
    return {};
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

bool DetectNVR(const DetectContext& context, const NVRDetectItem& item, const DetectReport& report, DetectMode mode)
{
    int message = kConnectionError;
    QString suffix;
    try {
        Detection(context, item, report, mode).run();
        report({mode == DetectMode::Modify ? kDetectSuccess : kAddSuccess, 100, DetectStatus::State::Done, {}});
        return true;
    } catch (const DetectFailure& failure) {
        // A request that was broken off on the operator's wish is no fault of the recorder.
        message = Stopped(context) ? kDetectStopped : failure.message;
        suffix = Stopped(context) ? QString() : failure.suffix;
    } catch (const std::exception& error) {
        LogTrap(kSource, QString::fromUtf8(error.what()));
    }
    report({message, 100, DetectStatus::State::Failed, suffix});
    return false;
}
