// walkthrough <station folder> [<screenshot folder>]: the desk's real windows drive simulated recorders by mouse and
// keyboard: one recorder typed in, then a whole site in a station of its own inside the folder.
#include "app/ui/MsgBoxWindow.h"
#include "look/style/Theme.h"
#include "platform/AppPath.h"
#include "platform/clsOSInfo.h"
#include "store/Template.h"
#include "tests/walkthrough/DeskRun.h"

#include <QApplication>
#include <QDir>
#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc < 2) {
        std::fputs("usage: walkthrough STATION [SCREENSHOTS]\n", stderr);
        return 2;
    }
    const QString station = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const QString screenshots = argc > 2 ? QDir(QString::fromLocal8Bit(argv[2])).absolutePath() : QString();
    clsOSInfo::setScreenCounter([] { return 1; });
    ApplyTheme(application, InitialScheme());
    InstallMsgBoxWindow();
    try {
        SetAppPath(station);
        WalkOneRecorder(screenshots);
        SetAppPath(station + u"/site"_s);
        CreateTemplate(StationPath(kTemplateFile));
        WalkWholeSite(screenshots.isEmpty() ? QString() : QString(screenshots + u"/site"_s));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "walkthrough: %s\n", error.what());
        return 1;
    }
}
