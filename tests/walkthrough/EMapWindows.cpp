#include "tests/walkthrough/EMapWindows.h"

#include "app/language/Languages.h"
#include "emap/EMapEdit.h"
#include "emap/EMapTreeModel.h"
#include "emap/ui/EMapMove.h"

#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kEMap = 6;

void ChooseNode(const QString& key)
{
    auto* tree = Driver::find<QTreeView>(u"TreeView_Emap"_s);
    const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), EMapTreeModel::kKeyRole, key, 1,
                                                       Qt::MatchExactly | Qt::MatchRecursive);
    tree->setCurrentIndex(found.at(0));
}

} // namespace

void EMapWindows(WindowTour& tour)
{
    Station& station = tour.station();
    const auto kept = std::make_unique<EMapSet>(station.emap);
    EMapSet& maps = station.emap;
    for (const int slot : {0, 1})
        AddRecorderMap(maps, slot, station.recorders.SVRWorkList[static_cast<std::size_t>(slot)].sSVR_Name);
    AddMap(maps, 0, u"Warehouse north"_s);
    AddMap(maps, 1, u"Loading yard"_s);
    maps.edit[2].sParent = u"Warehouse north"_s;
    for (std::size_t channel = 0; channel < 10; ++channel)
        maps.iconsEdit[0].channels[channel].sParent = maps.edit[channel < 7 ? 1 : 4].sName;
    tour.pages(u"filled-"_s, {kEMap});
    for (const QString& key : {u"S1"_s, u"G1"_s, u"T2"_s, u"C_1_1"_s}) {
        ChooseNode(key);
        tour.visit(u"emap-"_s + key.left(1), tour.desk());
    }
    EMapEdit edit(maps);
    EMapTreeModel model(edit, station.recorders);
    tour.show(u"emap-move"_s, EMapMove(model, {u"C_1_12"_s}, &tour.desk()));
    station.emap = *kept;
    Driver::click(u"lbMenu_0"_s);
}
