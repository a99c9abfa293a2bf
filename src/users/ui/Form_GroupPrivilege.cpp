#include "users/ui/Form_GroupPrivilege.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/EmptyState.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "look/widgets/SecondClick.h"
#include "support/Conversions.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {
constexpr int kSlotRole = Qt::UserRole;
constexpr int kLiveAllBox = 3;
constexpr int kIconColumn = 56; // px

QVBoxLayout* Column(QWidget* frame)
{
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(10);
    return column;
}
} // namespace

Form_GroupPrivilege::Form_GroupPrivilege(GroupSet& groups, const UserSet& users, const RecorderSet& recorders,
                                         std::function<void()> save, QWidget* parent)
    : DialogFrame(parent)
    , m_groups(groups)
    , m_users(users)
    , m_recorders(recorders)
    , m_save(std::move(save))
    , m_frames(new QStackedWidget)
    , m_nvrs(new QStandardItemModel(this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    setObjectName(u"Form_GroupPrivilege"_s);
    setCloseText(GetLangString(881));
    m_frames->addWidget(buildGroupFrame());
    m_frames->addWidget(buildChannelFrame());
    Column(content())->addWidget(m_frames);
    m_cancel = footer()->addButton(GetLangString(475));
    m_cancel->setAutoDefault(false);
    m_apply = footer()->addButton(GetLangString(591), "primary"_L1);
    m_apply->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &Form_GroupPrivilege::leaveFrame);
    connect(m_apply, &QPushButton::clicked, this, [this] {
        if (m_frame == 0)
            lbGroupPrivilege_Click();
        else
            lbNVRPrivilege_Click();
    });
    ApplyLanguage(this);
    resize(960, 620);
}

QWidget* Form_GroupPrivilege::buildGroupFrame()
{
    auto* frame = new QWidget;
    frame->setObjectName(u"Frame_0"_s);
    auto* column = Column(frame);
    static constexpr std::array texts{432, 740, 100, 909, 0};
    static constexpr std::array order{0, 1, 4, 2, 3};
    for (const int i : order) {
        auto* box = new QCheckBox;
        box->setObjectName(u"Chk_GroupPrivilege_%1"_s.arg(i));
        if (At(texts, i) != 0)
            box->setProperty("tag", u"Caption:%1"_s.arg(At(texts, i)));
        else
            box->setText(u"SVD"_s);
        At(Chk_GroupPrivilege, i) = box;
        column->addWidget(box);
    }
    Grid_NVRList = new QTableView;
    Grid_NVRList->setObjectName(u"Grid_NVRList"_s);
    Grid_NVRList->setAccessibleName(GetLangString(838));
    Grid_NVRList->setModel(m_nvrs);
    StyleTable(Grid_NVRList);
    Grid_NVRList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ActOnRows(Grid_NVRList, {.open = NVREdit}, [this](const QModelIndex& cell) { openRecorder(cell.row()); });
    OnKey(Grid_NVRList, Qt::Key_Space, [this] { openRecorder(Grid_NVRList->currentIndex().row()); });
    connect(At(Chk_GroupPrivilege, kLiveAllBox), &QCheckBox::toggled, this,
            [this](bool on) { Grid_NVRList->setEnabled(!on); });
    auto* title = new QLabel;
    title->setProperty("tag", u"Caption:838"_s);
    SetRole(title, "cardTitle"_L1);
    column->addWidget(title);
    auto* empty = new EmptyState("empty-recorder"_L1);
    empty->setHeadline(GetLangString(861));
    m_nvrStack = new QStackedWidget;
    m_nvrStack->addWidget(Grid_NVRList);
    m_nvrStack->addWidget(empty);
    column->addWidget(m_nvrStack, 1);
    return frame;
}

QWidget* Form_GroupPrivilege::buildChannelFrame()
{
    auto* frame = new QWidget;
    frame->setObjectName(u"Frame_1"_s);
    auto* column = Column(frame);
    auto* tools = new QHBoxLayout;
    tools->setSpacing(10);
    Chk_NVRPrivilege = new QCheckBox;
    Chk_NVRPrivilege->setObjectName(u"Chk_NVRPrivilege_0"_s);
    Chk_NVRPrivilege->setProperty("tag", u"Caption:907"_s);
    connect(Chk_NVRPrivilege, &QCheckBox::toggled, this, [this](bool on) {
        if (m_channels)
            m_channels->setAll(on);
    });
    auto* filter = new SearchField;
    filter->setObjectName(u"txtFilter"_s);
    filter->setPlaceholderText(GetLangString(906));
    filter->setAccessibleName(GetLangString(906));
    filter->setMaximumWidth(260);
    connect(filter, &QLineEdit::textChanged, m_proxy, &QSortFilterProxyModel::setFilterFixedString);
    connect(filter, &QLineEdit::returnPressed, this, [this] { Grid_ChannelPrivilege->setFocus(); });
    OnKey(frame, QKeySequence::Find, [filter] { filter->setFocus(); });
    tools->addWidget(filter, 1);
    tools->addWidget(Chk_NVRPrivilege);
    tools->addStretch();
    for (int i = 0; i < 2; ++i) {
        auto* button = new QPushButton;
        button->setObjectName(i == 0 ? u"btnGrant"_s : u"btnWithdraw"_s);
        button->setProperty("tag", u"Caption:%1"_s.arg(i == 0 ? 910 : 911));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, i] {
            if (m_channels)
                m_channels->give(chosenCells(), i == 0);
        });
        At(m_bulk, i) = button;
        tools->addWidget(button);
    }
    column->addLayout(tools);
    m_hint = new QLabel;
    m_hint->setWordWrap(true);
    SetRole(m_hint, "hint"_L1);
    column->addWidget(m_hint);

    QTableView* grid = Grid_ChannelPrivilege = new QTableView;
    grid->setObjectName(u"Grid_ChannelPrivilege"_s);
    grid->setModel(m_proxy);
    m_proxy->setFilterKeyColumn(ChannelRightsModel::Name);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    StyleTable(grid);
    grid->setSelectionBehavior(QAbstractItemView::SelectItems);
    grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->horizontalHeader()->setSectionsClickable(true);
    connect(grid->horizontalHeader(), &QHeaderView::sectionClicked, grid, &QTableView::selectColumn);
    connect(grid, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (QGuiApplication::keyboardModifiers() != Qt::NoModifier || !m_channels)
            return;
        if (ChannelRightsModel::isRight(index.column()))
            m_channels->flip({m_proxy->mapToSource(index)});
        else
            Grid_ChannelPrivilege->selectRow(index.row());
    });
    grid->installEventFilter(this);
    column->addWidget(grid, 1);
    return frame;
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
    Grid_NVRList->setEnabled(record.Live_all != 1);
    Grid_NVRList_Draw();
}

void Form_GroupPrivilege::LoadFrame(int frame)
{
    const bool back = m_frame == 1 && frame == 0;
    m_frame = frame;
    m_frames->setCurrentIndex(frame);
    setWindowTitle(GetLangString(frame == 0 ? 837 : 838));
    const SVRRecord& recorder = At(m_recorders.SVRWorkList, m_slot);
    setSubtitle(frame == 0 ? group().Name : group().Name + u" · NVR %1 · "_s.arg(m_slot + 1) + recorder.sSVR_Name);
    m_apply->setObjectName(frame == 0 ? u"lbGroupPrivilege_0"_s : u"lbNVRPrivilege_0"_s);
    m_cancel->setObjectName(frame == 0 ? u"lbGroupPrivilege_1"_s : u"lbNVRPrivilege_1"_s);
    m_apply->setEnabled(frame == 0 || m_group != 0);
    if (back)
        Grid_NVRList->setFocus();
    else if (frame == 0)
        At(Chk_GroupPrivilege, 0)->setFocus();
    else
        Grid_ChannelPrivilege->setFocus();
}

void Form_GroupPrivilege::Grid_NVRList_Draw()
{
    m_nvrs->clear();
    m_nvrs->setHorizontalHeaderLabels({u"NVR"_s, GetLangString(362), GetLangString(784), QString()});
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        const SVRRecord& recorder = At(m_recorders.SVRWorkList, slot);
        if (recorder.sSVR_Name.isEmpty())
            continue;
        const ChannelRights rights = ParseCHPrivilege(At(group().CHPrivilege, slot));
        int cameras = 0;
        int live = 0;
        for (int channel = 0; channel < RightsChannelCount(recorder); ++channel) {
            if (At(recorder.channels, channel).sSub_CH_Name.isEmpty())
                continue;
            ++cameras;
            live += m_group == 0 || rights.all || (At(rights.masks, channel) & kLiveRight) != 0 ? 1 : 0;
        }
        auto* number = new QStandardItem(QString::number(slot + 1));
        number->setData(slot, kSlotRole);
        auto* state = new QStandardItem((m_group == 0 || rights.all ? u"✓  "_s : QString()) +
                                        GetLangString(866).arg(live).arg(cameras));
        auto* edit = new QStandardItem(Icon("edit"_L1), QString());
        edit->setToolTip(GetLangString(876));
        edit->setData(GetLangString(876), Qt::AccessibleTextRole);
        m_nvrs->appendRow({number, new QStandardItem(recorder.sSVR_Name), state, edit});
    }
    QHeaderView* head = Grid_NVRList->horizontalHeader();
    head->setStretchLastSection(false);
    head->setSectionResizeMode(1, QHeaderView::Stretch);
    Grid_NVRList->setColumnWidth(0, 80);
    Grid_NVRList->setColumnWidth(2, 240);
    Grid_NVRList->setColumnWidth(NVREdit, kIconColumn);
    m_nvrStack->setCurrentIndex(m_nvrs->rowCount() > 0 ? 0 : 1);
    for (int row = 0; row < m_nvrs->rowCount(); ++row) {
        if (row == 0 || m_nvrs->item(row)->data(kSlotRole).toInt() == m_slot)
            Grid_NVRList->setCurrentIndex(m_nvrs->index(row, 0));
    }
}

void Form_GroupPrivilege::openRecorder(int row)
{
    Trapped("Form_GroupPrivilege - Grid_NVRList_Click", [&] {
        const QStandardItem* item = m_nvrs->item(row, 0);
        if (!item)
            return;
        m_slot = item->data(kSlotRole).toInt();
        Grid_ChannelPrivilege_Draw(m_slot);
        LoadFrame(1);
        DropSecondClick();
    });
}

void Form_GroupPrivilege::Grid_ChannelPrivilege_Draw(int slot)
{
    auto model =
        std::make_unique<ChannelRightsModel>(m_groups, m_users, At(m_recorders.SVRWorkList, slot), m_group, slot);
    m_proxy->setSourceModel(model.get());
    m_channels = std::move(model);
    Chk_NVRPrivilege->setChecked(m_channels->rights().all);
    const bool editable = m_channels->editable();
    Chk_NVRPrivilege->setEnabled(editable);
    Grid_ChannelPrivilege->setEnabled(editable);
    for (QPushButton* button : m_bulk)
        button->setEnabled(editable);
    m_hint->setText(GetLangString(editable ? 912 : 913));
    Grid_ChannelPrivilege->setAccessibleName(GetLangString(784) + u". "_s + m_hint->text());
    m_before = FormCHPrivilege(m_channels->rights(), At(m_recorders.SVRWorkList, slot));
    static constexpr std::array widths{64, 210, 92, 92, 104, 92};
    for (int column = 0; column < static_cast<int>(widths.size()); ++column)
        Grid_ChannelPrivilege->setColumnWidth(column, At(widths, column));
    Grid_ChannelPrivilege->setCurrentIndex(m_proxy->index(0, ChannelRightsModel::Live));
}

QModelIndexList Form_GroupPrivilege::chosenCells() const
{
    QModelIndexList cells;
    const QModelIndexList chosen = Grid_ChannelPrivilege->selectionModel()->selectedIndexes();
    for (const QModelIndex& cell : chosen)
        cells << m_proxy->mapToSource(cell);
    return cells;
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
        At(Chk_GroupPrivilege, kLiveAllBox)->setChecked(record.Live_all == 1);
        Grid_NVRList_Draw();
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
        m_apply->click();
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
    if (watched == Grid_ChannelPrivilege && key->key() == Qt::Key_Space && m_channels) {
        const QModelIndex current = Grid_ChannelPrivilege->currentIndex();
        if (key->modifiers() == Qt::ShiftModifier)
            Grid_ChannelPrivilege->selectRow(current.row());
        else if (key->modifiers() == Qt::ControlModifier)
            Grid_ChannelPrivilege->selectColumn(current.column());
        else
            m_channels->flip(chosenCells());
        return true;
    }
    return DialogFrame::eventFilter(watched, event);
}
