#include "emap/EMapTreeModel.h"

#include "app/language/Languages.h"
#include "support/Conversions.h"

#include <QMimeData>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kMimeType("application/x-rigging-desk-emap");
constexpr int kMainMap = 437;
constexpr int kMostMoves = 64; // beyond them a reset is quicker

} // namespace

EMapTreeModel::EMapTreeModel(EMapEdit& edit, const RecorderSet& recorders, QObject* parent)
    : QAbstractItemModel(parent)
    , m_edit(edit)
    , m_recorders(recorders)
    , m_nodes(nodes())
{
    connect(&m_edit, &EMapEdit::changed, this, &EMapTreeModel::follow);
}

std::vector<EMapTreeModel::Node> EMapTreeModel::nodes() const
{
    const EMapSet& set = m_edit.set();
    const EMapPlaces places(set.edit);
    std::vector<Node> list;
    std::vector<int> nodeOfMap(set.edit.size(), 0);
    list.reserve(set.edit.size());
    list.push_back({kMainMapName, GetLangString(kMainMap), kMapRoot, -1, 0, {}});
    std::vector<int> mapOfNode{0};
    for (std::size_t i = 1; i < set.edit.size(); ++i) {
        const EMapGroupRow& map = set.edit[i];
        if (map.iMap_Type < kMapGroup || map.iMap_Type > kMapSub)
            continue;
        nodeOfMap[i] = static_cast<int>(list.size());
        mapOfNode.push_back(static_cast<int>(i));
        list.push_back({MapKey(map), map.sName, map.iMap_Type, 0, 0, {}});
    }
    for (std::size_t i = 1; i < list.size(); ++i)
        list[i].parent = At(nodeOfMap, places.parentOf(mapOfNode[i]));
    ForEachChannel([&](int slot, int channel) {
        if (!IsCamera(m_recorders, slot, channel))
            return;
        const int map = places.mapOf(slot, At(At(set.iconsEdit, slot).channels, channel));
        list.push_back({CameraKey(slot, channel),
                        At(At(m_recorders.SVRWorkList, slot).channels, channel).sSub_CH_Name,
                        kCameraLevel,
                        map < 0 ? 0 : At(nodeOfMap, map),
                        0,
                        {}});
    });
    for (std::size_t i = 1; i < list.size(); ++i) {
        std::vector<int>& children = At(list, list[i].parent).children;
        list[i].row = static_cast<int>(children.size());
        children.push_back(static_cast<int>(i));
    }
    return list;
}

void EMapTreeModel::BuildEmapTreeView()
{
    beginResetModel();
    m_nodes = nodes();
    m_cut.clear();
    endResetModel();
}

bool EMapTreeModel::sameNodes(const std::vector<Node>& next) const
{
    return std::equal(next.begin(), next.end(), m_nodes.begin(), m_nodes.end(),
                      [](const Node& a, const Node& b) { return a.key == b.key; });
}

void EMapTreeModel::follow()
{
    std::vector<Node> next = nodes();
    std::vector<int> moved;
    const bool same = sameNodes(next);
    for (std::size_t i = 1; same && i < next.size(); ++i) {
        if (next[i].parent != m_nodes[i].parent)
            moved.push_back(static_cast<int>(i));
    }
    if (!same || moved.size() > kMostMoves) {
        beginResetModel();
        m_nodes = std::move(next);
        m_cut.clear();
        endResetModel();
        return;
    }
    for (const int node : moved)
        moveTo(node, At(next, node).parent);
    for (std::size_t i = 0; i < next.size(); ++i) {
        if (m_nodes[i].text == next[i].text)
            continue;
        m_nodes[i].text = next[i].text;
        const QModelIndex place = indexOf(static_cast<int>(i));
        emit dataChanged(place, place);
    }
    if (!moved.empty())
        setCut({});
}

// Maps and cameras keep their order in the list; below another parent a node stands where this order puts it.
void EMapTreeModel::moveTo(int node, int parent)
{
    Node& moving = At(m_nodes, node);
    std::vector<int>& from = At(m_nodes, moving.parent).children;
    std::vector<int>& to = At(m_nodes, parent).children;
    const auto place = std::lower_bound(to.begin(), to.end(), node) - to.begin();
    beginMoveRows(indexOf(moving.parent), moving.row, moving.row, indexOf(parent), static_cast<int>(place));
    from.erase(from.begin() + moving.row);
    to.insert(to.begin() + place, node);
    moving.parent = parent;
    for (const std::vector<int>* children : {&from, &to}) {
        for (std::size_t row = 0; row < children->size(); ++row)
            At(m_nodes, (*children)[row]).row = static_cast<int>(row);
    }
    endMoveRows();
}

QModelIndex EMapTreeModel::indexOf(int node) const
{
    return node < 0 ? QModelIndex() : createIndex(At(m_nodes, node).row, 0, static_cast<quintptr>(node));
}

QModelIndex EMapTreeModel::indexOf(const QString& key) const
{
    const auto found =
        std::find_if(m_nodes.begin(), m_nodes.end(), [&key](const Node& node) { return node.key == key; });
    return found == m_nodes.end() ? QModelIndex() : indexOf(static_cast<int>(found - m_nodes.begin()));
}

QModelIndex EMapTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return parent.isValid() ? indexOf(At(At(m_nodes, static_cast<int>(parent.internalId())).children, row))
                            : indexOf(0);
}

QModelIndex EMapTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOf(At(m_nodes, static_cast<int>(child.internalId())).parent) : QModelIndex();
}

int EMapTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? static_cast<int>(At(m_nodes, static_cast<int>(parent.internalId())).children.size()) : 1;
}

int EMapTreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant EMapTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const Node& node = At(m_nodes, static_cast<int>(index.internalId()));
    switch (role) {
    case Qt::DisplayRole:
        return node.text;
    case Qt::ToolTipRole: { // cameras of several recorders may have one name
        const EMapNode camera = NodeOf(m_edit.set(), node.key);
        return camera.isCamera() ? ChannelLabel(m_recorders, camera.slot, camera.channel) : QVariant();
    }
    case kKeyRole:
        return node.key;
    case kLevelRole:
        return node.level;
    case kCutRole:
        return m_cut.contains(node.key);
    default:
        return {};
    }
}

Qt::ItemFlags EMapTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Node& node = At(m_nodes, static_cast<int>(index.internalId()));
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (DragRefusal({node.level}) == 0)
        flags |= Qt::ItemIsDragEnabled;
    if (node.level != kCameraLevel)
        flags |= Qt::ItemIsDropEnabled;
    return flags;
}

void EMapTreeModel::setCut(const QStringList& keys)
{
    const QStringList before = std::exchange(m_cut, keys);
    for (const QString& key : before + keys) {
        if (const QModelIndex place = indexOf(key); place.isValid())
            emit dataChanged(place, place);
    }
}

int EMapTreeModel::refusal(const QStringList& keys, const QString& target) const
{
    const EMapNode above = NodeOf(m_edit.set(), target);
    for (const QString& key : keys) {
        if (const int message = MoveRefusal(m_edit.set(), NodeOf(m_edit.set(), key), above))
            return message;
    }
    return 0;
}

bool EMapTreeModel::move(const QStringList& keys, const QString& target)
{
    if (keys.isEmpty() || refusal(keys, target) != 0)
        return false;
    return m_edit.step([&](EMapSet& set) {
        for (const QString& key : keys)
            MoveNode(set, NodeOf(set, key), NodeOf(set, target));
    });
}

QStringList EMapTreeModel::mimeTypes() const
{
    return {kMimeType};
}

QMimeData* EMapTreeModel::mimeData(const QModelIndexList& indexes) const
{
    QStringList keys;
    for (const QModelIndex& index : indexes)
        keys << index.data(kKeyRole).toString();
    auto* data = new QMimeData;
    data->setData(kMimeType, keys.join(u'\n').toUtf8());
    return data;
}

QStringList EMapTreeModel::keysOf(const QMimeData* data)
{
    return QString::fromUtf8(data->data(kMimeType)).split(u'\n', Qt::SkipEmptyParts);
}

bool EMapTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                    const QModelIndex& parent) const
{
    const QStringList keys = keysOf(data);
    return action == Qt::MoveAction && !keys.isEmpty() && parent.isValid() &&
           refusal(keys, parent.data(kKeyRole).toString()) == 0;
}

bool EMapTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                 const QModelIndex& parent)
{
    return canDropMimeData(data, action, row, column, parent) && move(keysOf(data), parent.data(kKeyRole).toString());
}
