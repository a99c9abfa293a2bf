#include "emap/EMapMembers.h"
#include "emap/EMapTreeModel.h"
#include "support/Conversions.h"
#include "tests/TestMain.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Two recorders with three cameras each; a group, and a sub-map of the first recorder.
class EMap : public ::testing::Test
{
protected:
    EMap()
    {
        for (const int slot : {0, 1}) {
            SVRRecord& recorder = At(recorders->SVRWorkList, slot);
            recorder.sSVR_Name = slot == 0 ? u"North"_s : u"South"_s;
            recorder.sSVR_IP = u"192.168.0.1"_s;
            recorder.iSVR_Maxchannel = 3;
            for (std::size_t channel = 0; channel < 4; ++channel) // the last one beyond what the recorder has
                recorder.channels[channel].sSub_CH_Name = u"c%1"_s.arg(channel + 1);
            AddRecorderMap(maps, slot, recorder.sSVR_Name);
        }
        AddMap(maps, 0, u"Site"_s);
        AddMap(maps, 1, u"Cellar"_s);
        for (const auto& [map, channel] : {std::pair(u"North"_s, 0), std::pair(u"Cellar"_s, 1)})
            At(maps.iconsEdit[0].channels, channel).sParent = map;
        maps.stored = maps.edit;
        for (EMapGroupRow& map : maps.edit)
            map.bChanged = false;
        maps.iconsEdit[0].bChanged = maps.iconsEdit[1].bChanged = false;
        model.BuildEmapTreeView();
    }

    // "MainMap(G3 S1(T4(C_1_2) C_1_1) …)"
    QString tree(const QModelIndex& at = {}) const
    {
        QStringList nodes;
        for (int row = 0; row < model.rowCount(at); ++row) {
            const QModelIndex node = model.index(row, 0, at);
            const QString below = tree(node);
            nodes << node.data(EMapTreeModel::kKeyRole).toString() + (below.isEmpty() ? below : u'(' + below + u')');
        }
        return nodes.join(u' ');
    }
    bool drop(const QString& what, const QString& target)
    {
        const std::unique_ptr<QMimeData> data(model.mimeData({model.indexOf(what)}));
        return model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, model.indexOf(target));
    }
    QString members(const QString& key)
    {
        list.ListView_Emap_Set(key);
        QStringList keys;
        for (int row = 0; row < list.rowCount(); ++row)
            keys << list.index(row, 0).data(EMapMembers::kKeyRole).toString();
        return keys.join(u' ');
    }

    EMapSet maps;
    std::unique_ptr<RecorderSet> recorders = std::make_unique<RecorderSet>();
    EMapEdit edit{maps};
    EMapTreeModel model{edit, *recorders};
    EMapMembers list{maps, *recorders};
    QAbstractItemModelTester rules{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

constexpr auto kAtFirst = u"MainMap(S1(T2(C_1_2) C_1_1) S2 G1 C_1_3 C_2_1 C_2_2 C_2_3)";

} // namespace

TEST_F(EMap, TheTreeTakesWhatMayBeDroppedAndSaysWhyNot)
{
    EXPECT_EQ(tree(), QString::fromUtf16(kAtFirst));
    static constexpr int kGroupOnly = 1264;
    static constexpr int kOwnOnly = 1265;
    static constexpr int kThere = 1266;
    static constexpr int kStays = 1267;
    const QList<std::tuple<QString, QString, int>> refused{
        {u"S1"_s, u"S2"_s, kGroupOnly},    {u"S1"_s, u"T2"_s, kGroupOnly},  {u"S1"_s, u"C_1_1"_s, kGroupOnly},
        {u"S1"_s, u"MainMap"_s, kThere},   {u"G1"_s, u"MainMap"_s, kStays}, {u"T2"_s, u"S2"_s, kStays},
        {u"MainMap"_s, u"G1"_s, kStays},   {u"C_1_1"_s, u"S1"_s, kThere},   {u"C_1_1"_s, u"S2"_s, kOwnOnly},
        {u"C_2_1"_s, u"T2"_s, kOwnOnly},   {u"C_1_1"_s, u"G1"_s, kOwnOnly}, {u"C_1_1"_s, u"C_1_2"_s, kOwnOnly},
        {u"C_1_3"_s, u"MainMap"_s, kThere}};
    for (const auto& [what, target, why] : refused) {
        EXPECT_EQ(model.refusal({what}, target), why) << what.toStdString() << " to " << target.toStdString();
        EXPECT_FALSE(drop(what, target));
    }
    EXPECT_FALSE(edit.isMarked());
    EXPECT_FALSE(model.dropMimeData(std::make_unique<QMimeData>().get(), Qt::MoveAction, -1, -1, model.index(0, 0)));

    maps.iconsEdit[0].channels[0].dMapX = maps.iconsEdit[0].channels[0].dInfoY = 0.5;
    EXPECT_TRUE(drop(u"S1"_s, u"G1"_s));
    EXPECT_TRUE(drop(u"C_1_1"_s, u"T2"_s));
    EXPECT_TRUE(drop(u"C_1_2"_s, u"MainMap"_s));
    EXPECT_EQ(maps.iconsEdit[0].channels[0], (EMapIcon{u"Cellar"_s}));
    EXPECT_EQ(tree(), u"MainMap(S2 G1(S1(T2(C_1_1))) C_1_2 C_1_3 C_2_1 C_2_2 C_2_3)"_s);
    EXPECT_EQ(members(u"MainMap"_s), u"S2 G1"_s);
    EXPECT_EQ(members(u"G1"_s), u"S1"_s);
    EXPECT_EQ(members(u"S1"_s), u"T2"_s);
    EXPECT_EQ(members(u"T2"_s), u"C_1_1"_s);
    EXPECT_TRUE(model.move({u"C_1_1"_s, u"C_1_3"_s}, u"S1"_s)) << "several at once";
    while (edit.steps().canUndo())
        edit.steps().undo();
    EXPECT_EQ(tree(), QString::fromUtf16(kAtFirst));

    int told = 0;
    EMapSet others;
    {
        EMapEdit closing(others);
        QObject::connect(&closing, &EMapEdit::changed, &model, [&] { ++told; });
        closing.step([](EMapSet& set) { AddMap(set, 0, u"Attic"_s); });
        EXPECT_EQ(std::exchange(told, 0), 1);
    }
    EXPECT_EQ(told, 0) << "whoever shows the maps may be gone when the steps go";
    EXPECT_FALSE(edit.isMarked());
    edit.steps().redo();
    EXPECT_EQ(tree(), u"MainMap(S2 G1(S1(T2(C_1_2) C_1_1)) C_1_3 C_2_1 C_2_2 C_2_3)"_s);
}

TEST_F(EMap, NamesAreGivenOnceAndWhatNamesAMapFollowsIt)
{
    for (const auto& [name, message] : {std::pair(u""_s, 698), std::pair(u"MainMap"_s, 141), std::pair(u"Site"_s, 141),
                                        std::pair(u"South"_s, 141), std::pair(u"a:--\"'b"_s, 0)})
        EXPECT_EQ(NameRefusal(maps, name), message) << name.toStdString();
    EXPECT_EQ(NameRefusal(maps, u"Site"_s, 3), 0) << "its own";

    drop(u"S2"_s, u"G1"_s);
    edit.step([](EMapSet& set) { RenameMap(set, NodeOf(set, u"G1"_s).map, u"Yard"_s); });
    edit.step([](EMapSet& set) { RenameMap(set, NodeOf(set, u"T2"_s).map, u"Vault"_s); });
    EXPECT_EQ(tree(), u"MainMap(S1(T2(C_1_2) C_1_1) G1(S2) C_1_3 C_2_1 C_2_2 C_2_3)"_s);
    EXPECT_EQ(maps.iconsEdit[0].channels[1].sParent, u"Vault"_s);
    // The recorder takes the name of its own sub-map, which gives way; cameras stay where they are.
    AddMap(maps, 1, u"Vault 2"_s);
    RenameRecorderMap(maps, 0, u"Vault"_s);
    model.BuildEmapTreeView();
    EXPECT_EQ(tree(), u"MainMap(S1(T2(C_1_2) T3 C_1_1) G1(S2) C_1_3 C_2_1 C_2_2 C_2_3)"_s);
    EXPECT_EQ(maps.iconsEdit[0].channels[1].sParent, u"Vault 3"_s);

    edit.step([](EMapSet& set) { RemoveMap(set, NodeOf(set, u"T2"_s).map); });
    edit.step([](EMapSet& set) { RemoveMap(set, NodeOf(set, u"G1"_s).map); });
    EXPECT_EQ(tree(), u"MainMap(S1(T3 C_1_1) S2 C_1_2 C_1_3 C_2_1 C_2_2 C_2_3)"_s);
    EXPECT_EQ(maps.edit[2].sParent, u"MainMap"_s);
}

TEST_F(EMap, StrangeParentsStandUnderTheRoot)
{
    AddMap(maps, 1, u"Odd"_s);
    for (const QString& parent : {u"S9"_s, u"S99999"_s, u"T2"_s, u"S"_s, u"Odd"_s}) {
        maps.edit.back().sParent = parent;
        maps.edit[3].sParent = u"Odd"_s; // a group whose parent is its own neighbour
        maps.edit[1].sParent = u"gone"_s;
        model.BuildEmapTreeView();
        EXPECT_EQ(tree(), u"MainMap(S1(T2(C_1_2) C_1_1) S2 G1 T3 C_1_3 C_2_1 C_2_2 C_2_3)"_s) << parent.toStdString();
    }
    for (const QString& key : {u""_s, u"C_1"_s, u"C_0_1"_s, u"C_17_1"_s, u"C_1_65"_s, u"X1"_s, u"S3"_s, u"C_1_1_1"_s})
        EXPECT_EQ(NodeOf(maps, key).level, -1) << key.toStdString();
}
