#include "emap/EMapTreeModel.h"
#include "tests/support/DeskFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

class EMapWindow : public DeskFixture
{
protected:
    EMapWindow()
    {
        start();
        SVRRecord& recorder = station->recorders.SVRWorkList[0];
        recorder.sSVR_Name = u"North"_s;
        recorder.sSVR_IP = u"10.0.0.1"_s;
        recorder.iSVR_Maxchannel = 2;
        recorder.channels[0].sSub_CH_Name = u"c1"_s;
        recorder.channels[1].sSub_CH_Name = u"c2"_s;
        station->recorders.SVRList[0] = recorder;
        AddRecorderMap(station->emap, 0, recorder.sSVR_Name);
        SaveCheck(*station);
        Driver::click(u"lbMenu_6"_s);
    }

    void choose(const QString& key)
    {
        auto* tree = Driver::find<QTreeView>(u"TreeView_Emap"_s);
        const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), EMapTreeModel::kKeyRole, key, 1,
                                                           Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1) << key.toStdString();
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(found.front()).center());
    }
    void name(const QString& text, int button)
    {
        Driver::type(u"Text_EmapGroupName"_s, text);
        Driver::click(u"Cmd_EmapGroup_%1"_s.arg(button));
    }
    QString maps()
    {
        return Rows(*station->databases.DBConn, u"SELECT sName, sParent FROM EMapGroup ORDER BY iMap_Type"_s, u',',
                    u' ');
    }
    QString buttons() const
    {
        QString usable;
        for (int i = 0; i < 3; ++i)
            usable += Driver::usable(u"Cmd_EmapGroup_%1"_s.arg(i)) ? u'1' : u'0';
        return usable;
    }
};

} // namespace

TEST_F(EMapWindow, MapsAreAddedNamedMovedRemovedAndSaved)
{
    for (const auto& [key, usable] :
         {std::pair(u"MainMap"_s, u"100"_s), std::pair(u"S1"_s, u"100"_s), std::pair(u"C_1_1"_s, u"000"_s)}) {
        choose(key);
        EXPECT_EQ(buttons(), usable) << key.toStdString();
    }
    choose(u"MainMap"_s);
    name(u"  "_s, 0);
    name(u"North"_s, 0);
    name(u"Site"_s, 0);
    choose(u"G1"_s);
    EXPECT_EQ(buttons(), u"011"_s);
    name(u"Site"_s, 1);
    name(u"Yard"_s, 1);
    const QStringList told{GetLangString(698), GetLangString(141), GetLangString(726)};
    EXPECT_EQ(boxes, told);
    choose(u"S1"_s);
    name(u"Hall"_s, 0);
    choose(u"S1"_s);
    QTest::keyClick(Driver::find(u"TreeView_Emap"_s), Qt::Key_X, Qt::ControlModifier);
    choose(u"C_1_1"_s);
    QTest::keyClick(Driver::find(u"TreeView_Emap"_s), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Driver::find<QLabel>(u"lbRefused"_s)->text(), GetLangString(1264));
    choose(u"G1"_s);
    QTest::keyClick(Driver::find(u"TreeView_Emap"_s), Qt::Key_V, Qt::ControlModifier);
    choose(u"C_1_2"_s);
    step(u"lbMoveTo"_s, [] { Driver::click(u"lbMoveTo"_s); });
    step(u"treePlaces"_s, [] {
        auto* places = Driver::find<QTreeView>(u"treePlaces"_s);
        EXPECT_FALSE(Driver::usable(u"lbMove"_s));
        const QModelIndexList found = places->model()->match(places->model()->index(0, 0), EMapTreeModel::kKeyRole,
                                                             u"T2"_s, 1, Qt::MatchExactly | Qt::MatchRecursive);
        QTest::mouseClick(places->viewport(), Qt::LeftButton, {}, places->visualRect(found.at(0)).center());
        Driver::click(u"lbMove"_s);
    });
    driver.run();
    Driver::click(u"lbEmapApply_0"_s);
    EXPECT_EQ(maps(), u"MainMap, Yard,MainMap North,Yard Hall,S1"_s);
    EXPECT_EQ(row(u"SELECT sParent FROM EMapIcon WHERE iChannel=2"_s), u"Hall"_s);
    EXPECT_FALSE(Driver::usable(u"lbEmapApply_0"_s));

    answers = {MsgResult::No, MsgResult::Yes, MsgResult::Yes};
    choose(u"G1"_s);
    Driver::click(u"Cmd_EmapGroup_2"_s);
    EXPECT_FALSE(Driver::usable(u"lbEmapApply_0"_s));
    Driver::click(u"Cmd_EmapGroup_2"_s);
    choose(u"T2"_s);
    Driver::click(u"Cmd_EmapGroup_2"_s);
    EXPECT_EQ(station->emap.edit.size(), 2U);
    Driver::click(u"lbEmapApply_1"_s);
    EXPECT_EQ(station->emap.edit.size(), 4U) << "maps and icons come back together";
    EXPECT_EQ(station->emap.iconsEdit[0].channels[1].sParent, u"Hall"_s);
}

TEST_F(EMapWindow, TheFilterKeepsWhatMatchesWithItsSurroundings)
{
    auto* tree = Driver::find<QTreeView>(u"TreeView_Emap"_s);
    Driver::type(u"txtTreeFilter"_s, u"C2"_s);
    const QModelIndex root = tree->model()->index(0, 0);
    EXPECT_EQ(tree->model()->rowCount(root), 1);
    EXPECT_EQ(tree->model()->index(0, 0, root).data(), u"c2"_s);
    Driver::type(u"txtTreeFilter"_s, u"nothing"_s);
    EXPECT_TRUE(Driver::usable(u"lbNoMatch"_s));
    Driver::type(u"txtTreeFilter"_s, {});
    EXPECT_EQ(tree->model()->rowCount(tree->model()->index(0, 0)), 3);
}
