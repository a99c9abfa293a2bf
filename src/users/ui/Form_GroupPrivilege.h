#pragma once

#include "look/widgets/DialogFrame.h"
#include "users/UserModels.h"

#include <functional>

class QCheckBox;
namespace Ui {
class Form_GroupPrivilege;
}

// A group's rights: frame 0 its own five and the list of recorders, frame 1 its rights on one recorder's channels.
class Form_GroupPrivilege : public DialogFrame
{
    Q_OBJECT
public:
    // `save` writes everything that is marked.
    Form_GroupPrivilege(GroupSet& groups, const UserSet& users, const RecorderSet& recorders,
                        std::function<void()> save, QWidget* parent);
    ~Form_GroupPrivilege() override;

    void SetGroupPrivilege(int group); // group index from 0
    void LoadFrame(int frame);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpGroupFrame();
    void setUpChannelFrame();
    void Grid_ChannelPrivilege_Draw(int slot);
    void lbGroupPrivilege_Click();
    void lbNVRPrivilege_Click();
    void openRecorder(int slot);
    void leaveFrame();
    GroupPrivilegeRecord ticked();
    bool changed(); // since the frame was opened
    QModelIndexList chosenCells() const;
    GroupPrivilegeRecord& group();

    GroupSet& m_groups;
    const UserSet& m_users;
    const RecorderSet& m_recorders;
    std::function<void()> m_save;
    std::unique_ptr<Ui::Form_GroupPrivilege> m_ui;
    std::array<QCheckBox*, 5> Chk_GroupPrivilege; // Setting, Export, Live, Live_all, SVDControl
    GroupRecorderModel* m_nvrs;
    std::unique_ptr<ChannelRightsModel> m_channels;
    int m_group = 0;
    int m_slot = 0;
    int m_frame = 0;
    QString m_before; // rights on the channels when frame 1 was opened
};
