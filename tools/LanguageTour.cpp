// language_tour <station folder> <picture folder> [<width>x<height> [<language>,...]]: pictures of every page and
// window in the fourteen languages or those named, light and dark, for translators and for looking after the layouts.
// The size is the main window's in logical pixels; QT_SCALE_FACTOR draws them larger.
#include "app/Station.h"
#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "app/ui/MsgBoxWindow.h"
#include "look/style/Theme.h"
#include "platform/AppPath.h"
#include "platform/MsgBox.h"
#include "tests/walkthrough/DeskWindows.h"
#include "tests/walkthrough/Driver.h"
#include "users/ui/Form_Login.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The main window with the window to be seen over it.
void Save(Form_Initial& desk, QWidget& window, const QString& file)
{
    QPixmap picture = desk.grab();
    if (&window != &desk) {
        QPainter painter(&picture);
        painter.drawPixmap(desk.rect().center() - window.rect().center(), window.grab());
    }
    picture.save(file);
}

// On a station with users the first administrator's name and password are typed into the login.
void LogIn(const Station& station)
{
    auto* login = qobject_cast<Form_Login*>(QApplication::activeModalWidget());
    if (!login)
        return;
    for (const UserRecord& user : station.users.stored) {
        if (user.iGroup != 0)
            continue;
        Driver::type(u"txtLogin_0"_s, user.sUser);
        Driver::type(u"txtLogin_1"_s, user.sPSWD);
        Driver::click(u"imgBtn_OK"_s);
        return;
    }
    login->reject();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc < 3 || argc > 5) {
        std::fputs("usage: language_tour STATION PICTURES [WIDTHxHEIGHT [LANGUAGE,...]]\n", stderr);
        return 2;
    }
    SetAppPath(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    const QDir pictures(QString::fromLocal8Bit(argv[2]));
    pictures.mkpath(u"."_s);
    const QStringList size = QString::fromLocal8Bit(argc > 3 ? argv[3] : "1280x720").split(u'x');
    const QStringList chosen = QString::fromLocal8Bit(argc > 4 ? argv[4] : "").split(u',', Qt::SkipEmptyParts);
    InstallMsgBoxWindow();
    try {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            ApplyTheme(application, scheme);
            const auto station = std::make_unique<Station>();
            Form_Initial desk(*station);
            QTimer::singleShot(0, &desk, [&] { LogIn(*station); });
            if (!desk.Form_Load())
                return 1;
            desk.resize(size.first().toInt(), size.last().toInt());
            desk.show();
            for (int language = 1; language <= kLanguages; ++language) {
                if (!chosen.isEmpty() && !chosen.contains(QString::number(language)))
                    continue;
                SetLanguage(language);
                SetBoxStyles(language == kRightToLeftLanguage);
                desk.ChangeLanguage();
                const QString prefix =
                    u"%1-%2-"_s.arg(language, 2, 10, QChar(u'0')).arg(scheme == Scheme::Dark ? u"dark"_s : u"light"_s);
                VisitWindows(desk, *station, [&](const QString& name, QWidget& window) {
                    Save(desk, window, pictures.filePath(prefix + name + u".png"_s));
                });
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "language_tour: %s\n", error.what());
        return 1;
    }
    return 0;
}
