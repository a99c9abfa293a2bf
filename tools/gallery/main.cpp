// Shows every element of the look, or writes pictures of them: look_gallery [--out PREFIX] [--size 1280x720]
// [--rtl] [--german] [--scheme light|dark]
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/DialogFrame.h"
#include "look/widgets/NavRail.h"
#include "look/widgets/PageHeader.h"
#include "tools/gallery/GalleryPages.h"

#include <QApplication>
#include <QComboBox>
#include <QCommandLineParser>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct Gallery
{
    QMainWindow window;
    NavRail* rail = new NavRail;
    PageHeader* header = new PageHeader;
    QStackedWidget* pages = new QStackedWidget;
};

void Build(Gallery& gallery, bool german)
{
    const struct
    {
        QLatin1StringView icon;
        const char16_t* english;
        const char16_t* german;
    } entries[] = {{"system"_L1, u"System", u"Systemeinstellungen"},
                   {"nvr"_L1, u"NVR", u"Netzwerkrekorder"},
                   {"intelligent"_L1, u"Intelligent", u"Intelligente Auswertung"},
                   {"users"_L1, u"User and group", u"Benutzer und Benutzergruppen"},
                   {"event"_L1, u"Event handling", u"Ereignisbehandlung"},
                   {"server"_L1, u"Event server", u"Ereignisserver"},
                   {"emap"_L1, u"E-Map", u"Lageplan"},
                   {"screens"_L1, u"Screen layout", u"Bildschirmanordnung"},
                   {"startup"_L1, u"Startup", u"Anlaufverhalten"},
                   {"videowall"_L1, u"Video wall", u"Videowand"},
                   {"svd"_L1, u"SVD", u"Dekoder"},
                   {"tooling"_L1, u"Tooling", u"Werkzeuge"}};
    gallery.rail->setBrand(u"Rigging Desk"_s, german ? u"Leitstelle Nord"_s : u"Station north"_s);
    for (const auto& entry : entries)
        gallery.rail->addEntry(entry.icon, QString::fromUtf16(german ? entry.german : entry.english));
    gallery.rail->addBottomEntry("exit"_L1, german ? u"Beenden"_s : u"Exit"_s);
    gallery.rail->entry(3)->setDirty(true, u"Changes not applied"_s);
    gallery.header->setUser(u"admin"_s);
    gallery.header->setClock(u"2026/11/24 11:20:05"_s);
    gallery.header->setThemeToggleText(u"Light or dark"_s);
    for (QWidget* page : {MakeFormPage(german), MakeTablePage(german), MakeControlsPage(german), MakeRightsPage(german),
                          MakeEmptyPage(german), MakePicturesPage()})
        gallery.pages->addWidget(page);

    auto* central = new QWidget;
    auto* row = new QHBoxLayout(central);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(gallery.header);
    column->addWidget(gallery.pages, 1);
    row->addWidget(gallery.rail);
    row->addLayout(column, 1);
    gallery.window.setCentralWidget(central);
    gallery.window.setWindowIcon(ProgramIcon());
    const auto show = [&gallery, german](int index) {
        gallery.pages->setCurrentIndex(std::min(index, gallery.pages->count() - 1));
        gallery.header->setTitle(index == 1 ? (german ? u"Übersicht der Netzwerkrekorder"_s : u"NVR Overview"_s)
                                            : gallery.rail->entry(index)->text());
        gallery.header->setSubtitle(german ? u"Rekorder und Kanäle dieser Station"_s : u"Recorders of this station"_s);
    };
    QObject::connect(gallery.rail, &NavRail::entryClicked, &gallery.window, [&gallery, show](int index) {
        if (index < gallery.rail->count() - 1)
            show(index);
        else
            gallery.window.close();
    });
    show(0);
}

// One strip a control of a page, each with the keyboard's focus on it: every ring must be seen.
QPixmap FocusSheet(QMainWindow& window, QWidget* page)
{
    const QSize strip(310, 56);
    QList<QPixmap> strips;
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    for (QWidget* control : page->findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        control->setFocus(Qt::TabFocusReason);
        if (QWidget* now = QApplication::focusWidget(); now != control)
            continue;
        QTest::qWait(10);
        const QRect place(control->mapTo(&window, QPoint(0, 0)), control->size());
        strips.append(window.grab(QRect(place.left() - 12, place.top() - 8, strip.width(), strip.height())));
    }
    if (strips.isEmpty())
        return {}; // no window manager gives the focus
    const int columns = 4;
    const int rows = (static_cast<int>(strips.size()) + columns - 1) / columns;
    QPixmap sheet(columns * strip.width(), rows * strip.height());
    sheet.fill(Qt::magenta);
    QPainter painter(&sheet);
    for (int i = 0; i < strips.size(); ++i)
        painter.drawPixmap(i % columns * strip.width(), i / columns * strip.height(), strips[i]);
    return sheet;
}

void Shoot(Gallery& gallery, const QString& prefix, bool german)
{
    const auto save = [&](const QPixmap& picture, const QString& name) { picture.save(prefix + name + u".png"_s); };
    for (int page = 0; page < gallery.pages->count(); ++page) {
        gallery.rail->entry(page)->click();
        if (auto* table = gallery.pages->currentWidget()->findChild<QTableView*>(u"table"_s))
            QTest::mouseMove(table->viewport(), QPoint(200, 20));
        if (page == 2) {
            gallery.window.setAttribute(Qt::WA_KeyboardFocusChange);
            gallery.pages->currentWidget()->findChild<QPushButton*>(u"button_primary"_s)->setFocus(Qt::TabFocusReason);
        }
        QTest::qWait(60);
        save(gallery.window.grab(), QString::number(page));
        if (page < 4)
            save(FocusSheet(gallery.window, gallery.pages->currentWidget()), u"f%1"_s.arg(page));
    }
    const bool desktop = QGuiApplication::platformName() == "xcb"_L1;
    if (desktop) {
        gallery.rail->entry(0)->click();
        auto* picker = gallery.pages->currentWidget()->findChild<QComboBox*>(u"picker"_s);
        picker->showPopup();
        QTest::qWait(200);
        save(QGuiApplication::primaryScreen()->grabWindow(0), u"popup"_s);
        picker->hidePopup();
        QMenu menu;
        menu.addAction(Icon("edit"_L1), u"Edit"_s);
        menu.addAction(Icon("copy"_L1), u"Copy the setting to…"_s)->setEnabled(false);
        menu.addSeparator();
        menu.addAction(Icon("delete"_L1), u"Remove"_s);
        menu.popup(QPoint(600, 300));
        QTest::keyClick(&menu, Qt::Key_Down);
        QTest::qWait(200);
        save(QGuiApplication::primaryScreen()->grabWindow(0), u"menu"_s);
        menu.close();
        QToolTip::showText(QPoint(300, 300), u"A tool tip of the desk"_s, &gallery.window);
        QTest::qWait(500);
        save(QGuiApplication::primaryScreen()->grabWindow(0), u"tip"_s);
    }
    gallery.rail->entry(1)->click();
    for (int index = 0; DialogFrame* dialog = MakeDialog(index, german, &gallery.window); ++index) {
        dialog->show();
        QTest::qWait(60);
        if (desktop) {
            QTest::qWait(200);
            save(QGuiApplication::primaryScreen()->grabWindow(0), u"d%1"_s.arg(index));
            delete dialog;
            continue;
        }
        QPixmap picture = gallery.window.grab();

        QPainter painter(&picture);
        painter.drawPixmap((gallery.window.width() - dialog->width()) / 2,
                           (gallery.window.height() - dialog->height()) / 2, dialog->grab());
        painter.end();
        save(picture, u"d%1"_s.arg(index));
        delete dialog;
    }
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{u"out"_s, u"Write pictures."_s, u"prefix"_s},
                       {u"size"_s, u"Window size."_s, u"WxH"_s, u"1280x720"_s},
                       {u"scheme"_s, u"light or dark."_s, u"scheme"_s},
                       {u"rtl"_s, u"Right to left."_s},
                       {u"german"_s, u"Long labels."_s}});
    parser.addHelpOption();
    parser.process(application);
    const QString scheme = parser.value(u"scheme"_s);
    if (parser.isSet(u"rtl"_s))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    ApplyTheme(application, scheme.isEmpty() ? InitialScheme() : scheme == "dark"_L1 ? Scheme::Dark : Scheme::Light);
    Gallery gallery;
    Build(gallery, parser.isSet(u"german"_s));
    const QStringList size = parser.value(u"size"_s).split(u'x');
    gallery.window.resize(size.value(0).toInt(), size.value(1).toInt());
    gallery.window.show();
    if (!parser.isSet(u"out"_s))
        return QApplication::exec();
    Shoot(gallery, parser.value(u"out"_s), parser.isSet(u"german"_s));
    return 0;
}
