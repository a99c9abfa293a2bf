#pragma once

#include "emap/EMapEdit.h"

#include <QWidget>
#include <functional>
#include <memory>

class EMapGroups;
namespace Ui {
class EMapConfig;
}

// What the page works on. `save` writes everything that is marked, `revert` puts the maps back as they are stored.
struct EMapContext
{
    EMapSet& maps;
    const RecorderSet& recorders;
    std::function<void()> save;
    std::function<void()> revert;
};

// Page 6: the maps and what stands on them, with Apply and Cancel for both tabs.
class EMapConfig : public QWidget
{
    Q_OBJECT

public:
    explicit EMapConfig(EMapContext context, QWidget* parent = nullptr);
    ~EMapConfig() override;

    void OpenEMapConfigFrame(); // tab 0 over what the edit copies hold now
    void changeLanguage();
    bool hasChanges() const { return m_edit.isMarked(); }

public slots:
    void lbEmapApply_Click(int index); // 0 Apply, 1 Cancel

signals:
    void changesChanged();

private:
    void showChanges();

    EMapContext m_context;
    EMapEdit m_edit;
    std::unique_ptr<Ui::EMapConfig> m_ui;
    EMapGroups* m_groups;
};
