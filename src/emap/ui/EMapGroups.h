#pragma once

#include "emap/EMapMembers.h"
#include "emap/EMapTreeModel.h"

#include <QWidget>
#include <memory>

namespace Ui {
class EMapGroups;
}

// Tab 0 of the E-Map page: the tree of maps and cameras, the members of the chosen node and its name.
class EMapGroups : public QWidget
{
    Q_OBJECT

public:
    EMapGroups(EMapEdit& edit, const RecorderSet& recorders, QWidget* parent = nullptr);
    ~EMapGroups() override;

    // Builds the tree anew; the node chosen before stays chosen, at first the root is.
    void open();
    void changeLanguage();
    EMapTreeModel& model() { return *m_model; }
    QString currentKey() const { return m_key; }
    void CheckNodePosition(const QString& key); // chooses a node, the root where it is not there

public slots:
    void Cmd_EmapGroup_Click(int index); // 0 add, 1 modify, 2 remove

signals:
    void mapWanted(const QString& key); // this node's map is to be seen

private:
    void wire();
    void nodeChosen();
    void Check_EmapGroupInfo();
    void rebuilt();
    void showFilter();
    void add();
    void modify();
    void removeMap();
    bool takesName(const QString& name, int self);
    void cut();
    void paste();
    void moveTo();
    bool moveChosen(const QStringList& keys, const QString& target);
    void showMenu(const QPoint& place);
    void tellRefusal(int message);
    QStringList movable() const;

    EMapEdit& m_edit;
    std::unique_ptr<Ui::EMapGroups> m_ui;
    EMapTreeModel* m_model;
    EMapMembers* m_members;
    QString m_key;
};
