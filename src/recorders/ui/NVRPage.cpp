#include "recorders/ui/NVRPage.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "look/Icons.h"
#include "look/Tables.h"
#include "platform/MsgBox.h"
#include "recorders/ui/ui_NVRPage.h"

#include <QHeaderView>
#include <QShortcut>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

namespace {

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

NVRPage::NVRPage(const RecorderSet& recorders, QWidget* parent)
    : QWidget(parent)
    , m_recorders(recorders)
    , m_ui(std::make_unique<Ui::NVRPage>())
    , m_model(new NVRListModel(recorders, this))
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
    connect(m_ui->Grid_SVRsList, &QTableView::clicked, this, &NVRPage::Grid_SVRsList_Click);
    auto* remove = new QShortcut(QKeySequence::Delete, m_ui->Grid_SVRsList);
    remove->setContext(Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, [this] {
        const QModelIndex row = m_ui->Grid_SVRsList->currentIndex();
        if (row.isValid())
            Grid_SVRsList_Click(row.siblingAtColumn(NVRListModel::Delete));
    });
    Grid_SVR_Draw();
}

NVRPage::~NVRPage() = default;

void NVRPage::Grid_SVR_Draw()
{
    QTableView* grid = m_ui->Grid_SVRsList;
    StyleTable(grid);
    MonospaceColumn(grid, NVRListModel::Address);
    grid->setSortingEnabled(true);
    grid->sortByColumn(NVRListModel::Number, Qt::AscendingOrder);
    static constexpr std::array widths{72, 230, 210, 140, 160, 110, 44, 44};
    for (int column = 0; column < NVRListModel::ColumnCount; ++column)
        grid->setColumnWidth(column, widths[static_cast<std::size_t>(column)]);
}

void NVRPage::Grid_SVR_Set_withDB()
{
    m_model->refill();
    showCounts();
    if (m_proxy->rowCount() > 0 && !m_ui->Grid_SVRsList->currentIndex().isValid())
        m_ui->Grid_SVRsList->setCurrentIndex(m_proxy->index(0, 0));
}

void NVRPage::showCounts()
{
    const int recorders = m_model->rowCount();
    m_ui->lbCounts->setText(GetLangString(865).arg(recorders).arg(kMaxSVR) + u"  ·  "_s +
                            GetLangString(866).arg(CameraTotal(m_recorders.SVRList)).arg(iChannelLimit));
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
                   MsgBox(GetLangString(483), AskBoxStyle(), GetLangString(570)) == MsgResult::Yes) {
            emit removeWanted(slot);
        }
    });
}

void NVRPage::lbAdd_Click()
{
    Trapped("Form_Initial - lbAdd_Click", [&] {
        if (OccupiedSlots(m_recorders.SVRWorkList) >= kMaxSVR) {
            MsgBox(GetLangString(715) + u" (16)"_s, InfoBoxStyle(), u"Information"_s);
            return;
        }
        emit wizardWanted();
    });
}
