#include "recorders/camera/CameraWrite.h"

#include "app/log/Module_Log.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/ReplyParsers.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("Form_CameraSetting - cmbeditCam_Click");

enum Message
{
    kConnectionError = 7,
    kDetectFault = 608,
    kFormatFault = 615,
    kSettingFault = 722
};

// The number of RET="n" in a reply; 0 when there is none.
int ResultOf(const QString& reply)
{
    static const QRegularExpression result(u"RET=\"(-?[0-9]{1,6})\""_s);
    const QRegularExpressionMatch match = result.match(reply.left(64 * 1024));
    return match.hasMatch() ? match.capturedView(1).toInt() : 0;
}

} // namespace

RecorderOutcome RefusedWrite(const QString& reply)
{
    // Not the reply itself: a recorder may repeat the camera's password in it.
    LogTrap(kSource, u"Recorder refused with result %1 in %2 characters"_s.arg(ResultOf(reply)).arg(reply.size()));
    return RecorderOutcome::Failed(kDetectFault);
}

RecorderOutcome WriteSvrChannel(Form_COM& com, const DeviceAddress& recorder, qint16 channel,
                                const ChannelParameters& parameters)
{
    const bool both = !parameters.Format.isEmpty() && !parameters.Resolution.isEmpty();
    QString reply;
    Trapped(kSource, [&] {
        reply = com.device.SetChannel(recorder, static_cast<qint16>(channel + 1), parameters,
                                      both ? ChannelForm::Both : ChannelForm::Simple);
    });
    if (DeviceBridge::DeviceTook(reply))
        return RecorderOutcome::Done();
    if (!both && ResultOf(reply) < 0)
        return RecorderOutcome::Failed(kFormatFault);
    return RefusedWrite(reply);
}

RecorderOutcome WriteProChannel(Form_COM& com, const DeviceAddress& recorder, SVRChannel& svr, SVRProChannel& pro,
                                qint16 channel, const ChannelSettings& settings)
{
    const QString written = SendCmdXml(com.web, recorder, BuildSetChannel(settings));
    if (written.isEmpty())
        return RecorderOutcome::Failed(kConnectionError);
    if (!Accepted(written))
        return RefusedWrite(written);
    if (!Accepted(SendCmdXml(com.web, recorder, BuildSaveConfig(kSaveChannels))))
        return RecorderOutcome::Failed(kSettingFault);
    const QString read = SendCmdXml(com.web, recorder, BuildGetChannels(true, static_cast<qint16>(channel + 1)));
    SVRChannel readBack = svr;
    SVRProChannel readBackPro = pro;
    qint16 result = 0;
    Trapped(kSource, [&] { result = ParseChannel(read, channel, readBack, readBackPro); });
    if (result != 1) {
        LogTrap(kSource, u"Channel %1 was written and cannot be read back"_s.arg(channel + 1));
        RecorderOutcome unread = RecorderOutcome::Failed(kConnectionError);
        unread.ok = true;
        return unread;
    }
    svr = std::move(readBack);
    pro = std::move(readBackPro);
    return RecorderOutcome::Done();
}
