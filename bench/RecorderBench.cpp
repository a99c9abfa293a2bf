// Sixteen recorders of fifteen channels, found in a search and added through the wizard: from the click to the last
// "Add Success!", beside the same requests sent by plain libcurl one after the other in the same run.
#include "bench/Bench.h"
#include "look/style/Theme.h"
#include "platform/AppPath.h"
#include "recorders/detect/DetectStatusModel.h"
#include "recorders/ui/Form_NVRSetting.h"
#include "simulators/SimulatorThread.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <curl/curl.h>
#include <string>

using namespace Qt::StringLiterals;
using simulators::Family;
using simulators::Site;

namespace {

constexpr int kChannels = 15;
constexpr int kDelay = 20; // milliseconds
const QString kNetwork = simulators::ownNetwork();

simulators::SiteDescription SixteenRecorders()
{
    simulators::SiteDescription site;
    site.baseAddress = kNetwork + u'1';
    site.port = 0;
    for (int i = 0; i < kMaxSVR; ++i) {
        simulators::DeviceDescription device;
        device.family = std::array{Family::Svr, Family::Txr632, Family::OmluPro}[static_cast<std::size_t>(i % 3)];
        device.name = u"Recorder %1"_s.arg(i + 1);
        device.channels = kChannels;
        device.cameras = kChannels;
        site.devices.push_back(device);
    }
    return site;
}

// A request as a recorder has seen it.
struct Sent
{
    std::string url;
    std::string authorization;
    std::string body;
    std::string contentType;
    bool post = false;
};

// What the recorders were asked since the last call, recorder by recorder, each in order.
std::vector<Sent> TakeRequests(simulators::SimulatorThread& site)
{
    std::vector<Sent> all;
    site.call([&](Site& running) {
        for (int i = 0; i < running.count(); ++i) {
            simulators::Device& device = running.device(i);
            for (const simulators::LoggedRequest& request : device.log())
                all.push_back({"http://" + device.hostAndPort().toStdString() + request.target.toStdString(),
                               "Authorization: " + request.authorization.toStdString(), request.body.toStdString(),
                               "Content-Type: " + request.contentType.toStdString(), request.method == "POST"});
            device.clearLog();
        }
    });
    return all;
}

std::size_t Append(char* data, std::size_t size, std::size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, size * count);
    return size * count;
}

// Milliseconds of all requests over one handle, which keeps its connections.
double PlainCurl(const std::vector<Sent>& requests)
{
    QElapsedTimer timer;
    timer.start();
    CURL* easy = curl_easy_init();
    curl_easy_setopt(easy, CURLOPT_MAXCONNECTS, 32L);
    curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, &Append);
    curl_easy_setopt(easy, CURLOPT_FAILONERROR, 1L);
    for (const Sent& request : requests) {
        std::string reply;
        curl_slist* fields = curl_slist_append(nullptr, request.authorization.c_str());
        if (request.post) {
            fields = curl_slist_append(fields, request.contentType.c_str());
            curl_easy_setopt(easy, CURLOPT_POSTFIELDS, request.body.c_str());
        } else {
            curl_easy_setopt(easy, CURLOPT_HTTPGET, 1L);
        }
        curl_easy_setopt(easy, CURLOPT_HTTPHEADER, fields);
        curl_easy_setopt(easy, CURLOPT_URL, request.url.c_str());
        curl_easy_setopt(easy, CURLOPT_WRITEDATA, &reply);
        const CURLcode code = curl_easy_perform(easy);
        curl_slist_free_all(fields);
        bench::Require(code == CURLE_OK && !reply.empty(), "a plain request failed");
    }
    curl_easy_cleanup(easy);
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

template <class Widget>
Widget* Find(const Form_NVRSetting& wizard, const char* name)
{
    auto* widget = wizard.findChild<Widget*>(QString::fromLatin1(name));
    bench::Require(widget, name);
    return widget;
}

// Milliseconds from the click that starts the detection until the last recorder's row says so on the screen.
double Wizard()
{
    Form_COM com;
    auto recorders = std::make_unique<RecorderSet>();
    const std::vector<NVRAccountRecord> accounts{{0, u"admin"_s, u"admin"_s}};
    const RecorderEvents events;
    Form_NVRSetting wizard({com, *recorders, accounts, events}, {}, nullptr);
    wizard.show();
    bench::Require(QTest::qWaitForWindowExposed(&wizard), "the wizard does not come up");
    QTest::keyClick(Find<QWidget>(wizard, "OptMode_0"), Qt::Key_Space);
    // No mouse: a second click at the same place in such haste is held for the half of a double click.
    Find<QPushButton>(wizard, "lbNext_0")->click();
    Find<QLineEdit>(wizard, "txtSearchFilter")->setText(kNetwork);
    auto* search = Find<QPushButton>(wizard, "lbSearch");
    bench::Require(QTest::qWaitFor([search] { return search->isEnabled(); }, 10000), "the search does not end");
    Find<QCheckBox>(wizard, "Chk_SelectAll")->click();

    auto* grid = Find<QTableView>(wizard, "Grid_DetectStatus");
    const auto* status = wizard.findChild<DetectStatusModel*>();
    auto* next = Find<QPushButton>(wizard, "lbNext_1");
    QElapsedTimer timer;
    timer.start();
    next->click();
    while (next->objectName() != "lbNext_2"_L1 || !next->isEnabled()) // until the detection has ended
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    grid->viewport()->repaint();
    const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    bench::Require(status->rowCount() == kMaxSVR && status->finishedRows() == kMaxSVR, "not all recorders were found");
    bench::Require(OccupiedSlots(recorders->SVRWorkList) == kMaxSVR &&
                       CameraTotal(recorders->SVRWorkList) == kMaxSVR * kChannels,
                   "not all recorders were added");
    return time;
}

// The wizard beside its own requests, sent by plain libcurl one after the other.
void Bench(const char* road, double limit, simulators::SimulatorThread& site)
{
    std::vector<Sent> sent;
    const auto wizard = [&] {
        const double time = Wizard();
        sent = TakeRequests(site);
        bench::Require(!sent.empty(), "the wizard has asked other recorders");
        return time;
    };
    const auto plain = [&] {
        const double time = PlainCurl(sent);
        bench::Require(TakeRequests(site).size() == sent.size(), "the plain requests are not the same");
        return time;
    };
    bench::Compare(road, limit, wizard, plain, 30); // each run searches first
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("RIGGING_DESK_FINDER", "lo");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyTheme(application, InitialScheme());
    const QTemporaryDir folder;
    SetAppPath(folder.path());
    simulators::SimulatorThread site(SixteenRecorders());
    site.call([](Site& running) { bench::Require(running.discoveryRunning(), "the site cannot answer searches"); });
    Bench("add 16 recorders of 15 channels", 1.1, site);
    site.call([](Site& running) {
        for (int i = 0; i < running.count(); ++i)
            running.device(i).addFault({simulators::FaultKind::Delay, kDelay});
    });
    Bench("the same, each reply 20 ms late", 0.25, site);
    return 0;
}
