#include "simulators/Site.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QSocketNotifier>
#include <QTextStream>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

// Starts a site of simulated recorders and decoders on loopback addresses and runs until SIGTERM or SIGINT.

using namespace Qt::StringLiterals;
using namespace simulators;

namespace {

int g_signalPair[2];

void onSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(g_signalPair[0], &byte, 1);
}

SiteDescription describedBy(const QCommandLineParser& parser)
{
    SiteDescription site = exampleSite();
    if (parser.isSet(u"site"_s)) {
        QFile file(parser.value(u"site"_s));
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("cannot read " + file.fileName().toStdString());
        site = siteFromJson(file.readAll());
    } else if (parser.isSet(u"device"_s)) {
        site.devices.clear();
    }
    for (const QString& text : parser.values(u"device"_s))
        site.devices.push_back(deviceFromText(text));
    if (parser.isSet(u"address"_s))
        site.baseAddress = parser.value(u"address"_s);
    if (parser.isSet(u"port"_s))
        site.port = parser.value(u"port"_s).toInt();
    if (parser.isSet(u"no-discovery"_s))
        site.discovery = false;
    return site;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Simulated recorders and decoders on loopback addresses"_s);
    parser.addHelpOption();
    parser.addOptions(
        {{u"site"_s, u"JSON description of the site"_s, u"file"_s},
         {u"device"_s, u"\"FAMILY,key=value,…\" (TXR632, OmluPro, SVR, SVD); may be repeated"_s, u"text"_s},
         {u"address"_s, u"Address of the first device (127.0.0.2)"_s, u"address"_s},
         {u"port"_s, u"Port of every device (8080), 0 for free ones"_s, u"port"_s},
         {u"no-discovery"_s, u"Do not answer searches"_s},
         {u"list"_s, u"Print the devices and end"_s}});
    parser.process(application);
    QTextStream out(stdout);
    QTextStream err(stderr);
    try {
        Site site(describedBy(parser));
        site.start();
        for (int i = 0; i < site.count(); ++i) {
            const Device& device = site.device(i);
            const Account& account = device.profile().accounts.front();
            out << QString::fromUtf8(device.hostAndPort()) << ' ' << familyName(device.profile().family) << " \""
                << device.state().name << "\" " << device.profile().modelName << ", " << device.profile().maxChannels
                << " channels, login " << account.user << '/' << account.password << Qt::endl;
        }
        if (parser.isSet(u"list"_s))
            return 0;
        if (!site.discoveryRunning())
            err << "searches are not answered" << Qt::endl;
        if (::socketpair(AF_UNIX, SOCK_STREAM, 0, g_signalPair) != 0)
            throw std::runtime_error("no socket pair");
        QSocketNotifier notifier(g_signalPair[1], QSocketNotifier::Read);
        QObject::connect(&notifier, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
        std::signal(SIGTERM, onSignal);
        std::signal(SIGINT, onSignal);
        return QCoreApplication::exec();
    } catch (const std::exception& error) {
        err << "site_simulator: " << error.what() << Qt::endl;
        return 1;
    }
}
