#include "users/ui/Form_GroupPrivilege.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"
#include "users/ui/ui_Form_GroupPrivilege.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <tuple>

using namespace Qt::StringLiterals;

Form_GroupPrivilege::Form_GroupPrivilege(GroupSet& groups, const UserSet& users, const RecorderSet& recorders,
                                         std::function<void()> save, QWidget* parent)
    : DialogFrame(parent)
    , m_groups(groups)
    , m_users(users)
    , m_recorders(recorders)
    , m_save(std::move(save))
    , m_ui(std::make_unique<Ui::Form_GroupPrivilege>())
    , m_nvrs(new GroupRecorderModel(groups, recorders, this))
{
    setObjectName(u"Form_GroupPrivilege"_s);
    m_ui->setupUi(content());
    setFooter(m_ui->footer);
    setUpGroupFrame();
    setUpChannelFrame();
    connect(m_ui->lbGroupPrivilege_1, &QPushButton::clicked, this, &Form_GroupPrivilege::leaveFrame);
    connect(m_ui->lbGroupPrivilege_0, &QPushButton::clicked, this, [this] {
        if (m_frame == 0)
            lbGroupPrivilege_Click();
        else
            lbNVRPrivilege_Click();
    });
    ApplyLanguage(this);
    resize(960, 620);
}

Form_GroupPrivilege::~Form_GroupPrivilege() = default;

void Form_GroupPrivilege::setUpGroupFrame()
{
    Chk_GroupPrivilege = {m_ui->Chk_GroupPrivilege_0, m_ui->Chk_GroupPrivilege_1, m_ui->Chk_GroupPrivilege_2,
                          m_ui->Chk_GroupPrivilege_3, m_ui->Chk_GroupPrivilege_4};
    DeskTable* grid = m_ui->Grid_NVRList;
    grid->setList(m_nvrs);
    grid->whenOpened([this](int slot) { openRecorder(slot); });
    OnKey(grid, Qt::Key_Space, [this, grid] { openRecorder(grid->currentRecord()); });
    connect(grid, &DeskTable::shownChanged, this,
            [this, grid] { m_ui->nvrStack->setCurrentIndex(grid->shownRows() > 0 ? 0 : 1); });
    connect(m_ui->Chk_GroupPrivilege_3, &QCheckBox::toggled, grid, &QWidget::setDisabled);
    m_ui->noRecorder->setIllustration("empty-recorder"_L1);
}

void Form_GroupPrivilege::setUpChannelFrame()
{
    connect(m_ui->Chk_NVRPrivilege_0, &QCheckBox::toggled, this, [this](bool on) {
        if (m_channels)
            m_channels->setAll(on);
    });
    DeskTable* grid = m_ui->Grid_ChannelPrivilege;
    grid->filterBy(m_ui->txtFilter);
    for (const auto& [button, on] : {std::pair{m_ui->btnGrant, true}, {m_ui->btnWithdraw, false}}) {
        connect(button, &QPushButton::clicked, this, [this, on = on] {
            if (m_channels)
                m_channels->give(chosenCells(), on);
        });
    }
    grid->setSelectionBehavior(QAbstractItemView::SelectItems);
    grid->horizontalHeader()->setSectionsClickable(true);
    connect(grid->horizontalHeader(), &QHeaderView::sectionClicked, grid, &QTableView::selectColumn);
    connect(grid, &QTableView::clicked, this, [this, grid](const QModelIndex& index) {
        if (QGuiApplication::keyboardModifiers() != Qt::NoModifier || !m_channels)
            return;
        if (ChannelRightsModel::isRight(index.column()))
            m_channels->flip({index});
        else
            grid->selectRow(index.row());
    });
    grid->installEventFilter(this);
}

GroupPrivilegeRecord& Form_GroupPrivilege::group()
{
    return At(m_groups.edit, m_group);
}

void Form_GroupPrivilege::SetGroupPrivilege(int index)
{
    m_group = index;
    const GroupPrivilegeRecord& record = group();
    const std::array values{record.Setting, record.Export, record.Live, record.Live_all, record.SVDControl};
    for (std::size_t i = 0; i < values.size(); ++i)
        Chk_GroupPrivilege[i]->setChecked(values[i] == 1);
    m_ui->Grid_NVRList->setEnabled(record.Live_all != 1);
    m_nvrs->refill(m_group);
}

void Form_GroupPrivilege::LoadFrame(int frame)
{
    const bool back = m_frame == 1 && frame == 0;
    m_frame = frame;
    m_ui->frames->setCurrentIndex(frame);
    setWindowTitle(GetLangString(frame == 0 ? 837 : 838));
    const SVRRecord& recorder = At(m_recorders.SVRWorkList, m_slot);
    setSubtitle(frame == 0 ? group().Name : group().Name + u" · NVR %1 · "_s.arg(m_slot + 1) + recorder.sSVR_Name);
    m_ui->lbGroupPrivilege_0->setObjectName(frame == 0 ? u"lbGroupPrivilege_0"_s : u"lbNVRPrivilege_0"_s);
    m_ui->lbGroupPrivilege_1->setObjectName(frame == 0 ? u"lbGroupPrivilege_1"_s : u"lbNVRPrivilege_1"_s);
    m_ui->lbGroupPrivilege_0->setEnabled(frame == 0 || m_group != 0);
    if (back)
        m_ui->Grid_NVRList->setFocus();
    else if (frame == 0)
        m_ui->Chk_GroupPrivilege_0->setFocus();
    else
        m_ui->Grid_ChannelPrivilege->setFocus();
}

void Form_GroupPrivilege::openRecorder(int slot)
{
    if (slot < 0)
        return;
    Trapped("Form_GroupPrivilege - Grid_NVRList_Click", [&] {
        m_slot = slot;
        Grid_ChannelPrivilege_Draw(m_slot);
        LoadFrame(1);
        DropSecondClick();
    });
}

void Form_GroupPrivilege::Grid_ChannelPrivilege_Draw(int slot)
{
    auto model =
        std::make_unique<ChannelRightsModel>(m_groups, m_users, At(m_recorders.SVRWorkList, slot), m_group, slot);
    m_ui->Grid_ChannelPrivilege->setList(model.get());
    m_channels = std::move(model);
    m_ui->Chk_NVRPrivilege_0->setChecked(m_channels->rights().all);
    const bool editable = m_channels->editable();
    m_ui->Chk_NVRPrivilege_0->setEnabled(editable);
    m_ui->Grid_ChannelPrivilege->setEnabled(editable);
    m_ui->btnGrant->setEnabled(editable);
    m_ui->btnWithdraw->setEnabled(editable);
    m_ui->lbChannelHint->setText(GetLangString(editable ? 912 : 913));
    m_ui->Grid_ChannelPrivilege->setAccessibleName(GetLangString(Message::kChannelPrivilege) + u". "_s +
                                                   m_ui->lbChannelHint->text());
    m_before = FormCHPrivilege(m_channels->rights(), At(m_recorders.SVRWorkList, slot));
    DeskTable* grid = m_ui->Grid_ChannelPrivilege;
    grid->setCurrentIndex(grid->model()->index(0, ChannelRightsModel::Live));
}

QModelIndexList Form_GroupPrivilege::chosenCells() const
{
    return m_ui->Grid_ChannelPrivilege->selectionModel()->selectedIndexes();
}

// The group with the five rights as they are ticked.
GroupPrivilegeRecord Form_GroupPrivilege::ticked()
{
    GroupPrivilegeRecord record = group();
    qint16* const values[] = {&record.Setting, &record.Export, &record.Live, &record.Live_all, &record.SVDControl};
    for (std::size_t i = 0; i < Chk_GroupPrivilege.size(); ++i)
        *values[i] = Chk_GroupPrivilege[i]->isChecked() ? 1 : 0;
    return record;
}

bool Form_GroupPrivilege::changed()
{
    if (m_frame == 1)
        return m_channels->editable() &&
               FormCHPrivilege(m_channels->rights(), At(m_recorders.SVRWorkList, m_slot)) != m_before;
    const GroupPrivilegeRecord now = ticked();
    const GroupPrivilegeRecord& before = group();
    return std::tie(now.Setting, now.Export, now.Live, now.Live_all, now.SVDControl) !=
           std::tie(before.Setting, before.Export, before.Live, before.Live_all, before.SVDControl);
}

void Form_GroupPrivilege::lbGroupPrivilege_Click()
{
    Trapped("Form_GroupPrivilege - lbGroupPrivilege_Click", [&] {
        GroupPrivilegeRecord& record = group();
        record = ticked();
        record.bChanged = true;
        m_save();
        accept();
    });
}

void Form_GroupPrivilege::lbNVRPrivilege_Click()
{
    Trapped("Form_GroupPrivilege - lbNVRPrivilege_Click", [&] {
        GroupPrivilegeRecord& record = group();
        At(record.CHPrivilege, m_slot) = FormCHPrivilege(m_channels->rights(), At(m_recorders.SVRWorkList, m_slot));
        record.Live_all = DeriveLiveAll(record, m_recorders.SVRWorkList);
        record.bChanged = true;
        m_save();
        m_ui->Chk_GroupPrivilege_3->setChecked(record.Live_all == 1);
        m_nvrs->refill(m_group);
        LoadFrame(0);
    });
}

// Leaves the channels of a recorder for the group, and the group for good; nothing is stored.
void Form_GroupPrivilege::leaveFrame()
{
    if (m_frame == 0)
        done(Rejected);
    else
        LoadFrame(0);
}

// Esc and the close button go back one level.
void Form_GroupPrivilege::reject()
{
    switch (changed() ? AskToLeave() : Leave::Discard) {
    case Leave::Save:
        m_ui->lbGroupPrivilege_0->click();
        break;
    case Leave::Discard:
        leaveFrame();
        break;
    case Leave::Stay:
        break;
    }
}

bool Form_GroupPrivilege::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return DialogFrame::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (watched == m_ui->Grid_ChannelPrivilege && key->key() == Qt::Key_Space && m_channels) {
        const QModelIndex current = m_ui->Grid_ChannelPrivilege->currentIndex();
        if (key->modifiers() == Qt::ShiftModifier)
            m_ui->Grid_ChannelPrivilege->selectRow(current.row());
        else if (key->modifiers() == Qt::ControlModifier)
            m_ui->Grid_ChannelPrivilege->selectColumn(current.column());
        else
            m_channels->flip(chosenCells());
        return true;
    }
    return DialogFrame::eventFilter(watched, event);
}
