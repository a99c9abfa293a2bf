#pragma once

#include "emap/EMapEdit.h"

#include <QAbstractItemModel>

// The tree of maps and cameras, and what may be dragged where in it. A change of the edit copies that moves or renames
// nodes is told as such, so that views keep what is open and chosen; others are a reset.
class EMapTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    static constexpr int kKeyRole = Qt::UserRole;       // the node's key
    static constexpr int kLevelRole = Qt::UserRole + 1; // kMapRoot … kCameraLevel
    static constexpr int kCutRole = Qt::UserRole + 2;   // whether the node is cut

    EMapTreeModel(EMapEdit& edit, const RecorderSet& recorders, QObject* parent = nullptr);

    void BuildEmapTreeView(); // anew from the edit copies, after what no step of the edit has done
    QModelIndex indexOf(const QString& key) const;
    // Nodes that are cut, until they are moved or others are cut.
    void setCut(const QStringList& keys);
    const QStringList& cut() const { return m_cut; }
    // Why nodes may not be moved below a target: a message number, 0 when they may.
    int refusal(const QStringList& keys, const QString& target) const;
    // Moves them as one step; false when refused.
    bool move(const QStringList& keys, const QString& target);
    static QStringList keysOf(const QMimeData* data); // empty for data of something else

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    struct Node
    {
        QString key;
        QString text;
        qint16 level = 0;
        int parent = -1; // place in the list; -1 above the root
        int row = 0;
        std::vector<int> children; // in the order of the list
    };
    std::vector<Node> nodes() const;
    void follow();
    bool sameNodes(const std::vector<Node>& next) const;
    void moveTo(int node, int parent);
    QModelIndex indexOf(int node) const;

    EMapEdit& m_edit;
    const RecorderSet& m_recorders;
    std::vector<Node> m_nodes; // the root, the maps in the order of their list, the cameras
    QStringList m_cut;
};
