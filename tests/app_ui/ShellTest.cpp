#include "app/ui/MsgBoxWindow.h"
#include "app/ui/Remembered.h"
#include "platform/Clock.h"
#include "platform/UserSettings.h"
#include "tests/support/DeskFixture.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// What a user's settings file would hold.
class NotedSettings final : public UserSettings
{
public:
    explicit NotedSettings(QVariantMap& map)
        : m_map(map)
    {
    }
    QVariant value(const QString& key) const override { return m_map.value(key); }
    void setValue(const QString& key, const QVariant& value) override { m_map[key] = value; }

private:
    QVariantMap& m_map;
};

// The desk started on a station of its own; boxes are answered from a list unless a test shows them.
class ShellTest : public DeskFixture
{
protected:
    ~ShellTest() override
    {
        desk.reset();
        UseUserSettings(nullptr);
    }
    void end()
    {
        answers = {MsgResult::Yes, MsgResult::No};
        desk->close();
        EXPECT_TRUE(QTest::qWaitFor([this] { return desk->unloaded(); }, 10000));
    }
    QStringList audit()
    {
        QStringList texts;
        QSqlQuery rows(station->databases.LogConn->database());
        rows.exec(u"SELECT Description FROM SystemLog ORDER BY rowid"_s);
        while (rows.next())
            texts << rows.value(0).toString();
        return texts;
    }
    QVariant stored(const QString& column) { return row(u"SELECT %1 FROM BasicDefault"_s.arg(column)); }
};

} // namespace

TEST_F(ShellTest, SystemPageEditsByKeyboardAndSavesOnApply)
{
    ASSERT_TRUE(start());
    EXPECT_FALSE(Driver::find(u"lbSystemApply_0"_s)->isEnabled()) << "filling the page is no change";
    auto* name = Driver::find<QLineEdit>(u"Text1_fm0_0"_s);
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, u"Tor 7"_s);
    QKeyEvent umlaut(QEvent::KeyPress, 0xdc, Qt::NoModifier, u"ü"_s);
    QApplication::sendEvent(name, &umlaut);
    EXPECT_EQ(name->text(), u"Tor 7"_s) << "typed names are plain ASCII";
    EXPECT_TRUE(Driver::find(u"lbSystemApply_0"_s)->isEnabled());
    Driver::click(u"optStartUp_2"_s);
    press(u"Cmb_Snap"_s, Qt::Key_Down);
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(stored(u"sSystemName"_s).toString(), u"Tor 7"_s);
    EXPECT_EQ(stored(u"iSnapCount"_s).toInt(), 2);
    EXPECT_EQ(stored(u"bStartup"_s).toInt(), 1);
    EXPECT_EQ(stored(u"bStartupToHide"_s).toInt(), 1);
    EXPECT_FALSE(Driver::find(u"lbSystemApply_0"_s)->isEnabled());
    EXPECT_EQ(audit(), (QStringList{u"Open Rigging Desk"_s, u"Modify Setting of System"_s}));

    QTest::keyClicks(name, u"x"_s);
    Driver::find(u"lbSystemApply_1"_s)->setFocus();
    press(u"lbSystemApply_1"_s, Qt::Key_Return);
    EXPECT_EQ(name->text(), u"Tor 7"_s) << "Cancel falls back to the edit record";
    name->clear();
    Driver::click(u"lbSystemApply_0"_s);
    EXPECT_EQ(stored(u"sSystemName"_s).toString(), u"Tor 7"_s) << "an empty name is not applied";
    EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(ShellTest, ASnapCountOutOfRangeShowsNothingAndAppliesAsZero)
{
    ASSERT_TRUE(start(u"UPDATE BasicDefault SET iSnapCount=9, iLanguage=1"_s));
    EXPECT_EQ(Driver::find<QComboBox>(u"Cmb_Snap"_s)->currentIndex(), -1);
    Driver::click(u"optStartUp_1"_s);
    Driver::click(u"lbSystemApply_0"_s);
    EXPECT_EQ(stored(u"iSnapCount"_s).toInt(), 0);
}

TEST_F(ShellTest, LeavingAChangedPageAsksAndTheCloseOfTheShownOneDoesNot)
{
    ASSERT_TRUE(start());
    Driver::click(u"lbMenu_0"_s);
    EXPECT_TRUE(boxes.isEmpty());
    QTest::keyClicks(Driver::find(u"Text1_fm0_0"_s), u"A"_s);
    answers = {MsgResult::Cancel, MsgResult::No};
    Driver::click(u"lbMenu_1"_s);
    EXPECT_EQ(boxes, QStringList{GetLangString(514)});
    EXPECT_EQ(styles, QList<qint32>{35}) << "Yes, No and Cancel";
    EXPECT_EQ(desk->m_PageIndex(), 0);
    EXPECT_TRUE(Driver::find<QAbstractButton>(u"lbMenu_0"_s)->isChecked());
    EXPECT_EQ(Driver::find<QLineEdit>(u"Text1_fm0_0"_s)->text(), u"CMS_CoreA"_s) << "what was typed is still there";
    Driver::click(u"lbMenu_1"_s);
    EXPECT_EQ(desk->m_PageIndex(), 1);
    EXPECT_EQ(stored(u"sSystemName"_s).toString(), u"CMS_Core"_s);
    Driver::click(u"lbMenu_0"_s);
    auto* name = Driver::find<QLineEdit>(u"Text1_fm0_0"_s);
    EXPECT_EQ(name->text(), u"CMS_Core"_s);
    QTest::keyClicks(name, u"B"_s);
    answers = {MsgResult::Yes};
    Driver::click(u"lbMenu_2"_s);
    EXPECT_EQ(stored(u"sSystemName"_s).toString(), u"CMS_CoreB"_s);
    EXPECT_EQ(desk->m_PageIndex(), 2);
    Driver::click(u"lbMenu_0"_s);
    name->clear();
    answers = {MsgResult::Yes};
    Driver::click(u"lbMenu_2"_s);
    EXPECT_EQ(desk->m_PageIndex(), 0) << "what cannot be applied keeps the page";
}

TEST_F(ShellTest, ApplyingALanguageSwitchesTheDeskAtOnce)
{
    ASSERT_TRUE(start(u"UPDATE BasicDefault SET iLanguage=1"_s));
    auto* picker = Driver::find<QComboBox>(u"ImageCombo1"_s);
    ASSERT_EQ(picker->count(), kLanguages);
    const QString english = Driver::find<QAbstractButton>(u"lbMenu_0"_s)->text();
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_End); // Hebrew
    Driver::click(u"lbSystemApply_0"_s);
    EXPECT_EQ(stored(u"iLanguage"_s).toInt(), 14);
    EXPECT_NE(Driver::find<QAbstractButton>(u"lbMenu_0"_s)->text(), english);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(InfoBoxStyle(), 0x80040);
    EXPECT_EQ(AskBoxStyle(), 0x80024);
    QFile::remove(path(u"\\config\\autostart\\CMS_Core.desktop"));
    ASSERT_TRUE(start());
    EXPECT_EQ(Language(), 14);
}

TEST_F(ShellTest, ExportWritesTheFactsAndSaysWhere)
{
    PinClock(QDateTime(QDate(2026, 11, 24), QTime(8, 0)));
    ASSERT_TRUE(start());
    Driver::click(u"lbSystemApply_2"_s);
    const QString file = path(u"\\DetailExport-20261124.txt");
    EXPECT_EQ(boxes, QStringList{GetLangString(828) + u' ' + file});
    const QList<QByteArray> lines = read(u"\\DetailExport-20261124.txt").split('\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines[0].startsWith("\"OS           : "));
    EXPECT_EQ(lines[3].trimmed(), "\"MonitorCount : 1\"");
}

TEST_F(ShellTest, RightsDecideTheMenu)
{
    ASSERT_TRUE(start(u"UPDATE GroupPrivilege SET SVDControl=0"_s));
    Driver::click(u"lbMenu_10"_s);
    EXPECT_EQ(boxes, QStringList{GetLangString(139)});
    EXPECT_EQ(desk->m_PageIndex(), 0) << "the old page stays";

    ASSERT_TRUE(start(u"UPDATE GroupPrivilege SET Setting=0, Export=1"_s));
    EXPECT_EQ(desk->m_PageIndex(), 8);
    ASSERT_TRUE(QTest::qWaitFor([] { return !Driver::find(u"lbMenu_0"_s); }));
    QList<int> shown;
    for (int entry = 0; entry < kMenuEntries; ++entry) {
        if (Driver::find(u"lbMenu_%1"_s.arg(entry)))
            shown << entry;
    }
    EXPECT_EQ(shown, (QList<int>{8, 11, 12}));
}

TEST_F(ShellTest, ColoursWindowColumnsAndPageAreThereAgainAtTheNextStart)
{
    QVariantMap settings;
    UseUserSettings(std::make_unique<NotedSettings>(settings));
    const Scheme before = CurrentScheme();
    const Scheme other = before == Scheme::Dark ? Scheme::Light : Scheme::Dark;
    ASSERT_TRUE(start());
    Driver::click(u"btnTheme"_s);
    EXPECT_EQ(CurrentScheme(), other) << "one click is one switch";
    Driver::click(u"lbMenu_3"_s);
    QHeaderView* head = Driver::find<QTableView>(u"Grid_GroupList"_s)->horizontalHeader();
    const auto drag = [head](int section) {
        const QPoint edge(head->sectionViewportPosition(section + 1) - 1, head->height() / 2);
        QTest::mousePress(head->viewport(), Qt::LeftButton, {}, edge);
        QTest::mouseMove(head->viewport(), edge + QPoint(20, 0));
        QTest::mouseMove(head->viewport(), edge + QPoint(40, 0));
        QTest::mouseRelease(head->viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
    };
    const int width = head->sectionSize(1);
    drag(1);
    const int dragged = head->sectionSize(1);
    EXPECT_NE(dragged, width);
    head->hideSection(1); // as in a window without room for it
    drag(2);
    desk->resize(1111, 666);
    end();

    ApplyTheme(*qApp, before);
    ASSERT_TRUE(start());
    EXPECT_EQ(desk->m_PageIndex(), 3);
    EXPECT_TRUE(Driver::find<QAbstractButton>(u"lbMenu_3"_s)->isChecked());
    EXPECT_EQ(Driver::find<QTableView>(u"Grid_GroupList"_s)->horizontalHeader()->sectionSize(1), dragged);
    EXPECT_EQ(RememberedScheme(), other);
    PlaceWindow(*desk);
    EXPECT_EQ(desk->size(), QSize(1111, 666));
    for (const auto& [key, value] : settings.asKeyValueRange())
        EXPECT_TRUE(key == "colours"_L1 || key == "window"_L1 || key == "page"_L1 || key.startsWith("columns/"_L1));
}

TEST_F(ShellTest, KeysLeadToPagesAndPressWhatHasTheFocus)
{
    ASSERT_TRUE(start());
    QTest::keyClick(desk.get(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(desk->m_PageIndex(), 1);
    QTest::keyClick(desk.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(desk->m_PageIndex(), 9);
    QTest::keyClick(desk.get(), Qt::Key_1, Qt::ControlModifier);
    Driver::find(u"lbSystemApply_2"_s)->setFocus();
    press(u"lbSystemApply_2"_s, Qt::Key_Return);
    EXPECT_EQ(boxes.size(), 1) << "Return exports";
    boxes.clear();
    station->basicDefault.edit.sSystemName = u"read anew"_s;
    QTest::keyClick(desk.get(), Qt::Key_F5);
    EXPECT_EQ(Driver::find<QLineEdit>(u"Text1_fm0_0"_s)->text(), u"read anew"_s);
    QTest::keyClicks(Driver::find(u"Text1_fm0_0"_s), u"X"_s);
    answers = {MsgResult::Cancel};
    QTest::keyClick(desk.get(), Qt::Key_F5);
    EXPECT_EQ(boxes, QStringList{GetLangString(514)}) << "what was typed is not read over";
    EXPECT_EQ(Driver::find<QLineEdit>(u"Text1_fm0_0"_s)->text(), u"read anewX"_s);
    QString shown;
    QTimer::singleShot(0, desk.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        shown = dialog ? dialog->objectName() : QString();
        if (dialog)
            dialog->reject();
    });
    QTest::keyClick(desk.get(), Qt::Key_F1);
    EXPECT_EQ(shown, u"Form_Keys"_s);
}

TEST_F(ShellTest, WithoutALoginNobodyGoesOnAfterTheFirstUserWasMade)
{
    ASSERT_TRUE(start());
    EXPECT_TRUE(Driver::find(u"firstUserNotice"_s));
    UserRecord& chief = station->users.edit[0];
    chief.sUser = u"chief"_s;
    chief.bChanged = true;
    SaveCheck(*station);
    driver.add(
        u"users"_s, [] { return true; }, [] { Driver::click(u"lbMenu_3"_s); });
    driver.add(
        u"login"_s, [] { return Driver::usable(u"imgBtn_Exit"_s); }, [] { Driver::click(u"imgBtn_Exit"_s); });
    driver.run();
    EXPECT_TRUE(QTest::qWaitFor([this] { return desk->unloaded(); }, 10000));
}

TEST_F(ShellTest, ASecondInstanceSaysSoAndEnds)
{
    ASSERT_TRUE(start());
    const auto other = std::make_unique<Station>();
    Form_Initial second(*other);
    EXPECT_FALSE(second.Form_Load());
    EXPECT_EQ(boxes, QStringList{GetLangString(10)});
}

TEST_F(ShellTest, ClosingTheWindowAsksLikeExitAndKeepsTheDeskOnNo)
{
    ASSERT_TRUE(start());
    desk->close();
    EXPECT_TRUE(desk->isVisible());
    EXPECT_EQ(boxes, QStringList{GetLangString(509)});
    end();
    EXPECT_FALSE(QFile::exists(path(kBackup1File))) << "nothing was saved, so no backup is written";
}

TEST_F(ShellTest, ARunThatSavedLeavesABackup)
{
    ASSERT_TRUE(start());
    QTest::keyClicks(Driver::find(u"Text1_fm0_0"_s), u"Z"_s);
    Driver::click(u"lbSystemApply_0"_s);
    answers = {MsgResult::Yes, MsgResult::Yes};
    desk->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return desk->unloaded(); }, 10000));
    EXPECT_TRUE(QFile::exists(path(kBackup1File)));
    EXPECT_EQ(logLines("Form_Initial - Form_Unload"), 1) << "the viewer is not there: a line, no box";
}

TEST_F(ShellTest, TheDesksOwnBoxAnswersByKeyboard)
{
    ASSERT_TRUE(start());
    const MsgBoxHandler queued = SetMsgBoxHandler(nullptr);
    InstallMsgBoxWindow();
    MsgResult result = MsgResult::Ok;
    driver.add(
        u"ask"_s, [] { return true; }, [&] { result = MsgBox(u"?"_s, AskBoxStyle(), u"Information"_s); });
    driver.add(
        u"escape"_s, [] { return Driver::boxText() == u"?"_s; },
        [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    driver.add(
        u"gone"_s, [] { return !QApplication::activeModalWidget(); }, [] {});
    driver.run();
    EXPECT_EQ(result, MsgResult::No);
    SetMsgBoxHandler(queued);
}
