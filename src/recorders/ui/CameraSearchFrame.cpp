#include "recorders/ui/CameraSearchFrame.h"

#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "app/shell/ui/ListPane.h"
#include "look/widgets/Keys.h"
#include "recorders/camera/CameraEdit.h"
#include "recorders/ui/ui_CameraSearchFrame.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

CameraSearchFrame::CameraSearchFrame(CameraEdit& edit, Work& work, QWidget* parent)
    : QWidget(parent)
    , m_edit(edit)
    , m_work(work)
    , m_ui(std::make_unique<Ui::CameraSearchFrame>())
    , m_found(new CameraSearchModel(this))
{
    m_ui->setupUi(this);
    m_ui->list->setList(m_found, {.table = "Grid_CamSearchList"_L1,
                                  .filter = "txtCamSearchFilter"_L1,
                                  .button = "lb_CamReSearch"_L1,
                                  .name = 612,
                                  .filterText = 971,
                                  .buttonText = Message::kSearch,
                                  .buttonIcon = "refresh"_L1,
                                  .buttonKind = {},
                                  .illustration = "empty-recorder"_L1,
                                  .none = 972,
                                  .noneHint = 973,
                                  .counts = [this] { return GetLangString(974).arg(m_found->rowCount()); }});
    DeskTable* grid = m_ui->list->table();
    grid->sortBy(CameraSearchModel::Address);
    grid->whenOpened([this](int record) { choose(record); });
    OnKey(this, Qt::Key_F5, [this] { lb_CamReSearch_Click(); });
    connect(m_ui->list, &ListPane::buttonClicked, this, &CameraSearchFrame::lb_CamReSearch_Click);
    connect(grid, &DeskTable::shownChanged, this, [this] {
        if (!hasChoice())
            m_ui->list->table()->selectRow(0);
        emit choiceChanged();
    });
    connect(&m_work, &Work::runningChanged, this, [this](bool running) {
        if (!running)
            m_ui->list->setSearching(false);
    });
}

CameraSearchFrame::~CameraSearchFrame() = default;

void CameraSearchFrame::changeLanguage()
{
    m_ui->list->changeLanguage();
    m_ui->list->button()->setToolTip(GetLangString(Message::kSearch) + u" (F5)"_s);
}

void CameraSearchFrame::open()
{
    if (m_found->rowCount() == 0)
        lb_CamReSearch_Click();
    else
        m_ui->list->table()->setFocus();
}

void CameraSearchFrame::lb_CamReSearch_Click()
{
    const auto search = [this] {
        m_found->setCameras({});
        m_ui->list->setSearching(true);
        return m_edit.searchCameras(m_work);
    };
    StartWork(m_work, "Form_NVRSetting - lb_CamReSearch_Click"_L1, search, [this](const CameraEdit::Search& result) {
        m_ui->list->setSearching(false);
        m_found->setCameras(result.found);
        if (hasChoice())
            m_ui->list->table()->setFocus();
        if (result.outcome.ok || !m_work.stopped())
            TellOutcome(result.outcome);
    });
}

bool CameraSearchFrame::hasChoice() const
{
    return m_ui->list->table()->selectionModel()->hasSelection();
}

void CameraSearchFrame::chooseCurrent()
{
    if (const int record = m_ui->list->table()->currentRecord(); record >= 0)
        choose(record);
}

void CameraSearchFrame::choose(int record)
{
    const FoundCamera& found = m_found->camera(record);
    emit chosen(found.IP, found.HTTPPort);
}
