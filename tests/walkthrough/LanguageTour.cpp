// language_tour <station folder> <picture folder>: pictures of every page and window in the fourteen languages, light
// and dark, for translators and for looking after the layouts.
#include "app/Station.h"
#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "app/ui/MsgBoxWindow.h"
#include "look/Theme.h"
#include "platform/AppPath.h"
#include "platform/MsgBox.h"
#include "tests/walkthrough/Driver.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// The main window with the dialog on show over it.
void Save(QWidget& window, const QString& file)
{
    QCoreApplication::processEvents();
    QPixmap picture = window.grab();
    if (QWidget* modal = QApplication::activeModalWidget()) {
        const QPixmap dialog = modal->grab();
        QPainter painter(&picture);
        painter.drawPixmap(window.mapFromGlobal(modal->mapToGlobal(QPoint(0, 0))), dialog);
    }
    picture.save(file);
}

void Tour(Form_Initial& desk, const QString& prefix)
{
    Driver driver;
    for (int page = 0; page < kPages; ++page) {
        driver.add(
            u"page"_s, [page] { return Driver::usable(u"lbMenu_%1"_s.arg(page)); },
            [page] { Driver::click(u"lbMenu_%1"_s.arg(page)); });
        driver.add(
            u"picture"_s, [] { return true; },
            [&desk, prefix, page] { Save(desk, prefix + u"page%1.png"_s.arg(page)); });
        if (page != 1)
            continue;
        driver.add(
            u"wizard"_s, [] { return true; },
            [] { Driver::click(Driver::find(u"lbAdd"_s) ? u"lbAdd"_s : u"btnEmptyState"_s); });
        driver.add(
            u"picture"_s, [] { return Driver::usable(u"Text_Manual_0"_s); },
            [&desk, prefix] { Save(desk, prefix + u"wizard.png"_s); });
        driver.add(
            u"close"_s, [] { return Driver::usable(u"lbCancel"_s); }, [] { Driver::click(u"lbCancel"_s); });
    }
    driver.add(
        u"box"_s, [] { return Driver::usable(u"lbMenu_12"_s); },
        [] { MsgBox(GetLangString(514), AskBoxStyle(), GetLangString(570)); });
    driver.add(
        u"picture"_s, [] { return !Driver::boxText().isEmpty(); },
        [&desk, prefix] {
            Save(desk, prefix + u"box.png"_s);
            Driver::answerBox(u"btnNo"_s);
        });
    driver.run();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (argc != 3) {
        std::fputs("usage: language_tour STATION PICTURES\n", stderr);
        return 2;
    }
    SetAppPath(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
    const QDir pictures(QString::fromLocal8Bit(argv[2]));
    pictures.mkpath(u"."_s);
    InstallMsgBoxWindow();
    try {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            ApplyTheme(application, scheme);
            const auto station = std::make_unique<Station>();
            Form_Initial desk(*station);
            if (!desk.Form_Load())
                return 1;
            desk.resize(1280, 720);
            desk.show();
            for (int language = 1; language <= kLanguages; ++language) {
                SetLanguage(language);
                SetBoxStyles(language == kRightToLeftLanguage);
                desk.ChangeLanguage();
                Tour(desk, pictures.filePath(u"%1-%2-"_s.arg(language, 2, 10, QChar(u'0'))
                                                 .arg(scheme == Scheme::Dark ? u"dark"_s : u"light"_s)));
            }
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "language_tour: %s\n", error.what());
        return 1;
    }
    return 0;
}
