#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "platform/FolderChooser.h"
#include "tests/LoopWatch.h"
#include "tests/store/StoreFixture.h"
#include "tests/support/BoxAnswers.h"
#include "tooling/ui/Form_Tooling.h"

#include <QApplication>
#include <QClipboard>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The page over an audit log of 40 rows of today, driven by the keyboard.
class ToolingPageTest : public StoreFixture, protected BoxAnswers
{
protected:
    ToolingPageTest()
    {
        SetLanguage(1);
        SetFolderHandler([this](const QString& title) {
            EXPECT_EQ(title, u"Test"_s);
            return folder;
        });
        open();
        for (int i = 0; i < 40; ++i) {
            EXPECT_TRUE(QSqlQuery(databases.LogConn->database())
                            .exec(u"INSERT INTO SystemLog VALUES(%1,'%2','line %3')"_s
                                      .arg(QDate::currentDate().startOfDay().toSecsSinceEpoch() + i)
                                      .arg(i % 4 == 0 ? u"amy"_s : u"bob"_s)
                                      .arg(i)));
        }
        page = std::make_unique<Form_Tooling>(databases, [this] { ++exports; });
        page->resize(1060, 640);
        page->open();
        ApplyLanguage(page.get());
        page->changeLanguage();
        page->show();
        EXPECT_TRUE(QTest::qWaitFor([this] { return find<QComboBox>(u"Cmb_SystemViewerUser"_s)->count() == 2; }));
        EXPECT_TRUE(QTest::qWaitForWindowActive(page.get()));
    }
    ~ToolingPageTest() override { SetFolderHandler(nullptr); }
    template <class Widget = QWidget>
    Widget* find(const QString& name)
    {
        return page->findChild<Widget*>(name);
    }
    // Presses a button and waits for the end of what it begins.
    void press(const QString& name, Qt::Key key = Qt::Key_Space)
    {
        ASSERT_TRUE(find(name)->isEnabled()) << name.toStdString();
        QTest::keyClick(find(name), key);
        ASSERT_TRUE(QTest::qWaitFor([this] { return idle(); }, 60000));
    }
    bool idle()
    {
        return !page->findChild<SystemLogModel*>()->searching() && find(u"Frame_SystemViewer"_s)->isEnabled() &&
               find(u"exportFields"_s)->isEnabled();
    }
    QStringList files() { return QDir(folder).entryList({u"Systemlog_Export_*"_s}); }

    QString folder = AppPath();
    int exports = 0;
    std::unique_ptr<Form_Tooling> page;
};

TEST_F(ToolingPageTest, SearchesAndTurnsPages)
{
    press(u"lbSysSearch"_s);
    auto* grid = find<QTableView>(u"Grid_SystemLog"_s);
    auto* label = find<QLabel>(u"Lb_SystemViewer_2"_s);
    EXPECT_EQ(grid->model()->rowCount(), 11);
    EXPECT_EQ(label->text(), u"1/4"_s);
    EXPECT_FALSE(find(u"lbSysPageControl_1"_s)->isEnabled());
    press(u"lbSysPageControl_2"_s);
    EXPECT_EQ(label->text(), u"2/4"_s);
    press(u"lbSysPageControl_3"_s);
    EXPECT_EQ(label->text(), u"4/4"_s);
    EXPECT_EQ(grid->model()->rowCount(), 7);
    grid->setFocus();
    grid->selectRow(0);
    QTest::keyClick(grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(u"\tbob\tline 6\n"_s));

    find<QLineEdit>(u"txtSysFilter"_s)->setText(u"LINE 39"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid->model()->rowCount() == 1; }, 3000));
    find<QLineEdit>(u"txtSysFilter"_s)->clear();
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid->model()->rowCount() == 11; }, 3000));
    press(u"Chk_SystemViewer"_s); // amy is the first of the list
    press(u"lbSysSearch"_s);
    EXPECT_EQ(label->text(), u"1/1"_s);

    find<QDateEdit>(u"DTPicker_SystemViewer_2"_s)->setDate(QDate::currentDate().addDays(-3));
    press(u"lbSysSearch"_s);
    EXPECT_EQ(boxes, QStringList{GetLangString(742)});
    EXPECT_EQ(label->text(), u"1/1"_s) << "nothing was searched";
    EXPECT_TRUE(find(u"Frame_SystemViewer"_s)->isEnabled());
}

TEST_F(ToolingPageTest, ExportsAndSaysHowItEnded)
{
    press(u"Cmd_SystemExport"_s);
    ASSERT_EQ(files().size(), 1);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes.first().startsWith(GetLangString(745))) << boxes.first().toStdString();
    EXPECT_TRUE(boxes.first().contains(QDir(folder).filePath(files().first()))) << boxes.first().toStdString();
    QFile file(QDir(folder).filePath(files().first()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 41);
    EXPECT_TRUE(find(u"btnOpenFolder"_s)->isVisible());
    EXPECT_EQ(exports, 1);

    folder = AppPath() + u"/none"_s;
    press(u"Opt_SysExport_1"_s);
    press(u"Cmd_SystemExport"_s);
    EXPECT_FALSE(find(u"btnOpenFolder"_s)->isVisible());
    EXPECT_EQ(logLines("Form_Tooling - Cmd_SystemExport_Click"), 1);

    folder.clear();
    boxes.clear();
    press(u"Cmd_SystemExport"_s);
    EXPECT_EQ(boxes, QStringList()) << "no folder, no export";
    EXPECT_TRUE(find(u"exportFields"_s)->isEnabled());
}

// However long a log takes to be read, the desk answers meanwhile.
TEST_F(ToolingPageTest, NothingHoldsTheLoopUp)
{
    ASSERT_TRUE(QSqlQuery(databases.LogConn->database())
                    .exec(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) INSERT INTO SystemLog "
                          "SELECT %1+i/9, 'user '||(i%9), 'line '||i FROM n LIMIT 400000"_s.arg(
                              QDate::currentDate().startOfDay().toSecsSinceEpoch())));
    const auto act = [this](const char* what, const std::function<void()>& begin, const std::function<bool()>& done) {
        const LoopWatch watch;
        begin();
        EXPECT_TRUE(QTest::qWaitFor(done, 60000)) << what;
        EXPECT_LT(watch.longest() * 2, watch.whole()) << what;
        std::printf("%s: %lld of %lld ms\n", what, watch.longest(), watch.whole());
    };
    const auto press = [this](const char* name) {
        return [this, name] { QTest::keyClick(find(QString::fromLatin1(name)), Qt::Key_Space); };
    };
    const auto idleAgain = [this] { return idle(); };
    const auto* users = find<QComboBox>(u"Cmb_SystemViewerUser"_s);
    act(
        "users", [this] { page->open(); }, [users] { return users->count() == 11; });
    act("search", press("lbSysSearch"), idleAgain);
    act("refresh", press("lbSysPageControl_4"), idleAgain);
    const auto* model = page->findChild<SystemLogModel*>();
    act(
        "filter", [this] { find<QLineEdit>(u"txtSysFilter"_s)->setText(u"line 39999"_s); },
        [model] { return model->found() == 11; });
    act("text", press("Cmd_SystemExport"), idleAgain);
    find(u"Opt_SysExport_1"_s)->setFocus();
    press("Opt_SysExport_1")();
    act("database", press("Cmd_SystemExport"), idleAgain);
    EXPECT_EQ(exports, 2);
    EXPECT_EQ(files().size(), 2);
}

} // namespace
