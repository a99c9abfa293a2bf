#include "look/style/Theme.h"
#include "tests/TestMain.h"

#include <QApplication>
#include <QFile>

namespace {

// The screen is one that a desk has, not the 800 by 800 of the platform without a display. Its description has to be in
// a file.
void SettleScreen()
{
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return;
    static QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("screen.json")));
    if (file.open(QIODevice::WriteOnly))
        file.write(R"({"screens":[{"name":"desk","x":0,"y":0,"width":1920,"height":1080}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

} // namespace

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    SettleScreen();
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyTheme(*application, InitialScheme());
    return application;
}

// The toolkit and the fonts keep much to the end: leaks are looked for in the programs without windows.
extern "C" const char* __asan_default_options();
const char* __asan_default_options()
{
    return "detect_leaks=0";
}
