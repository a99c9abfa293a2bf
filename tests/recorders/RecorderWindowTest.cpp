#include "app/language/Languages.h"
#include "look/tables/StatusRoles.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/StepStrip.h"
#include "platform/Work.h"
#include "recorders/detect/DetectStatusModel.h"
#include "recorders/ui/Form_NVRSetting.h"
#include "recorders/ui/NVRPage.h"
#include "support/Conversions.h"
#include "tests/support/BoxAnswers.h"
#include "tests/support/RecorderStation.h"
#include "tests/support/WindowSteps.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;
using simulators::DeviceDescription;

namespace {

// Searches may meet devices of other sites on the same machine: the test's own are told by their network.
const QString kNetwork = simulators::ownNetwork();

// Recorders in a thread, and the desk's windows over them.
class RecorderWindows : public RecorderStation, protected BoxAnswers
{
protected:
    RecorderWindows()
    {
        SetLanguage(1);
        accounts = {{0, u"admin"_s, u"admin"_s}};
    }

    // Recorders with three cameras each.
    void startSite(const std::vector<Family>& families, bool searched = false)
    {
        std::vector<DeviceDescription> all;
        for (const Family family : families)
            all.push_back(Recorder(family, 4, 3));
        SimulatedSite::startSite(all, searched);
    }
    // The site's recorder in a slot of both generations.
    void store(int slot, int device)
    {
        SVRRecord& record = At(recorders->SVRList, slot);
        record.sSVR_Name = u"Name %1"_s.arg(slot);
        place(record, device);
        At(recorders->SVRWorkList, slot) = record;
    }
};

// The text of a column by the recorder's slot, whatever the order of the rows.
QString Cell(const QTableView& grid, int slot, int column)
{
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        const QModelIndex cell = grid.model()->index(row, column);
        if (cell.data(NVRListModel::kRecordRole).toInt() == slot)
            return cell.data().toString();
    }
    return {};
}

} // namespace

TEST_F(RecorderWindows, TheListSaysHowEachRecorderAnswers)
{
    startSite({Family::Svr, Family::Txr632, Family::OmluPro, Family::Svr});
    for (int slot = 0; slot < 4; ++slot)
        store(slot, slot);
    recorders->SVRList[1].sSVR_Password = u"wrong"_s;
    recorders->SVRList[2].iSVR_HttpPort = 9;
    fault(3, {FaultKind::Body, 0, "/getgid.cgi", 0, "ERR"});
    NVRPage page(*recorders, com.poller);
    page.changeLanguage();
    page.Grid_SVR_Set_withDB();
    EXPECT_EQ(requests(0, "/getgid.cgi"), 0) << "a page that is not on show asks nobody";
    page.resize(1000, 500);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    auto* grid = page.findChild<QTableView*>(u"Grid_SVRsList"_s);
    EXPECT_EQ(Cell(*grid, 0, NVRListModel::Connection), GetLangString(957));
    const int words[] = {896, 958, 961, 962};
    for (int slot = 0; slot < 4; ++slot)
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return Cell(*grid, slot, NVRListModel::Connection) == GetLangString(words[slot]); }, 3000))
            << slot << ' ' << qPrintable(Cell(*grid, slot, NVRListModel::Connection));
    EXPECT_EQ(grid->horizontalHeader()->logicalIndex(6), NVRListModel::Connection) << "before the icons";

    // The words can be looked for, and keys mean the recorder of their row in any order.
    page.findChild<QLineEdit*>(u"txtFilter"_s)->setText(GetLangString(958).toUpper());
    ASSERT_EQ(grid->model()->rowCount(), 1);
    QSignalSpy edit(&page, &NVRPage::editWanted);
    QSignalSpy remove(&page, &NVRPage::removeWanted);
    grid->setFocus();
    grid->setCurrentIndex(grid->model()->index(0, 0));
    QTest::keyClick(grid, Qt::Key_Return);
    ASSERT_EQ(edit.size(), 1);
    EXPECT_EQ(edit.takeFirst().at(0).toInt(), 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(grid->viewport(), &menuKey);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu && menu->actions().size() == 3) << "what can be done with the row";
    QSignalSpy rename(&page, &NVRPage::renameWanted);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    ASSERT_EQ(rename.size(), 1);
    EXPECT_EQ(rename.takeFirst().at(0).toInt(), 1);
    QTest::keyClick(grid, Qt::Key_Escape);
    EXPECT_EQ(grid->model()->rowCount(), 4) << "Esc takes the filter away";
    grid->sortByColumn(NVRListModel::Name, Qt::DescendingOrder);
    const QRect name = grid->visualRect(grid->model()->index(0, NVRListModel::Name));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, name.center());
    EXPECT_TRUE(edit.isEmpty());
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, name.center());
    ASSERT_EQ(edit.size(), 1);
    EXPECT_EQ(edit.takeFirst().at(0).toInt(), 3);
    QTest::keyClick(grid, Qt::Key_Delete); // No
    EXPECT_EQ(boxes, QStringList{GetLangString(483) + u"\n\nNVR 4  ·  Name 3  ·  "_s + Cell(*grid, 3, 2)});
    EXPECT_TRUE(remove.isEmpty());
    answers = {MsgResult::Yes};
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                      grid->visualRect(grid->model()->index(0, NVRListModel::Delete)).center());
    ASSERT_EQ(remove.size(), 1);
    EXPECT_EQ(remove.takeFirst().at(0).toInt(), 3);

    recorders->SVRList[3] = SVRRecord();
    page.Grid_SVR_Set_withDB();
    EXPECT_EQ(grid->currentIndex().data(NVRListModel::kRecordRole).toInt(), 2) << "the next one comes to its place";
}

// The wizard, its steps done by a driver while it is open.
class WizardWindow : public RecorderWindows, protected WindowSteps
{
protected:
    // What the wizard's rows say at its end.
    QStringList run()
    {
        Form_NVRSetting wizard(context(), {[this] { ++finished; }, [this] { ++discarded; }}, nullptr);
        QStringList rows;
        QObject::connect(&wizard, &QDialog::finished, &wizard, [&] {
            auto* grid = wizard.findChild<QTableView*>(u"Grid_DetectStatus"_s);
            for (int row = 0; row < grid->model()->rowCount(); ++row)
                rows << grid->model()->index(row, DetectStatusModel::Status).data().toString();
        });
        waitClosed(u"Form_NVRSetting"_s);
        QTimer::singleShot(0, &wizard, [&] { wizard.exec(); });
        driver.run(15000);
        return rows;
    }
    void search()
    {
        step(u"OptMode_0"_s, [] {
            QTest::keyClick(Driver::find(u"OptMode_0"_s), Qt::Key_Space);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
    }
    static void enter(const QString& widget) { press(widget, Qt::Key_Return); }
    static QString note() { return QApplication::activeModalWidget()->findChild<ActionBar*>()->noteLabel()->text(); }
    static QString spokenStep() { return QApplication::activeModalWidget()->findChild<StepStrip*>()->accessibleName(); }
    static QAbstractItemModel* list() // also while the filter lets nothing through
    {
        return QApplication::activeModalWidget()->findChild<QTableView*>(u"Grid_SearchList"_s)->model();
    }

    int finished = 0;
    int discarded = 0;
};

TEST_F(WizardWindow, FoundRecordersAreAddedTheFailedOnesWithAnotherLogin)
{
    std::vector<DeviceDescription> all;
    for (const Family family : {Family::Svr, Family::Txr632, Family::OmluPro, Family::Svd, Family::Svr})
        all.push_back(Recorder(family, 4, 3));
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i].name = u"Recorder %1"_s.arg(i + 1).leftJustified(40, u'x');
    all[2].accounts = {{u"chief"_s, u"other"_s}};
    SimulatedSite::startSite(all, true);
    store(2, 4);
    accounts = {{0, u"root"_s, u"unknown"_s}}; // what is typed counts, not the known accounts
    search();
    step(u"lbSearch"_s, [] { // usable again: the search is over
        Driver::type(u"txtSearchFilter"_s, kNetwork);
        EXPECT_EQ(list()->rowCount(), 4) << "the decoder is left out";
        for (int row = 0; row < 4; ++row)
            EXPECT_EQ(list()->index(row, 0).data().toString().size(), kRecorderNameLength);
        Driver::click(u"lbNext_1"_s); // nothing is checked
        Driver::click(u"lbBack"_s);
        EXPECT_TRUE(Driver::find<QAbstractButton>(u"OptMode_0"_s)->isChecked());
        Driver::type(u"Text_Manual_3"_s, u"admin"_s);
        Driver::type(u"Text_Manual_4"_s, u"admin"_s);
        enter(u"Text_Manual_4"_s);
        EXPECT_EQ(list()->rowCount(), 4) << "what was found is still there";
    });
    step(u"Chk_SelectAll"_s, [this] {
        EXPECT_EQ(boxes, QStringList{GetLangString(832)});
        EXPECT_TRUE(Driver::find(u"Grid_SearchList"_s)->hasFocus());
        QTest::keyClick(Driver::find(u"Grid_SearchList"_s), Qt::Key_Space); // checks the row
        EXPECT_EQ(list()->index(0, 0).data(Qt::CheckStateRole), Qt::Checked);
        Driver::find(u"Chk_SelectAll"_s)->setFocus();
        QTest::keyClick(Driver::find(u"Chk_SelectAll"_s), Qt::Key_Space);
        Driver::click(u"lbNext_1"_s);
    });
    step(u"lbRetry"_s, [this] {
        EXPECT_EQ(note(), GetLangString(1031).arg(2).arg(3).arg(1));
        EXPECT_TRUE(Driver::find(u"txtRetryUser"_s)->hasFocus());
        Driver::type(u"txtRetryUser"_s, u"chief"_s);
        Driver::type(u"txtRetryPassword"_s, u"other"_s);
        enter(u"txtRetryPassword"_s);
    });
    step(u"lbNext_2"_s, [this] {
        EXPECT_EQ(note(), GetLangString(1030).arg(3).arg(3));
        EXPECT_FALSE(Driver::find(u"lbRetry"_s));
        Driver::click(u"lbBack"_s);
        for (int row = 0; row < 4; ++row)
            EXPECT_FALSE(list()->index(row, 0).flags().testFlag(Qt::ItemIsEnabled)) << "the station has them all";
        answers = {MsgResult::Cancel, MsgResult::Yes};
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        EXPECT_TRUE(Driver::usable(u"lbBack"_s)) << "Cancel stays";
        Driver::click(u"lbCancel"_s); // Yes saves them
    });
    const QStringList rows = run();
    EXPECT_EQ(rows.count(GetLangString(297)), 3);
    EXPECT_EQ(boxes.size(), 3);
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(discarded, 0);
    EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), 4);
    EXPECT_FALSE(recorders->SVRWorkList[1].sSVR_IP.isEmpty()) << "the free slots, in order";
    EXPECT_EQ(requests(0, "/login.cgi"), 1) << "what was added is not asked again";
}

TEST_F(WizardWindow, TypedRecorderIsAskedAboutBeforeItIsDoubledOrLost)
{
    startSite({Family::Svr, Family::Svr});
    store(0, 1);
    const NVRDetectItem typed = item(0);
    const auto escape = [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); };
    step(u"Text_Manual_0"_s, [&, escape] {
        EXPECT_TRUE(spokenStep().startsWith(u"1/2"_s)) << "who types does not search";
        Driver::type(u"Text_Manual_0"_s, u" Name 0 "_s);
        escape(); // No: stays
        enter(u"Text_Manual_0"_s);
        EXPECT_TRUE(Driver::find(u"Text_Manual_1"_s)->hasFocus());
        EXPECT_TRUE(Driver::find(u"Text_Manual_1"_s)->property("faulty").toBool());
        Driver::type(u"Text_Manual_1"_s, u' ' + typed.sIP + u' ');
        EXPECT_FALSE(Driver::find(u"Text_Manual_1"_s)->property("faulty").toBool());
        Driver::type(u"Text_Manual_2"_s, QString::number(typed.iPort));
        enter(u"Text_Manual_2"_s); // doubled, No
        EXPECT_TRUE(Driver::find(u"Text_Manual_0"_s)->hasFocus());
        answers = {MsgResult::Yes};
        enter(u"Text_Manual_0"_s);
    });
    step(u"lbNext_2"_s, [&, escape] {
        EXPECT_TRUE(spokenStep().startsWith(u"2/2"_s));
        answers = {MsgResult::Cancel, MsgResult::No};
        escape();
        EXPECT_TRUE(Driver::usable(u"lbNext_2"_s));
        escape();
    });
    run();
    EXPECT_EQ(boxes.join(u'|').toStdString(),
              QStringList({GetLangString(1036) + u"\n\nName 0"_s, GetLangString(491),
                           GetLangString(1037).arg(u"Name 0"_s), GetLangString(1037).arg(u"Name 0"_s),
                           GetLangString(1035).arg(u"Name 0"_s), GetLangString(1035).arg(u"Name 0"_s)})
                  .join(u'|')
                  .toStdString());
    EXPECT_EQ(finished, 0);
    EXPECT_EQ(discarded, 1);
    EXPECT_EQ(recorders->SVRWorkList[1].sSVR_IP, typed.sIP);
}

// One click means one step, also when the hand clicks twice.
TEST_F(WizardWindow, SecondHalfOfADoubleClickReachesNoFrame)
{
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(100000);
    step(u"OptMode_0"_s, [this] {
        QTest::keyClick(Driver::find(u"OptMode_0"_s), Qt::Key_Space);
        Driver::click(u"lbNext_0"_s);
        Driver::click(u"lbNext_1"_s); // the same button, the same place
        EXPECT_TRUE(boxes.isEmpty());
        Driver::click(u"lbBack"_s); // elsewhere: nobody's second half
        EXPECT_TRUE(Driver::find(u"lbNext_0"_s));
        Driver::click(u"lbNext_0"_s);
        QApplication::setDoubleClickInterval(0);
        Driver::click(u"lbNext_1"_s); // later
        EXPECT_EQ(boxes.size(), 1);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    run();
    QApplication::setDoubleClickInterval(interval);
}

TEST_F(WizardWindow, ASearchWithoutAnswerSaysSoAndCanBeGivenUp)
{
    search();
    step(u"lbSearch"_s, [] {
        Driver::type(u"txtSearchFilter"_s, kNetwork);
        EXPECT_EQ(list()->rowCount(), 0);
        Driver::type(u"txtSearchFilter"_s, {});
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    EXPECT_TRUE(run().isEmpty());
    EXPECT_EQ(finished, 0);
}

TEST_F(WizardWindow, EscapeStopsADetectionEvenInTheMiddleOfARequest)
{
    startSite({Family::Svr, Family::Svr, Family::Svr}, true);
    fault(1, {FaultKind::Silent, 0, "/login.cgi"});
    search();
    step(u"lbSearch"_s, [] {
        Driver::type(u"txtSearchFilter"_s, kNetwork);
        QTest::keyClick(Driver::find(u"Chk_SelectAll"_s), Qt::Key_Space);
        Driver::click(u"lbNext_1"_s);
    });
    driver.add(
        u"second one is asked"_s, [this] { return requests(1, "/login.cgi") > 0 && AnyWorkRunning(); },
        [] {
            EXPECT_FALSE(Driver::find(u"lbNext_2"_s)->isEnabled());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        });
    step(u"lbNext_2"_s, [this] {
        answers = {MsgResult::No}; // what was added before the stop is given up
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    QElapsedTimer time;
    time.start();
    QStringList rows = run();
    EXPECT_LT(time.elapsed(), 10000) << "the silent recorder is not waited for";
    EXPECT_GE(rows.count(GetLangString(963)), 1);
    EXPECT_EQ(rows.count(GetLangString(963)) + rows.count(GetLangString(297)), 3);
    EXPECT_EQ(OccupiedSlots(recorders->SVRWorkList), static_cast<int>(rows.count(GetLangString(297))));
    EXPECT_EQ(finished, 0);
}
