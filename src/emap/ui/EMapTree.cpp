#include "emap/ui/EMapTree.h"

#include "app/log/Module_Log.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/tables/Tables.h"
#include "support/Conversions.h"

#include <QDrag>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kLevelIcons{"emap"_L1, "folder"_L1, "nvr"_L1, "picture"_L1, "camera"_L1};
constexpr int kDragSide = 28;

// A plate with a sign: what the pointer carries where a drop is allowed or forbidden.
QPixmap DragSign(QLatin1StringView icon, QLatin1StringView token, qreal ratio)
{
    QPixmap sign(QSize(kDragSide, kDragSide) * ratio);
    sign.setDevicePixelRatio(ratio);
    sign.fill(Qt::transparent);
    QPainter painter(&sign);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Token(token), 1.5));
    painter.setBrush(Token("surface"_L1));
    painter.drawEllipse(QRectF(1, 1, kDragSide - 2, kDragSide - 2));
    const int margin = (kDragSide - kIconSize) / 2;
    painter.drawPixmap(margin, margin, IconPixmap(icon, QSize(kIconSize, kIconSize), Token(token), ratio));
    return sign;
}

} // namespace

EMapTreeFilter::EMapTreeFilter(QAbstractItemModel* model, QObject* parent, Rule rule)
    : QSortFilterProxyModel(parent)
    , m_rule(std::move(rule))
{
    setFilterCaseSensitivity(Qt::CaseInsensitive);
    setRecursiveFilteringEnabled(true);
    setAutoAcceptChildRows(!m_rule);
    setSourceModel(model);
}

QVariant EMapTreeFilter::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DecorationRole)
        return Icon(At(kLevelIcons, index.data(EMapTreeModel::kLevelRole).toInt()));
    if (role == Qt::ForegroundRole && index.data(EMapTreeModel::kCutRole).toBool())
        return Token("disabled"_L1);
    return QSortFilterProxyModel::data(index, role);
}

Qt::ItemFlags EMapTreeFilter::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QSortFilterProxyModel::flags(index);
    return m_rule && !m_rule(index.data(EMapTreeModel::kKeyRole).toString()) ? flags & ~Qt::ItemIsSelectable : flags;
}

bool EMapTreeFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    return QSortFilterProxyModel::filterAcceptsRow(row, parent) &&
           (!m_rule || m_rule(sourceModel()->index(row, 0, parent).data(EMapTreeModel::kKeyRole).toString()));
}

EMapTree::EMapTree(QWidget* parent)
    : QTreeView(parent)
{
    StyleTree(this);
    setHeaderHidden(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(DragDrop);
    setDragDropOverwriteMode(true); // onto nodes, never between them
    setDefaultDropAction(Qt::MoveAction);
}

void EMapTree::showModel(EMapTreeModel& model)
{
    m_model = &model;
    m_filter = new EMapTreeFilter(&model, this);
    setModel(m_filter);
}

QString EMapTree::currentKey() const
{
    return currentIndex().data(EMapTreeModel::kKeyRole).toString();
}

QStringList EMapTree::chosenKeys() const
{
    QStringList keys;
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    for (const QModelIndex& index : chosen)
        keys << index.data(EMapTreeModel::kKeyRole).toString();
    return keys;
}

void EMapTree::choose(const QString& key)
{
    QModelIndex place = m_filter->mapFromSource(m_model->indexOf(key));
    if (!place.isValid())
        place = m_filter->index(0, 0);
    setCurrentIndex(place);
    scrollTo(place);
}

void EMapTree::startDrag(Qt::DropActions)
{
    Trapped("Form_Initial - TreeView_Emap_MouseMove", [&] {
        QModelIndexList dragged = selectionModel()->selectedIndexes();
        dragged.removeIf([](const QModelIndex& index) { return !index.flags().testFlag(Qt::ItemIsDragEnabled); });
        if (dragged.isEmpty())
            return;
        auto* drag = new QDrag(this);
        drag->setMimeData(m_filter->mimeData(dragged));
        drag->setDragCursor(DragSign("stop"_L1, "bad"_L1, devicePixelRatioF()), Qt::IgnoreAction);
        drag->setDragCursor(DragSign("move"_L1, "accent"_L1, devicePixelRatioF()), Qt::MoveAction);
        emit refused(0);
        drag->exec(Qt::MoveAction);
    });
}

void EMapTree::dragMoveEvent(QDragMoveEvent* event)
{
    QTreeView::dragMoveEvent(event);
    Trapped("Form_Initial - TreeView_Emap_DragOver", [&] {
        const QStringList keys = EMapTreeModel::keysOf(event->mimeData());
        const QModelIndex over = indexAt(event->position().toPoint());
        const QString target = over.data(EMapTreeModel::kKeyRole).toString();
        emit refused(keys.isEmpty() || !over.isValid() ? 0 : m_model->refusal(keys, target));
    });
}
