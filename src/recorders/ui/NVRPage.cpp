#include "recorders/ui/NVRPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Boxes.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "platform/Work.h"
#include "recorders/ui/ui_NVRPage.h"
#include "support/Conversions.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAskDelete = 483;

// What a question about a recorder calls it.
QString NameOf(const SVRRecord& record, int slot)
{
    return u"NVR %1  ·  "_s.arg(slot + 1) + record.sSVR_Name + u"  ·  "_s + record.sSVR_IP + u':' +
           QString::number(record.iSVR_HttpPort);
}

// Sorts and filters the list, and gives its last two columns their icons.
class ListProxy final : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DecorationRole && index.column() == NVRListModel::Edit)
            return Icon("edit"_L1);
        if (role == Qt::DecorationRole && index.column() == NVRListModel::Delete)
            return Icon("delete"_L1);
        return QSortFilterProxyModel::data(index, role);
    }
};

} // namespace

NVRPage::NVRPage(const RecorderSet& recorders, DevicePoller& poller, QWidget* parent)
    : QWidget(parent)
    , m_recorders(recorders)
    , m_ui(std::make_unique<Ui::NVRPage>())
    , m_watch(poller, recorders.SVRList)
    , m_model(new NVRListModel(recorders, m_watch, this))
    , m_proxy(new ListProxy(this))
{
    m_ui->setupUi(this);
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortRole(NVRListModel::kSortRole);
    m_proxy->setSortLocaleAware(true);
    m_ui->Grid_SVRsList->setModel(m_proxy);
    m_ui->empty->setIllustration("empty-recorder"_L1);
    m_ui->lbAdd->setIcon(Icon("add"_L1));
    connect(m_ui->lbAdd, &QPushButton::clicked, this, &NVRPage::lbAdd_Click);
    connect(m_ui->empty, &EmptyState::clicked, this, &NVRPage::lbAdd_Click);
    connect(m_ui->txtFilter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_proxy->setFilterFixedString(text);
        showCounts();
    });
    ActOnRows(m_ui->Grid_SVRsList, {NVRListModel::Edit, NVRListModel::Delete},
              [this](const QModelIndex& cell) { Grid_SVRsList_Click(cell); });
    OnKey(this, Qt::Key_F5, [this] { readAgain(); });
    OnKey(this, Qt::Key_F2, [this] {
        const QModelIndex row = m_ui->Grid_SVRsList->currentIndex();
        if (row.isValid())
            emit renameWanted(row.data(NVRListModel::kSlotRole).toInt());
    });
    connect(m_ui->txtFilter, &QLineEdit::returnPressed, m_ui->Grid_SVRsList, qOverload<>(&QWidget::setFocus));
    // A changed state may bring a row into the filter or take it out.
    connect(m_model, &NVRListModel::dataChanged, this, &NVRPage::showCounts);
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
    QTableView* grid = m_ui->Grid_SVRsList;
    StyleTable(grid);
    MonospaceColumn(grid, NVRListModel::Address);
    grid->setSortingEnabled(true);
    grid->sortByColumn(NVRListModel::Number, Qt::AscendingOrder);
    StatusColumn(grid, NVRListModel::Connection);
    QHeaderView* head = grid->horizontalHeader();
    head->moveSection(head->visualIndex(NVRListModel::Connection), NVRListModel::Edit);
    head->setStretchLastSection(false);
    static constexpr std::array widths{76, 0, 196, 92, 92, 92, 48, 48, 196};
    SetColumnWidths(grid, widths);
    head->setSectionResizeMode(NVRListModel::Name, QHeaderView::Stretch);
    LeaveOutColumns(grid, std::array<int, 3>{NVRListModel::Brand, NVRListModel::ValidChannels, NVRListModel::Model});
}

void NVRPage::Grid_SVR_Set_withDB()
{
    // The same recorder stays current, or the one that has come to its place.
    const QModelIndex before = m_ui->Grid_SVRsList->currentIndex();
    const int row = qMax(before.row(), 0);
    const QVariant slot = before.data(NVRListModel::kSlotRole);
    m_model->refill();
    m_watch.refresh();
    showCounts();
    const QModelIndexList same =
        m_proxy->match(m_proxy->index(0, 0), NVRListModel::kSlotRole, slot, 1, Qt::MatchExactly);
    m_ui->Grid_SVRsList->setCurrentIndex(same.isEmpty() ? m_proxy->index(qMin(row, m_proxy->rowCount() - 1), 0)
                                                        : same.front());
}

void NVRPage::showCounts()
{
    const int recorders = m_model->rowCount();
    m_ui->lbCounts->setText(GetLangString(865).arg(recorders).arg(kMaxSVR) + u"  ·  "_s +
                            GetLangString(866).arg(CameraTotal(m_recorders.SVRList)).arg(iChannelLimit + 1));
    m_ui->lbCounts->setVisible(recorders > 0);
    m_ui->txtFilter->setVisible(recorders > 0);
    m_ui->lbAdd->setVisible(recorders > 0);
    if (recorders == 0) {
        m_ui->empty->setHeadline(GetLangString(861));
        m_ui->empty->setHint(GetLangString(862));
        m_ui->empty->setButton(GetLangString(385));
        m_ui->stack->setCurrentWidget(m_ui->emptyPage);
    } else {
        m_ui->lbNoMatch->setVisible(m_proxy->rowCount() == 0);
        m_ui->stack->setCurrentWidget(m_ui->listPage);
    }
}

void NVRPage::changeLanguage()
{
    m_ui->txtFilter->setPlaceholderText(GetLangString(863));
    m_ui->txtFilter->setAccessibleName(GetLangString(863));
    m_ui->Grid_SVRsList->setAccessibleName(GetLangString(82));
    m_model->retranslate();
    showCounts();
}

void NVRPage::Grid_SVRsList_Click(const QModelIndex& cell)
{
    Trapped("Form_Initial - Grid_SVRsList_Click", [&] {
        const int slot = cell.data(NVRListModel::kSlotRole).toInt();
        if (cell.column() == NVRListModel::Edit) {
            emit editWanted(slot);
        } else if (cell.column() == NVRListModel::Delete &&
                   AskToDestroy(kAskDelete, NameOf(At(m_recorders.SVRList, slot), slot))) {
            emit removeWanted(slot);
        }
    });
}

void NVRPage::showWork(Work& work)
{
    connect(m_ui->lbRemoveStop, &QPushButton::clicked, &work, &Work::stop);
    connect(&work, &Work::stepChanged, this, [this, &work] { m_ui->lbRemoveStep->setText(work.step()); });
    connect(&work, &Work::runningChanged, this, [this](bool running) {
        m_ui->lbRemoveStep->setVisible(running);
        m_ui->lbRemoveStop->setVisible(running);
        m_ui->lbAdd->setEnabled(!running);
        m_ui->txtFilter->setEnabled(!running);
        m_ui->stack->setEnabled(!running);
        if (running)
            m_ui->lbRemoveStop->setFocus();
        else
            m_ui->Grid_SVRsList->setFocus();
    });
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
