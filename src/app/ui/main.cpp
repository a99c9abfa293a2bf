#include "app/Station.h"
#include "app/ui/FileChooserWindow.h"
#include "app/ui/Form_Initial.h"
#include "app/ui/MsgBoxWindow.h"
#include "app/ui/Remembered.h"
#include "platform/AppPath.h"
#include "platform/SoundPlayer.h"
#include "platform/UserSettings.h"
#include "platform/clsOSInfo.h"

#include <QApplication>
#include <QScreen>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Rigging Desk"));
    QApplication::setQuitOnLastWindowClosed(false);
    SetAppPath(QApplication::applicationDirPath());
    clsOSInfo::setScreenCounter([] { return static_cast<int>(QGuiApplication::screens().size()); });
    UseUserSettings(OpenUserSettings());
    ApplyTheme(application, RememberedScheme());
    InstallMsgBoxWindow();
    InstallFileChooserWindow();
    InstallSoundPlayer();

    const auto station = std::make_unique<Station>();
    Form_Initial window(*station);
    if (!window.Form_Load())
        return 0;
    QObject::connect(&window, &Form_Initial::closed, &application, &QApplication::quit, Qt::QueuedConnection);
    PlaceWindow(window);
    window.show();
    return QApplication::exec();
}
