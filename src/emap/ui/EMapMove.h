#pragma once

#include "look/widgets/DialogFrame.h"

#include <QStringList>
#include <memory>

class EMapTreeFilter;
class EMapTreeModel;
class QPushButton;
namespace Ui {
class EMapMove;
}

// Asks where nodes of the tree are to be moved; only places that take them can be chosen.
class EMapMove : public DialogFrame
{
    Q_OBJECT

public:
    EMapMove(EMapTreeModel& model, const QStringList& keys, QWidget* parent);
    ~EMapMove() override;

    QString target() const; // key of the chosen place

private:
    std::unique_ptr<Ui::EMapMove> m_ui;
    EMapTreeFilter* m_places;
    QPushButton* m_move;
};
