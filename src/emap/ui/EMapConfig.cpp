#include "emap/ui/EMapConfig.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "emap/ui/EMapGroups.h"
#include "emap/ui/ui_EMapConfig.h"
#include "look/widgets/Keys.h"

namespace {

constexpr int kGroupTab = 705;

} // namespace

EMapConfig::EMapConfig(EMapContext context, QWidget* parent)
    : QWidget(parent)
    , m_context(std::move(context))
    , m_edit(m_context.maps)
    , m_ui(std::make_unique<Ui::EMapConfig>())
    , m_groups(new EMapGroups(m_edit, m_context.recorders))
{
    m_ui->setupUi(this);
    m_ui->SSTab_Emap->addTab(m_groups, {});
    m_ui->SSTab_Emap->setTabBarAutoHide(true);
    connect(m_ui->lbEmapApply_0, &QPushButton::clicked, this, [this] { lbEmapApply_Click(0); });
    connect(m_ui->lbEmapApply_1, &QPushButton::clicked, this, [this] { lbEmapApply_Click(1); });
    connect(&m_edit, &EMapEdit::changed, this, &EMapConfig::showChanges);
    OnKey(this, QKeySequence::Undo, [this] { m_edit.steps().undo(); });
    OnKey(this, QKeySequence::Redo, [this] { m_edit.steps().redo(); });
    OnKey(this, Qt::CTRL | Qt::Key_Y, [this] { m_edit.steps().redo(); });
    showChanges();
}

EMapConfig::~EMapConfig() = default;

void EMapConfig::OpenEMapConfigFrame()
{
    m_edit.begin();
    m_ui->SSTab_Emap->setCurrentIndex(0);
    m_groups->open();
    showChanges();
}

void EMapConfig::changeLanguage()
{
    m_ui->SSTab_Emap->setTabText(0, GetLangString(kGroupTab));
    m_groups->changeLanguage();
    showChanges();
}

void EMapConfig::showChanges()
{
    const bool changes = hasChanges();
    m_ui->lbEmapApply_0->setEnabled(changes);
    m_ui->lbEmapApply_1->setEnabled(changes);
    m_ui->lbChanges->setText(changes ? GetLangString(Message::kUnsavedChanges) : QString());
    emit changesChanged();
}

void EMapConfig::lbEmapApply_Click(int index)
{
    Trapped("Form_Initial - lbEmapApply_Click", [&] {
        if (index == 0)
            m_context.save();
        else
            m_context.revert();
        OpenEMapConfigFrame();
    });
}
