#include "recorders/ui/RecorderSearchFrame.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/ListPane.h"
#include "device/bridge/FinderBridge.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "recorders/ui/ui_RecorderSearchFrame.h"

#include <QCheckBox>
#include <QPushButton>

using namespace Qt::StringLiterals;

RecorderSearchFrame::RecorderSearchFrame(FinderBridge& finder, const RecorderSet& recorders, QWidget* parent)
    : QWidget(parent)
    , m_finder(finder)
    , m_ui(std::make_unique<Ui::RecorderSearchFrame>())
    , m_found(new SearchListModel(recorders, this))
{
    m_ui->setupUi(this);
    m_ui->list->setList(m_found, {.table = "Grid_SearchList"_L1,
                                  .filter = "txtSearchFilter"_L1,
                                  .button = "lbSearch"_L1,
                                  .name = 288,
                                  .filterText = 953,
                                  .buttonText = Message::kSearch,
                                  .buttonIcon = "refresh"_L1,
                                  .buttonKind = {}});
    m_ui->list->addTool(m_ui->Chk_SelectAll);
    m_ui->list->table()->sortBy(-1); // in order of arrival until a head is chosen
    connect(m_ui->Chk_SelectAll, &QCheckBox::clicked, this, [this](bool checked) { // the rows on show, from the top
        QAbstractItemModel* rows = m_ui->list->table()->model();
        for (int row = 0; row < rows->rowCount(); ++row)
            rows->setData(rows->index(row, SearchListModel::DeviceName), checked ? Qt::Checked : Qt::Unchecked,
                          Qt::CheckStateRole);
    });
    connect(m_ui->list, &ListPane::buttonClicked, this, &RecorderSearchFrame::lbSearch_Click);
    OnKey(this, Qt::Key_F5, [this] { m_ui->list->button()->click(); });
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
    m_ui->list->changeLanguage();
    m_ui->list->button()->setToolTip(GetLangString(Message::kSearch) + u" (F5)"_s);
}

void RecorderSearchFrame::open()
{
    m_found->refresh();
    m_ui->list->filter()->setFocus();
    if (m_found->rowCount() == 0)
        lbSearch_Click();
    else
        m_ui->list->table()->setFocus();
}

void RecorderSearchFrame::lbSearch_Click()
{
    Trapped("Form_NVRSetting - lbSearch_Click", [&] {
        m_ui->Chk_SelectAll->setChecked(false);
        m_found->clear();
        m_searching = true;
        m_ui->list->setSearching(true);
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
    m_ui->list->setSearching(false);
    emit changed();
}

bool RecorderSearchFrame::nothingFound() const
{
    return !m_searching && m_found->rowCount() == 0;
}
