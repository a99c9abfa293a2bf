#include "recorders/ui/RecorderSearchFrame.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "device/bridge/FinderBridge.h"
#include "look/style/Icons.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "recorders/ui/ui_RecorderSearchFrame.h"

#include <QHeaderView>
#include <QShortcut>
#include <QSortFilterProxyModel>

using namespace Qt::StringLiterals;

RecorderSearchFrame::RecorderSearchFrame(FinderBridge& finder, const RecorderSet& recorders, QWidget* parent)
    : QWidget(parent)
    , m_finder(finder)
    , m_ui(std::make_unique<Ui::RecorderSearchFrame>())
    , m_found(new SearchListModel(recorders, this))
    , m_proxy(new QSortFilterProxyModel(this))
{
    m_ui->setupUi(this);
    m_proxy->setSourceModel(m_found);
    m_proxy->setFilterKeyColumn(-1);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_proxy->setSortLocaleAware(true);
    QTableView* list = m_ui->Grid_SearchList;
    list->setModel(m_proxy);
    StyleTable(list);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    MonospaceColumn(list, SearchListModel::Address);
    list->setSortingEnabled(true);
    list->sortByColumn(-1, Qt::AscendingOrder); // in order of arrival until a head is chosen
    static constexpr std::array widths{0, 150, 80, 130, 180};
    SetColumnWidths(list, widths);
    list->horizontalHeader()->setStretchLastSection(false);
    list->horizontalHeader()->setSectionResizeMode(SearchListModel::DeviceName, QHeaderView::Stretch);
    // The check of the first column is hit by the pointer alone: Space and a double click anywhere in the row do it
    // too.
    auto* space = new QShortcut(Qt::Key_Space, list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(space, &QShortcut::activated, this, [this] { toggle(m_ui->Grid_SearchList->currentIndex()); });
    connect(list, &QTableView::doubleClicked, this, [this](const QModelIndex& cell) {
        if (cell.column() != SearchListModel::DeviceName)
            toggle(cell);
    });
    connect(m_ui->txtSearchFilter, &QLineEdit::textChanged, m_proxy, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_ui->txtSearchFilter, &QLineEdit::returnPressed, list, qOverload<>(&QWidget::setFocus));
    connect(m_ui->Chk_SelectAll, &QCheckBox::clicked, this, [this](bool checked) { // the rows on show, from the top
        for (int row = 0; row < m_proxy->rowCount(); ++row)
            m_proxy->setData(m_proxy->index(row, SearchListModel::DeviceName), checked ? Qt::Checked : Qt::Unchecked,
                             Qt::CheckStateRole);
    });
    m_ui->lbSearch->setIcon(Icon("refresh"_L1));
    m_ui->barSearch->hide();
    connect(m_ui->lbSearch, &QPushButton::clicked, this, &RecorderSearchFrame::lbSearch_Click);
    OnKey(this, Qt::Key_F5, [this] { m_ui->lbSearch->click(); });
    connect(m_found, &SearchListModel::dataChanged, this, &RecorderSearchFrame::changed);
    connect(m_found, &SearchListModel::rowsInserted, this, &RecorderSearchFrame::changed);
    connect(&m_finder, &FinderBridge::DeviceFound, this, [this](const FoundDevice& device) {
        if (isVisible())
            m_found->add(device);
    });
    connect(&m_finder, &FinderBridge::Finished, this, &RecorderSearchFrame::searchEnded);
}

RecorderSearchFrame::~RecorderSearchFrame()
{
    m_finder.Stop();
}

void RecorderSearchFrame::changeLanguage()
{
    m_ui->Grid_SearchList->setAccessibleName(GetLangString(288));
    m_ui->txtSearchFilter->setPlaceholderText(GetLangString(953));
    m_ui->txtSearchFilter->setAccessibleName(GetLangString(953));
    m_ui->lbSearch->setText(GetLangString(170));
    m_ui->lbSearch->setToolTip(GetLangString(170) + u" (F5)"_s);
}

void RecorderSearchFrame::toggle(const QModelIndex& row)
{
    const QModelIndex cell = row.siblingAtColumn(SearchListModel::DeviceName);
    const bool checked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    if (cell.isValid())
        m_proxy->setData(cell, checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void RecorderSearchFrame::open()
{
    m_found->refresh();
    m_ui->txtSearchFilter->setFocus();
    if (m_found->rowCount() == 0)
        lbSearch_Click();
    else
        m_ui->Grid_SearchList->setFocus();
}

void RecorderSearchFrame::lbSearch_Click()
{
    Trapped("Form_NVRSetting - lbSearch_Click", [&] {
        m_ui->Chk_SelectAll->setChecked(false);
        m_found->clear();
        m_searching = true;
        m_ui->barSearch->show();
        m_ui->lbSearch->setText(GetLangString(170) + u"..."_s);
        m_ui->lbSearch->setEnabled(false);
        emit changed();
        if (!m_finder.Search())
            searchEnded();
    });
}

void RecorderSearchFrame::stop()
{
    m_finder.Stop();
    searchEnded();
}

void RecorderSearchFrame::searchEnded()
{
    m_searching = false;
    m_ui->barSearch->hide();
    m_ui->lbSearch->setText(GetLangString(170));
    m_ui->lbSearch->setEnabled(true);
    emit changed();
}

bool RecorderSearchFrame::nothingFound() const
{
    return !m_searching && m_found->rowCount() == 0;
}
