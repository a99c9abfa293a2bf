#pragma once

#include "emap/EMapTreeModel.h"

#include <QSortFilterProxyModel>
#include <QTreeView>
#include <functional>

// The tree model with the icons of its nodes, filtered by their texts: what matches stands with all that is above and
// below it. With a rule only nodes it accepts may be chosen, and others stand only above them.
class EMapTreeFilter final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    using Rule = std::function<bool(const QString& key)>;
    EMapTreeFilter(QAbstractItemModel* model, QObject* parent, Rule rule = {});

    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    Rule m_rule;
};

// A view of it in which recorders' maps and cameras are dragged. The pointer shows whether they may be dropped.
class EMapTree : public QTreeView
{
    Q_OBJECT

public:
    explicit EMapTree(QWidget* parent = nullptr);

    void showModel(EMapTreeModel& model); // through a filter of its own
    EMapTreeFilter* filter() const { return m_filter; }
    QString currentKey() const; // empty: none
    QStringList chosenKeys() const;
    void choose(const QString& key); // the root where there is no such node

signals:
    // A drag is over a node that refuses it (message number), or no longer (0).
    void refused(int message);

protected:
    void startDrag(Qt::DropActions actions) override;
    void dragMoveEvent(QDragMoveEvent* event) override;

private:
    EMapTreeModel* m_model = nullptr;
    EMapTreeFilter* m_filter = nullptr;
};
