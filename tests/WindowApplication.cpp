#include "look/style/Theme.h"
#include "tests/TestMain.h"

#include <QApplication>

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
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
