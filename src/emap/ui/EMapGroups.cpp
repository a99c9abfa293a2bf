#include "emap/ui/EMapGroups.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "emap/ui/EMapMove.h"
#include "emap/ui/EMapTree.h"
#include "emap/ui/ui_EMapGroups.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "support/Conversions.h"

#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNoChange = 726;
constexpr int kAskRemove = 714;
constexpr int kMostLetters = 50;
// What can be done with a node, by its level.
constexpr std::array kHints{1271, 1273, 1272, 1275, 1274};

} // namespace

EMapGroups::EMapGroups(EMapEdit& edit, const RecorderSet& recorders, QWidget* parent)
    : QWidget(parent)
    , m_edit(edit)
    , m_ui(std::make_unique<Ui::EMapGroups>())
    , m_model(new EMapTreeModel(edit, recorders, this))
    , m_members(new EMapMembers(edit.set(), recorders, this))
    , m_key(kMainMapName)
{
    m_ui->setupUi(this);
    m_ui->TreeView_Emap->showModel(*m_model);
    m_ui->TreeView_Emap->setContextMenuPolicy(Qt::CustomContextMenu);
    m_ui->TreeView_Emap->expandAll();
    StyleTable(m_ui->ListView_EmapGroup);
    m_ui->ListView_EmapGroup->setModel(m_members);
    m_ui->ListView_EmapGroup->setSelectionMode(QAbstractItemView::SingleSelection);
    SetColumnWidths(m_ui->ListView_EmapGroup, std::array{110, 0});
    m_ui->Text_EmapGroupName->setMaxLength(kMostLetters);
    SelectOnFocus(m_ui->Text_EmapGroupName);
    m_ui->lbNoMatch->hide();
    wire();
}

EMapGroups::~EMapGroups() = default;

void EMapGroups::wire()
{
    EMapTree* tree = m_ui->TreeView_Emap;
    connect(m_ui->Cmd_EmapGroup_0, &QPushButton::clicked, this, [this] { Cmd_EmapGroup_Click(0); });
    connect(m_ui->Cmd_EmapGroup_1, &QPushButton::clicked, this, [this] { Cmd_EmapGroup_Click(1); });
    connect(m_ui->Cmd_EmapGroup_2, &QPushButton::clicked, this, [this] { Cmd_EmapGroup_Click(2); });
    connect(m_ui->lbMoveTo, &QPushButton::clicked, this, &EMapGroups::moveTo);
    connect(m_ui->Text_EmapGroupName, &QLineEdit::returnPressed, this, [this] {
        // What the node offers first; a new name for a group or sub-map.
        Cmd_EmapGroup_Click(m_ui->Cmd_EmapGroup_1->isEnabled() ? 1 : 0);
    });
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this, &EMapGroups::nodeChosen);
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_ui->lbMoveTo->setEnabled(!movable().isEmpty()); });
    connect(tree, &EMapTree::refused, this, &EMapGroups::tellRefusal);
    connect(tree, &QWidget::customContextMenuRequested, this, &EMapGroups::showMenu);
    connect(tree, &QTreeView::doubleClicked, this, [this] { emit mapWanted(m_key); });
    connect(m_model, &QAbstractItemModel::modelReset, this, &EMapGroups::rebuilt);
    connect(m_model, &QAbstractItemModel::rowsMoved, this, [tree](const QModelIndex&, int, int, const QModelIndex& to) {
        tree->expand(tree->filter()->mapFromSource(to));
    });
    connect(&m_edit, &EMapEdit::changed, this, &EMapGroups::Check_EmapGroupInfo);
    connect(m_ui->txtTreeFilter, &QLineEdit::textChanged, this, &EMapGroups::showFilter);
    connect(m_ui->txtTreeFilter, &QLineEdit::returnPressed, tree, qOverload<>(&QWidget::setFocus));
    ActOnRows(m_ui->ListView_EmapGroup, {},
              [this](const QModelIndex& cell) { CheckNodePosition(cell.data(EMapMembers::kKeyRole).toString()); });
    OnKey(tree, QKeySequence::Cut, [this] { cut(); });
    OnKey(tree, QKeySequence::Paste, [this] { paste(); });
    OnKey(tree, Qt::Key_Return, [this] { emit mapWanted(m_key); });
    OnKey(tree, Qt::Key_Enter, [this] { emit mapWanted(m_key); });
    OnKey(tree, Qt::Key_F2, [this] { m_ui->Text_EmapGroupName->setFocus(); });
    OnKey(tree, Qt::Key_Delete, [this] {
        if (m_ui->Cmd_EmapGroup_2->isEnabled())
            Cmd_EmapGroup_Click(2);
    });
}

void EMapGroups::open()
{
    Trapped("Form_Initial - BuildEmapTreeView", [&] { m_model->BuildEmapTreeView(); });
    tellRefusal(0);
}

void EMapGroups::changeLanguage()
{
    m_ui->txtTreeFilter->setPlaceholderText(GetLangString(1260));
    m_ui->txtTreeFilter->setAccessibleName(GetLangString(1260));
    m_ui->TreeView_Emap->setAccessibleName(GetLangString(705));
    m_ui->cardMembers->setTitle(GetLangString(707).remove(u':').trimmed());
    m_ui->ListView_EmapGroup->setAccessibleName(m_ui->cardMembers->title());
    open();
}

void EMapGroups::rebuilt()
{
    m_ui->TreeView_Emap->expandAll();
    CheckNodePosition(m_key);
}

void EMapGroups::CheckNodePosition(const QString& key)
{
    Trapped("Form_Initial - CheckNodePosition", [&] { m_ui->TreeView_Emap->choose(key); });
    nodeChosen();
}

void EMapGroups::showFilter()
{
    EMapTree* tree = m_ui->TreeView_Emap;
    tree->filter()->setFilterFixedString(m_ui->txtTreeFilter->text());
    tree->expandAll();
    const bool none = tree->filter()->rowCount() == 0;
    m_ui->lbNoMatch->setVisible(none);
    tree->setVisible(!none);
}

void EMapGroups::nodeChosen()
{
    const QString key = m_ui->TreeView_Emap->currentKey();
    if (key.isEmpty()) // nothing matches the filter
        return;
    if (key != m_key)
        tellRefusal(0);
    m_key = key;
    Check_EmapGroupInfo();
}

void EMapGroups::Check_EmapGroupInfo()
{
    Trapped("Form_Initial - Check_EmapGroupInfo", [&] {
        const EMapNode node = NodeOf(m_edit.set(), m_key);
        const QString name = m_model->indexOf(m_key).data().toString();
        m_ui->Text_EmapName->setText(name);
        const bool own = node.level == kMapGroup || node.level == kMapSub;
        const bool parent = node.level == kMapRoot || node.level == kMapRecorder;
        m_ui->Cmd_EmapGroup_0->setEnabled(parent);
        m_ui->Cmd_EmapGroup_1->setEnabled(own);
        m_ui->Cmd_EmapGroup_2->setEnabled(own);
        m_ui->Text_EmapGroupName->setEnabled(own || parent);
        m_ui->Text_EmapGroupName->setText(name);
        m_ui->lbMoveTo->setEnabled(!movable().isEmpty());
        m_ui->lbEmapHint->setText(node.level < 0 ? QString() : GetLangString(At(kHints, node.level)));
        Trapped("Form_Initial - ListView_Emap_Set", [&] { m_members->ListView_Emap_Set(m_key); });
    });
}

void EMapGroups::Cmd_EmapGroup_Click(int index)
{
    Trapped("Form_Initial - Cmd_EmapGroup_Click", [&] {
        if (index == 0)
            add();
        else if (index == 1)
            modify();
        else
            removeMap();
    });
}

bool EMapGroups::takesName(const QString& name, int self)
{
    const int message = NameRefusal(m_edit.set(), name, self);
    if (message == 0)
        return true;
    Tell(Tone::Warning, message);
    PointAtFault(m_ui->Text_EmapGroupName);
    return false;
}

void EMapGroups::add()
{
    const EMapNode above = NodeOf(m_edit.set(), m_key);
    const QString name = m_ui->Text_EmapGroupName->text().trimmed();
    if ((above.level != kMapRoot && above.level != kMapRecorder) || !takesName(name, -1))
        return;
    QString key;
    m_edit.step([&](EMapSet& set) { key = MapKey(At(set.edit, AddMap(set, above.map, name))); });
    m_ui->TreeView_Emap->scrollTo(m_ui->TreeView_Emap->filter()->mapFromSource(m_model->indexOf(key)));
}

void EMapGroups::modify()
{
    const EMapNode node = NodeOf(m_edit.set(), m_key);
    const QString name = m_ui->Text_EmapGroupName->text().trimmed();
    if (node.level != kMapGroup && node.level != kMapSub)
        return;
    if (name == At(m_edit.set().edit, node.map).sName)
        return Tell(Tone::Information, kNoChange);
    if (takesName(name, node.map))
        m_edit.step([&](EMapSet& set) { RenameMap(set, node.map, name); });
}

void EMapGroups::removeMap()
{
    const EMapNode node = NodeOf(m_edit.set(), m_key);
    if ((node.level != kMapGroup && node.level != kMapSub) ||
        !AskToDestroy(kAskRemove, At(m_edit.set().edit, node.map).sName))
        return;
    m_key = kMainMapName;
    m_edit.step([&](EMapSet& set) { RemoveMap(set, node.map); });
    CheckNodePosition(m_key);
}

QStringList EMapGroups::movable() const
{
    QStringList keys = m_ui->TreeView_Emap->chosenKeys();
    keys.removeIf([this](const QString& key) { return DragRefusal(NodeOf(m_edit.set(), key)) != 0; });
    return keys;
}

void EMapGroups::cut()
{
    const QStringList keys = movable();
    m_model->setCut(keys);
    tellRefusal(keys.isEmpty() ? DragRefusal(NodeOf(m_edit.set(), m_key)) : 0);
}

void EMapGroups::paste()
{
    moveChosen(m_model->cut(), m_key);
}

void EMapGroups::moveTo()
{
    const QStringList keys = movable();
    EMapMove dialog(*m_model, keys, window());
    if (!keys.isEmpty() && dialog.exec() == QDialog::Accepted)
        moveChosen(keys, dialog.target());
}

bool EMapGroups::moveChosen(const QStringList& keys, const QString& target)
{
    if (keys.isEmpty())
        return false;
    tellRefusal(m_model->refusal(keys, target));
    return m_model->move(keys, target);
}

void EMapGroups::tellRefusal(int message)
{
    m_ui->lbRefused->setText(GetLangString(message != 0 ? message : 713));
    m_ui->lbRefused->setProperty("role", message != 0 ? u"bad"_s : u"muted"_s);
    m_ui->lbRefused->style()->polish(m_ui->lbRefused);
}

void EMapGroups::showMenu(const QPoint& place)
{
    if (!m_ui->TreeView_Emap->indexAt(place).isValid())
        return;
    QMenu menu(this);
    const bool moves = !movable().isEmpty();
    const bool own = m_ui->Cmd_EmapGroup_2->isEnabled();
    menu.addAction(Icon("picture"_L1), GetLangString(1269), this, [this] { emit mapWanted(m_key); });
    menu.addSeparator();
    menu.addAction(GetLangString(1261), this, &EMapGroups::cut)->setEnabled(moves);
    menu.addAction(GetLangString(1262), this, &EMapGroups::paste)
        ->setEnabled(!m_model->cut().isEmpty() && m_model->refusal(m_model->cut(), m_key) == 0);
    menu.addAction(Icon("move"_L1), GetLangString(1263), this, &EMapGroups::moveTo)->setEnabled(moves);
    menu.addSeparator();
    menu.addAction(Icon("delete"_L1), GetLangString(386), this, [this] { Cmd_EmapGroup_Click(2); })->setEnabled(own);
    menu.exec(m_ui->TreeView_Emap->viewport()->mapToGlobal(place));
}
