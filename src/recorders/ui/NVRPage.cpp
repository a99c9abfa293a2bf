#include "recorders/ui/NVRPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "app/shell/ui/ListPane.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "recorders/ui/ui_NVRPage.h"
#include "support/Conversions.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAskDelete = 483;
constexpr int kRename = 1110;

// What a question about a recorder calls it.
QString NameOf(const SVRRecord& record, int slot)
{
    return u"NVR %1  ·  "_s.arg(slot + 1) + record.sSVR_Name + u"  ·  "_s + record.sSVR_IP + u':' +
           QString::number(record.iSVR_HttpPort);
}

} // namespace

NVRPage::NVRPage(const RecorderSet& recorders, DevicePoller& poller, QWidget* parent)
    : QWidget(parent)
    , m_recorders(recorders)
    , m_ui(std::make_unique<Ui::NVRPage>())
    , m_watch(poller, recorders.SVRList)
    , m_model(new NVRListModel(recorders, m_watch, this))
{
    m_ui->setupUi(this);
    connect(m_ui->list, &ListPane::buttonClicked, this, &NVRPage::lbAdd_Click);
    OnKey(this, Qt::Key_F5, [this] { readAgain(); });
    Grid_SVR_Draw();
}

NVRPage::~NVRPage() = default;

void NVRPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_watch.start();
}

// Fills the list anew and asks every recorder at once.
void NVRPage::readAgain()
{
    Grid_SVR_Set_withDB();
    m_watch.start();
}

void NVRPage::hideEvent(QHideEvent* event)
{
    m_watch.stop();
    QWidget::hideEvent(event);
}

void NVRPage::Grid_SVR_Draw()
{
    m_ui->list->setList(m_model, {.table = "Grid_SVRsList"_L1,
                                  .button = "lbAdd"_L1,
                                  .name = 82,
                                  .filterText = 863,
                                  .buttonText = Message::kAdd,
                                  .illustration = "empty-recorder"_L1,
                                  .none = 861,
                                  .noneHint = 862,
                                  .noMatch = 867,
                                  .counts = [this] { return counts(); }});
    DeskTable* grid = m_ui->list->table();
    grid->sortBy(NVRListModel::Number);
    QHeaderView* head = grid->horizontalHeader();
    head->moveSection(head->visualIndex(NVRListModel::Connection), NVRListModel::Edit);
    LeaveOutColumns(grid, std::array<int, 3>{NVRListModel::Brand, NVRListModel::ValidChannels, NVRListModel::Model});
    grid->whenOpened([this](int slot) { emit editWanted(slot); });
    grid->addRowAction(kRename, Qt::Key_F2, [this](int slot) { emit renameWanted(slot); });
    grid->whenRemoved([this](int slot) { remove(slot); });
}

void NVRPage::Grid_SVR_Set_withDB()
{
    m_model->refill();
    m_watch.refresh();
}

QString NVRPage::counts() const
{
    return GetLangString(865).arg(m_model->rowCount()).arg(kMaxSVR) + u"  ·  "_s +
           GetLangString(Message::kChannelsOf).arg(CameraTotal(m_recorders.SVRList)).arg(iChannelLimit + 1);
}

void NVRPage::changeLanguage()
{
    m_ui->list->changeLanguage();
}

void NVRPage::remove(int slot)
{
    Trapped("Form_Initial - Grid_SVRsList_Click", [&] {
        if (AskToDestroy(kAskDelete, NameOf(At(m_recorders.SVRList, slot), slot)))
            emit removeWanted(slot);
    });
}

void NVRPage::showWork(Work& work)
{
    m_ui->list->showWork(work);
}

void NVRPage::lbAdd_Click()
{
    Trapped("Form_Initial - lbAdd_Click", [&] {
        if (OccupiedSlots(m_recorders.SVRWorkList) >= kMaxSVR) {
            Tell(Tone::Warning, GetLangString(715) + u" (16)"_s);
            return;
        }
        emit wizardWanted();
    });
}
