#include "app/ui/SystemPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "app/ui/ui_SystemPage.h"
#include "look/style/Icons.h"
#include "look/widgets/Fields.h"
#include "platform/Clock.h"
#include "platform/MsgBox.h"
#include "platform/clsOSInfo.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

SystemPage::SystemPage(const DeskParts& parts)
    : m_station(parts.station)
    , m_context(parts.context)
    , m_ui(std::make_unique<Ui::SystemPage>())
    , m_startUp(new QButtonGroup(this))
    , Timer_system(new QTimer(this))
{
    m_ui->setupUi(this);
    m_ui->lbSysContent_6->setProperty("role", u"mono"_s);
    m_ui->ImageCombo1->setIconSize(QSize(30, 20));
    m_startUp->addButton(m_ui->optStartUp_0, 0);
    m_startUp->addButton(m_ui->optStartUp_1, 1);
    m_startUp->addButton(m_ui->optStartUp_2, 2);
    m_ui->Text1_fm0_0->installEventFilter(this);

    connect(m_ui->Text1_fm0_0, &QLineEdit::textChanged, this, &SystemPage::noteChange);
    connect(m_ui->Cmb_Snap, &QComboBox::activated, this, &SystemPage::noteChange);
    connect(m_ui->ImageCombo1, &QComboBox::activated, this, &SystemPage::noteChange);
    connect(m_startUp, &QButtonGroup::idClicked, this, &SystemPage::noteChange);
    connect(m_ui->lbSystemApply_0, &QPushButton::clicked, this, [this] { lbSystemApply_Click(0); });
    connect(m_ui->lbSystemApply_1, &QPushButton::clicked, this, [this] { lbSystemApply_Click(1); });
    connect(m_ui->lbSystemApply_2, &QPushButton::clicked, this, [this] { lbSystemApply_Click(2); });
    connect(m_ui->Text1_fm0_0, &QLineEdit::returnPressed, this, [this] {
        if (hasChanges())
            lbSystemApply_Click(0);
    });
    Timer_system->setInterval(1000);
    connect(Timer_system, &QTimer::timeout, this, &SystemPage::showTime);
}

SystemPage::~SystemPage() = default;

bool SystemPage::hasChanges() const
{
    return m_ui->lbSystemApply_0->isEnabled();
}

QString SystemPage::subtitle() const
{
    return m_station.basicDefault.edit.sSystemName;
}

void SystemPage::changeLanguage()
{
    m_ui->lbChanges->setText(hasChanges() ? GetLangString(Message::kUnsavedChanges) : QString());
}

void SystemPage::fillLanguages()
{
    m_ui->ImageCombo1->clear();
    for (int language = 1; language <= kLanguages; ++language) {
        m_ui->ImageCombo1->addItem(Flag(language), LanguageName(language), u"Lang%1"_s.arg(language));
    }
    qint16& language = m_station.basicDefault.edit.iLanguage;
    if (language < 1)
        language = 1;
    if (language <= m_ui->ImageCombo1->count())
        m_ui->ImageCombo1->setCurrentIndex(language - 1);
}

void SystemPage::SystemControl_Frame_Set()
{
    Trapped("Form_Initial - SystemControl_Frame_Set", [&] {
        m_ready = false;
        const BasicDefaultRecord& edit = m_station.basicDefault.edit;
        const clsOSInfo info;
        m_ui->Text1_fm0_0->setMaxLength(50);
        m_ui->Text1_fm0_0->setText(edit.sSystemName);
        m_ui->lbSysContent_0->setText(u"NoBrand"_s);
        m_ui->lbSysContent_1->setText(u"CMS_Core"_s);
        m_ui->lbSysContent_2->setText(u"2.0.5.79662"_s);
        m_ui->lbSysContent_4->setText(info.OSName());
        m_ui->lbSysContent_5->setText(info.ComputerName());
        fillLanguages();
        const int option = (edit.bStartup ? 1 : 0) + (edit.bStartupToHide ? 1 : 0);
        m_startUp->button(option)->setChecked(true);
        m_ui->Cmb_Snap->clear();
        m_ui->Cmb_Snap->addItems({u"1"_s, u"2"_s, u"3"_s});
        m_ui->Cmb_Snap->setCurrentIndex(edit.iSnapCount >= 1 && edit.iSnapCount <= 3 ? edit.iSnapCount - 1 : -1);
    });
    setApplyActive(false);
    m_ui->lbSysContent_6->setText(Now().toString(u"yyyy/MM/dd hh:mm:ss"));
    Timer_system->start();
    m_ready = true;
    emit subtitleChanged();
}

void SystemPage::pause()
{
    Timer_system->stop();
}

void SystemPage::revert()
{
    SystemControl_Frame_Set();
    pause();
}

void SystemPage::showTime()
{
    if (isVisible())
        m_ui->lbSysContent_6->setText(Now().toString(u"yyyy/MM/dd hh:mm:ss"));
}

void SystemPage::noteChange()
{
    if (m_ready)
        setApplyActive(true);
}

void SystemPage::setApplyActive(bool active)
{
    m_ui->lbSystemApply_0->setEnabled(active);
    m_ui->lbSystemApply_1->setEnabled(active);
    m_ui->lbChanges->setText(active ? GetLangString(Message::kUnsavedChanges) : QString());
    emit changesChanged();
}

void SystemPage::lbSystemApply_Click(int index)
{
    Trapped("Form_Initial - lbSystemApply_Click", [&] {
        if (index == 0) {
            applyFields();
        } else if (index == 1) {
            SystemControl_Frame_Set();
        } else {
            const QString file = DetailExport();
            Tell(Tone::Success, GetLangString(828) + u' ' + KeepLeftToRight(file));
        }
    });
}

void SystemPage::applyFields()
{
    if (m_ui->Text1_fm0_0->text().isEmpty()) {
        PointAtFault(m_ui->Text1_fm0_0);
        return;
    }
    BasicDefaultRecord& edit = m_station.basicDefault.edit;
    edit.sSystemName = m_ui->Text1_fm0_0->text();
    edit.iLanguage = static_cast<qint16>(m_ui->ImageCombo1->currentIndex() + 1);
    SetLanguage(edit.iLanguage);
    SetBoxStyles(Language() == kRightToLeftLanguage);
    edit.iSnapCount = static_cast<qint16>(m_ui->Cmb_Snap->currentIndex() + 1);
    edit.bStartup = m_startUp->checkedId() != 0;
    edit.bStartupToHide = m_startUp->checkedId() == 2;
    m_context.languageChanged();
    SystemControl_Frame_Set();
    edit.bChanged = true;
    m_context.save();
}

bool SystemPage::eventFilter(QObject* watched, QEvent* event)
{
    // A typed system name is plain ASCII; what is pasted is not looked at.
    if (watched == m_ui->Text1_fm0_0 && event->type() == QEvent::KeyPress) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        if (text.size() == 1 && text.at(0).unicode() > 126 && text.at(0).unicode() != 127)
            return true;
    }
    return Page::eventFilter(watched, event);
}
