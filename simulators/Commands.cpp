#include "simulators/Commands.h"

#include <array>
#include <sstream>

using namespace Qt::StringLiterals;

namespace simulators {

namespace {

constexpr auto kPrefix = "type=action&xml=";

constexpr unsigned kOmlu = 1;
constexpr unsigned kTxr = 2;
constexpr unsigned kDecoder = 4;
constexpr unsigned kPro = kOmlu | kTxr;

struct CommandRule
{
    int id;
    unsigned families; // who knows it
    bool tagged;       // needs its UserData
    bool write;        // needs the right to write
};

constexpr std::array kRules{CommandRule{4100, kPro | kDecoder, true, false},
                            CommandRule{4101, kPro, true, false},
                            CommandRule{4113, kPro, false, false},
                            CommandRule{8193, kPro, false, false},
                            CommandRule{8194, kPro, false, false},
                            CommandRule{12289, kPro, false, true},
                            CommandRule{12290, kPro, false, true},
                            CommandRule{12291, kPro, false, true},
                            CommandRule{12292, kPro, false, true},
                            CommandRule{12294, kPro, true, true},
                            CommandRule{12297, kPro, true, false},
                            CommandRule{12301, kPro, true, true},
                            CommandRule{12302, kPro, true, false},
                            CommandRule{16389, kPro, true, false},
                            CommandRule{24577, kDecoder, true, false},
                            CommandRule{24581, kPro, true, true},
                            CommandRule{24582, kPro, true, false},
                            CommandRule{32775, kPro, false, true},
                            CommandRule{32777, kPro, false, false},
                            CommandRule{32788, kPro, false, true},
                            CommandRule{32814, kPro, true, true},
                            CommandRule{32858, kTxr, false, false},
                            CommandRule{32859, kTxr, true, true},
                            CommandRule{35844, kTxr, false, false},
                            CommandRule{40963, kPro | kDecoder, false, true},
                            CommandRule{40965, kPro | kDecoder, false, false},
                            CommandRule{4198402, kDecoder, false, false},
                            CommandRule{4198422, kDecoder, false, false},
                            CommandRule{4202501, kDecoder, false, false}};

unsigned maskOf(Family family)
{
    return family == Family::OmluPro ? kOmlu : family == Family::Txr632 ? kTxr : family == Family::Svd ? kDecoder : 0;
}

int run(CommandContext& context, pugi::xml_node cmd, pugi::xml_node response)
{
    if (context.refusal)
        return context.refusal;
    const int id = numberIn(cmd.attribute("ID").value()).value_or(0);
    const auto rule = std::find_if(kRules.begin(), kRules.end(), [&](const CommandRule& r) {
        return r.id == id && (r.families & maskOf(context.profile.family));
    });
    if (rule == kRules.end())
        return kRetUnknownCommand;
    if (rule->tagged && !cmd.child("UserData"))
        return kRetMalformed;
    if (rule->write && !context.account.mayWrite)
        return kRetNoRight;
    for (const auto group : {runSystemCommand, runChannelCommand, runPtzCommand, runEventCommand, runDecoderCommand})
        if (const std::optional<int> ret = group(context, id, cmd, response))
            return *ret;
    return kRetUnknownCommand;
}

} // namespace

pugi::xml_node addText(pugi::xml_node parent, const char* name, const QString& text)
{
    pugi::xml_node node = parent.append_child(name);
    if (!text.isEmpty())
        node.append_child(pugi::node_pcdata).set_value(text.toUtf8().constData());
    return node;
}

pugi::xml_node addNumber(pugi::xml_node parent, const char* name, qint64 number)
{
    return addText(parent, name, QString::number(number));
}

QString textOf(pugi::xml_node parent, const char* name)
{
    return QString::fromUtf8(parent.child(name).text().get());
}

std::optional<int> numberIn(const char* text)
{
    bool ok = false;
    const int number = QByteArray(text).toInt(&ok);
    return ok ? std::optional<int>(number) : std::nullopt;
}

std::optional<int> numberOf(pugi::xml_node parent, const char* name)
{
    return numberIn(parent.child(name).text().get());
}

int commandIdOf(const QByteArray& body)
{
    static const QByteArray kStart = QByteArray(kPrefix) + "<CMD ID=\"";
    if (!body.startsWith(kStart))
        return 0;
    const qsizetype quote = body.indexOf('"', kStart.size());
    return quote < 0 ? 0 : body.mid(kStart.size(), quote - kStart.size()).toInt();
}

QByteArray runCommand(CommandContext& context, const QByteArray& body)
{
    const QByteArray xml = body.mid(static_cast<qsizetype>(qstrlen(kPrefix)));
    pugi::xml_document request;
    const bool read = request.load_buffer(xml.constData(), static_cast<size_t>(xml.size()),
                                          pugi::parse_default | pugi::parse_ws_pcdata_single, pugi::encoding_utf8);
    pugi::xml_document reply;
    pugi::xml_node response = reply.append_child("RESPONSE");
    response.append_attribute("RET") = 0;
    const pugi::xml_node cmd = request.child("CMD");
    int ret = kRetMalformed;
    if (read && cmd) {
        if (const pugi::xml_node userData = cmd.child("UserData"))
            response.append_copy(userData);
        ret = run(context, cmd, response);
    }
    response.attribute("RET") = ret;
    if (ret != 0)
        while (const pugi::xml_node last = response.last_child()) {
            if (qstrcmp(last.name(), "UserData") == 0)
                break;
            response.remove_child(last);
        }
    std::ostringstream out;
    reply.save(out, "", pugi::format_raw, pugi::encoding_utf8);
    return QByteArray::fromStdString(out.str());
}

std::optional<int> runSystemCommand(CommandContext& context, int id, pugi::xml_node cmd, pugi::xml_node response)
{
    const DeviceProfile& profile = context.profile;
    DeviceState& state = context.state;
    switch (id) {
    case 4100: // system facts
        addText(response, "Name", state.name);
        if (profile.family == Family::Svd) {
            addText(response, "Language", u"en"_s);
            addText(response, "Version", profile.firmware);
        } else {
            addText(response, "IP", context.address);
            addText(response, "DomainName", {});
            addText(response, "SerialNumber", u"00-%1-7741"_s.arg(context.port));
        }
        addNumber(response, "HTTPPort", context.port);
        addNumber(response, "Port", state.videoPort);
        addNumber(response, "TimeZone", state.timeZone);
        addNumber(response, "DSTEnable", state.summerTime);
        if (profile.family == Family::Svd)
            addNumber(response, "DSTIndex", state.summerTimeIndex);
        return 0;
    case 35844: // clock
        addText(response, "Time", u"1700000000"_s);
        addNumber(response, "TimeZone", state.timeZone);
        addNumber(response, "SummerTime", state.summerTime);
        addNumber(response, "SyncMethod", 1);
        addText(response, "NTPServer", u"192.0.2.7"_s);
        addNumber(response, "NTPUpdateInterval", 60);
        addText(response, "LastNTPSyncTime", u"1699999990"_s);
        addNumber(response, "LastNTPSyncResult", 0);
        return 0;
    case 40963: { // make permanent: 5 event settings, 7 channels, presets, sequences
        const int type = numberOf(cmd.child("Param"), "Type").value_or(0);
        if (type == 5) {
            context.saved.actions = state.actions;
            for (size_t i = 0; i < state.channels.size(); ++i)
                context.saved.channels[i].motionEnabled = state.channels[i].motionEnabled;
        } else if (type == 7) {
            const DeviceState before = context.saved;
            context.saved.channels = state.channels;
            for (size_t i = 0; i < state.channels.size(); ++i)
                context.saved.channels[i].motionEnabled = before.channels[i].motionEnabled;
        } else {
            return kRetBadValue;
        }
        return 0;
    }
    case 40965: // identity
        addText(response, "Brand", profile.brand);
        addText(response, "Model", profile.modelName);
        addText(response, "URL", u"http://%1/"_s.arg(context.address));
        addText(response, "CMDVersion", profile.commandVersion);
        addText(response, "InternalModel", profile.modelName + u"-i"_s);
        addText(response, "InternalVersion", profile.firmware);
        addText(response, "DeviceType", profile.deviceType);
        addNumber(response, "MaxChSupport", profile.maxChannels);
        addNumber(response, "InputPort", 8);
        addNumber(response, "OutputPort", 4);
        return 0;
    default:
        return std::nullopt;
    }
}

} // namespace simulators
