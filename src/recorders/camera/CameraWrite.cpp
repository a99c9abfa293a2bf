#include "recorders/camera/CameraWrite.h"

#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "device/bridge/WebBridge.h"
#include "device/protocol/ReplyParsers.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("Form_CameraSetting - cmbeditCam_Click");

enum Words
{
    kFormatFault = 615
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
    return RecorderOutcome::Failed(Message::kDetectFault);
}

QCoro::Task<RecorderOutcome> WriteSvrChannel(Form_COM& com, DeviceAddress recorder, qint16 channel,
                                             ChannelParameters parameters, Work& work)
{
    const bool both = !parameters.Format.isEmpty() && !parameters.Resolution.isEmpty();
    const ChannelForm form = both ? ChannelForm::Both : ChannelForm::Simple;
    QString reply;
    try {
        reply = co_await com.device.SetChannel(recorder, static_cast<qint16>(channel + 1), parameters, form, work);
    } catch (const std::exception& error) {
        LogTrap(kSource, QString::fromUtf8(error.what()));
    }
    if (work.stopped())
        co_return RecorderOutcome();
    if (DeviceBridge::DeviceTook(reply))
        co_return RecorderOutcome::Done();
    if (!both && ResultOf(reply) < 0)
        co_return RecorderOutcome::Failed(kFormatFault);
    co_return RefusedWrite(reply);
}

QCoro::Task<RecorderOutcome> WriteProChannel(Form_COM& com, DeviceAddress recorder, SVRChannel& svr, SVRProChannel& pro,
                                             qint16 channel, ChannelSettings settings, Work& work)
{
    const QString written = co_await com.web.SendCmdXml(recorder, BuildSetChannel(settings), work);
    if (written.isEmpty())
        co_return RecorderOutcome::Failed(Message::kConnectionError);
    if (!Accepted(written))
        co_return RefusedWrite(written);
    const QString saved = co_await com.web.SendCmdXml(recorder, BuildSaveConfig(kSaveChannels), work);
    if (!Accepted(saved))
        co_return RecorderOutcome::Failed(Message::kSettingFault);
    const QString request = BuildGetChannels(true, static_cast<qint16>(channel + 1));
    const QString read = co_await com.web.SendCmdXml(recorder, request, work);
    SVRChannel readBack = svr;
    SVRProChannel readBackPro = pro;
    qint16 result = 0;
    Trapped(kSource, [&] { result = ParseChannel(read, channel, readBack, readBackPro); });
    if (result != 1) {
        LogTrap(kSource, u"Channel %1 was written and cannot be read back"_s.arg(channel + 1));
        RecorderOutcome unread = RecorderOutcome::Failed(Message::kConnectionError);
        unread.ok = true;
        co_return unread;
    }
    svr = std::move(readBack);
    pro = std::move(readBackPro);
    co_return RecorderOutcome::Done();
}
