#pragma once

#include "look/widgets/DialogFrame.h"
#include "users/UserModels.h"

#include <functional>

class QCheckBox;
class QLabel;
class QSortFilterProxyModel;
class QStackedWidget;
class QStandardItemModel;
class QTableView;

// A group's rights: frame 0 its own five and the list of recorders, frame 1 its rights on one recorder's channels.
class Form_GroupPrivilege : public DialogFrame
{
    Q_OBJECT
public:
    // `save` writes everything that is marked.
    Form_GroupPrivilege(GroupSet& groups, const UserSet& users, const RecorderSet& recorders,
                        std::function<void()> save, QWidget* parent);

    void SetGroupPrivilege(int group); // group index from 0
    void LoadFrame(int frame);
    static constexpr int NVREdit = 3; // column of Grid_NVRList

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildGroupFrame();
    QWidget* buildChannelFrame();
    void Grid_NVRList_Draw();
    void Grid_ChannelPrivilege_Draw(int slot);
    void lbGroupPrivilege_Click();
    void lbNVRPrivilege_Click();
    void openRecorder(int row);
    void leaveFrame();
    GroupPrivilegeRecord ticked();
    bool changed(); // since the frame was opened
    QModelIndexList chosenCells() const;
    GroupPrivilegeRecord& group();

    GroupSet& m_groups;
    const UserSet& m_users;
    const RecorderSet& m_recorders;
    std::function<void()> m_save;
    QStackedWidget* m_frames;
    std::array<QCheckBox*, 5> Chk_GroupPrivilege{}; // Setting, Export, Live, Live_all, SVDControl
    QTableView* Grid_NVRList = nullptr;
    QStackedWidget* m_nvrStack = nullptr;
    QStandardItemModel* m_nvrs;
    QCheckBox* Chk_NVRPrivilege = nullptr;
    QLabel* m_hint = nullptr;
    QTableView* Grid_ChannelPrivilege = nullptr;
    QSortFilterProxyModel* m_proxy;
    std::unique_ptr<ChannelRightsModel> m_channels;
    std::array<QPushButton*, 2> m_bulk{};
    QPushButton* m_cancel;
    QPushButton* m_apply;
    int m_group = 0;
    int m_slot = 0;
    int m_frame = 0;
    QString m_before; // rights on the channels when frame 1 was opened
};
