#include "recorders/ui/CameraSearchFrame.h"

#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "recorders/camera/CameraEdit.h"
#include "recorders/ui/ui_CameraSearchFrame.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

CameraSearchFrame::CameraSearchFrame(CameraEdit& edit, Work& work, QWidget* parent)
    : QWidget(parent)
    , m_edit(edit)
    , m_work(work)
    , m_ui(std::make_unique<Ui::CameraSearchFrame>())
    , m_found(new CameraSearchModel(this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    m_ui->setupUi(this);
    m_proxy->setSourceModel(m_found);
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortRole(CameraSearchModel::kSortRole);
    m_proxy->setSortLocaleAware(true);
    QTableView* grid = m_ui->Grid_CamSearchList;
    grid->setModel(m_proxy);
    StyleTable(grid);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    MonospaceColumn(grid, CameraSearchModel::Address);
    grid->setSortingEnabled(true);
    grid->sortByColumn(CameraSearchModel::Address, Qt::AscendingOrder);
    static constexpr std::array widths{200, 200, 0, 110};
    SetColumnWidths(grid, widths);
    grid->horizontalHeader()->setStretchLastSection(false);
    grid->horizontalHeader()->setSectionResizeMode(CameraSearchModel::Model, QHeaderView::Stretch);
    ActOnRows(grid, {}, [this](const QModelIndex& row) { choose(row); });
    OnKey(this, Qt::Key_F5, [this] { lb_CamReSearch_Click(); });
    connect(m_ui->txtCamSearchFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_proxy->setFilterFixedString(text);
        showFound();
    });
    connect(m_ui->txtCamSearchFilter, &QLineEdit::returnPressed, grid, qOverload<>(&QWidget::setFocus));
    m_ui->lb_CamReSearch->setIcon(Icon("refresh"_L1));
    m_ui->camSearchEmpty->setIllustration("empty-recorder"_L1);
    connect(m_ui->lb_CamReSearch, &QPushButton::clicked, this, &CameraSearchFrame::lb_CamReSearch_Click);
    connect(m_ui->camSearchEmpty, &EmptyState::clicked, this, &CameraSearchFrame::lb_CamReSearch_Click);
    setSearching(false);
    connect(&m_work, &Work::runningChanged, this, [this](bool running) {
        if (!running)
            setSearching(false);
    });
}

CameraSearchFrame::~CameraSearchFrame() = default;

void CameraSearchFrame::changeLanguage()
{
    m_ui->txtCamSearchFilter->setPlaceholderText(GetLangString(971));
    m_ui->txtCamSearchFilter->setAccessibleName(GetLangString(971));
    m_ui->Grid_CamSearchList->setAccessibleName(GetLangString(612));
    m_ui->lb_CamReSearch->setToolTip(GetLangString(170) + u" (F5)"_s);
    m_ui->camSearchEmpty->setHeadline(GetLangString(972));
    m_ui->camSearchEmpty->setHint(GetLangString(973));
    m_ui->camSearchEmpty->setButton(GetLangString(170));
    showFound();
}

void CameraSearchFrame::open()
{
    if (m_found->rowCount() == 0)
        lb_CamReSearch_Click();
    else
        m_ui->Grid_CamSearchList->setFocus();
}

void CameraSearchFrame::setSearching(bool searching)
{
    m_ui->barCamSearch->setVisible(searching);
    m_ui->lb_CamReSearch->setEnabled(!searching);
    if (searching) {
        m_ui->lbCamFound->setText(GetLangString(888));
        m_ui->camSearchStack->setCurrentWidget(m_ui->camListPage);
        m_ui->lbNoCamera->hide();
    } else {
        showFound();
    }
}

void CameraSearchFrame::showFound()
{
    const bool none = m_found->rowCount() == 0;
    m_ui->lbCamFound->setText(none ? QString() : GetLangString(974).arg(m_found->rowCount()));
    m_ui->camSearchStack->setCurrentWidget(none ? static_cast<QWidget*>(m_ui->camSearchEmpty) : m_ui->camListPage);
    m_ui->txtCamSearchFilter->setVisible(!none);
    m_ui->lb_CamReSearch->setVisible(!none);
    m_ui->lbNoCamera->setVisible(!none && m_proxy->rowCount() == 0);
    if (!m_ui->Grid_CamSearchList->selectionModel()->hasSelection())
        m_ui->Grid_CamSearchList->selectRow(0);
    emit choiceChanged();
}

void CameraSearchFrame::lb_CamReSearch_Click()
{
    const auto search = [this] {
        m_found->setCameras({});
        setSearching(true);
        return m_edit.searchCameras(m_work);
    };
    StartWork(m_work, "Form_NVRSetting - lb_CamReSearch_Click"_L1, search, [this](const CameraEdit::Search& result) {
        m_found->setCameras(result.found);
        showFound();
        if (hasChoice())
            m_ui->Grid_CamSearchList->setFocus();
        if (result.outcome.ok || !m_work.stopped())
            TellOutcome(result.outcome);
    });
}

bool CameraSearchFrame::hasChoice() const
{
    return m_ui->Grid_CamSearchList->selectionModel()->hasSelection();
}

void CameraSearchFrame::chooseCurrent()
{
    choose(m_ui->Grid_CamSearchList->currentIndex());
}

void CameraSearchFrame::choose(const QModelIndex& row)
{
    if (!row.isValid())
        return;
    const FoundCamera& found = m_found->camera(m_proxy->mapToSource(row).row());
    emit chosen(found.IP, found.HTTPPort);
}
