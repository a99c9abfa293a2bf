#include "app/ui/RecordersPage.h"

#include "app/RemoveSVR.h"
#include "app/StartUp.h"
#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "app/shell/Messages.h"
#include "recorders/ui/Form_NVRSetting.h"
#include "recorders/ui/NVRPage.h"

#include <QVBoxLayout>

RecordersPage::RecordersPage(const DeskParts& parts)
    : m_station(parts.station)
    , m_com(parts.com)
    , m_context(parts.context)
    , m_list(new NVRPage(parts.station.recorders, parts.com.poller))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_list);
    connect(m_list, &NVRPage::wizardWanted, this, &RecordersPage::showWizard);
    connect(m_list, &NVRPage::editWanted, this, [this](int slot) { showRecorder(slot, false); });
    connect(m_list, &NVRPage::renameWanted, this, [this](int slot) { showRecorder(slot, true); });
    connect(m_list, &NVRPage::removeWanted, this, [this](int slot) {
        const auto remove = [this, slot] {
            m_work.say(GetLangString(Message::kWriting));
            return RemoveSVR(m_station, m_com, slot, m_work);
        };
        StartWork(m_work, QLatin1String("Form_Initial - RemoveSVR"), remove, [this] { m_list->Grid_SVR_Set_withDB(); });
    });
    m_list->showWork(m_work);
    connect(&m_work, &Work::runningChanged, this, &Page::workRunning);
}

void RecordersPage::enter()
{
    m_list->Grid_SVR_Set_withDB();
}

void RecordersPage::changeLanguage()
{
    m_list->changeLanguage();
}

QString RecordersPage::subtitle() const
{
    return GetLangString(864);
}

void RecordersPage::primaryAction()
{
    m_list->lbAdd_Click();
}

DetectContext RecordersPage::detectContext()
{
    return {m_com, m_station.recorders, m_station.accounts, m_station.events};
}

void RecordersPage::save()
{
    m_context.save();
    m_com.SetProToDeviceBridge(m_station.recorders.SVRList);
}

void RecordersPage::showWizard()
{
    const auto finish = [this] {
        FinishNewRecorders(m_station);
        m_com.SetProToDeviceBridge(m_station.recorders.SVRList);
    };
    Form_NVRSetting wizard(detectContext(), {finish, [this] { DropNewRecorders(m_station.recorders); }}, window());
    wizard.exec();
    m_list->Grid_SVR_Set_withDB();
}

void RecordersPage::showRecorder(int slot, bool rename)
{
    Form_NVRSetting form(detectContext(), {}, window());
    const auto remove = [this](int removed, Work& work) { return RemoveSVR(m_station, m_com, removed, work); };
    form.SetNVR(
        slot, [this] { save(); }, remove);
    if (rename)
        form.editName();
    form.exec();
    m_list->Grid_SVR_Set_withDB();
}
