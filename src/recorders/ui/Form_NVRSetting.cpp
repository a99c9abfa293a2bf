#include "recorders/ui/Form_NVRSetting.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "look/ActionBar.h"
#include "look/Fields.h"
#include "look/StepStrip.h"
#include "look/Tables.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "recorders/ui/ui_Form_NVRSetting.h"
#include "support/Conversions.h"

#include <QApplication>
#include <QCheckBox>
#include <QIntValidator>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFrameChoose = 0;
constexpr int kFrameSearch = 1;
constexpr int kFrameStatus = 2;
constexpr int kStatusRows = 11; // rows of the status grid on show at a time

// Windows and parts of the wizard, held back while devices are asked.
class Disabled
{
public:
    explicit Disabled(std::initializer_list<QWidget*> widgets)
    {
        for (QWidget* widget : widgets) {
            if (widget && widget->isEnabled()) {
                widget->setEnabled(false);
                m_widgets << widget;
            }
        }
    }
    ~Disabled()
    {
        for (const QPointer<QWidget>& widget : m_widgets) {
            if (widget)
                widget->setEnabled(true);
        }
    }
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;

private:
    QList<QPointer<QWidget>> m_widgets;
};

} // namespace

Form_NVRSetting::Form_NVRSetting(DetectContext context, std::function<void()> finish, QWidget* parent)
    : DialogFrame(parent)
    , m_context(context)
    , m_finish(std::move(finish))
    , m_ui(std::make_unique<Ui::Form_NVRSetting>())
    , m_status(new DetectStatusModel(this))
    , m_found(new SearchListModel(context.recorders, this))
    , m_foundProxy(new QSortFilterProxyModel(this))
    , Timer_StartDetect(new QTimer(this))
{
    setObjectName(u"Form_NVRSetting"_s);
    m_ui->setupUi(content());
    m_cancel = footer()->addButton(QString());
    m_next = footer()->addButton(QString(), "primary"_L1);
    m_next->setDefault(true);
    m_cancel->setObjectName(u"lbCancel"_s);
    connect(m_cancel, &QPushButton::clicked, this, &Form_NVRSetting::lbCancel_Click);
    connect(m_next, &QPushButton::clicked, this, [this] { lbNext_Click(m_frame); });

    static constexpr std::array lengths{31, 255, 5, 31, 31};
    for (int i = 0; i < static_cast<int>(lengths.size()); ++i)
        field(static_cast<ManualField>(i))->setMaxLength(lengths[static_cast<std::size_t>(i)]);
    m_ui->Text_Manual_2->setValidator(new QIntValidator(0, 99999, this));
    m_ui->Text_Manual_2->setText(u"80"_s);
    // Addresses and ports read from the left in every language.
    m_ui->Text_Manual_1->setLayoutDirection(Qt::LeftToRight);
    m_ui->Text_Manual_2->setLayoutDirection(Qt::LeftToRight);

    QTableView* grid = m_ui->Grid_DetectStatus;
    grid->setModel(m_status);
    StyleTable(grid);
    MonospaceColumn(grid, DetectStatusModel::Address);
    StatusColumn(grid, DetectStatusModel::Status);
    static constexpr std::array widths{170, 140, 70, 120, 70};
    for (int column = 0; column < static_cast<int>(widths.size()); ++column)
        grid->setColumnWidth(column, widths[static_cast<std::size_t>(column)]);

    m_context.stopped = [this] { return m_stopped; };
    m_foundProxy->setSourceModel(m_found);
    m_foundProxy->setFilterKeyColumn(-1);
    m_foundProxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_foundProxy->setSortLocaleAware(true);
    QTableView* list = m_ui->Grid_SearchList;
    list->setModel(m_foundProxy);
    StyleTable(list);
    MonospaceColumn(list, SearchListModel::Address);
    list->setSortingEnabled(true);
    list->sortByColumn(-1, Qt::AscendingOrder); // in order of arrival until a head is chosen
    static constexpr std::array searchWidths{240, 150, 80, 130};
    for (int column = 0; column < static_cast<int>(searchWidths.size()); ++column)
        list->setColumnWidth(column, searchWidths[static_cast<std::size_t>(column)]);
    connect(m_ui->txtSearchFilter, &QLineEdit::textChanged, m_foundProxy, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_ui->Chk_SelectAll, &QCheckBox::clicked, this, [this](bool checked) { // the rows on show, from the top
        for (int row = 0; row < m_foundProxy->rowCount(); ++row)
            m_foundProxy->setData(m_foundProxy->index(row, SearchListModel::DeviceName),
                                  checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    });
    connect(m_ui->lbSearch, &QPushButton::clicked, this, &Form_NVRSetting::lbSearch_Click);
    connect(m_found, &SearchListModel::dataChanged, this, &Form_NVRSetting::showChosen);
    connect(&m_context.com.finder, &FinderBridge::DeviceFound, this, [this](const FoundDevice& device) {
        if (m_frame == kFrameSearch)
            m_found->add(device);
    });
    connect(&m_context.com.finder, &FinderBridge::Finished, this, &Form_NVRSetting::searchEnded);

    Timer_StartDetect->setSingleShot(true);
    connect(Timer_StartDetect, &QTimer::timeout, this, &Form_NVRSetting::detectAll);
    fillSlots();
    ChangeLanguage();
    LoadFrame(kFrameChoose);
    resize(820, 560);
}

Form_NVRSetting::~Form_NVRSetting()
{
    m_context.com.finder.Stop();
}

QLineEdit* Form_NVRSetting::field(ManualField which) const
{
    switch (which) {
    case ManualField::Name:
        return m_ui->Text_Manual_0;
    case ManualField::Address:
        return m_ui->Text_Manual_1;
    case ManualField::Port:
        return m_ui->Text_Manual_2;
    case ManualField::User:
        return m_ui->Text_Manual_3;
    case ManualField::Password:
        return m_ui->Text_Manual_4;
    }
    return m_ui->Text_Manual_0;
}

void Form_NVRSetting::fillSlots()
{
    m_ui->cmbSVRNo->clear();
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        if (At(m_context.recorders.SVRWorkList, slot).sSVR_IP.isEmpty())
            m_ui->cmbSVRNo->addItem(QString::number(slot + 1), slot);
    }
    m_ui->cmbSVRNo->setCurrentIndex(0);
}

void Form_NVRSetting::ChangeLanguage()
{
    ApplyLanguage(this);
    setWindowTitle(GetLangString(287).trimmed());
    steps()->setSteps({GetLangString(875), GetLangString(170), GetLangString(576)});
    m_cancel->setText(GetLangString(475));
    for (auto [label, edit] : {std::pair<QLabel*, QLineEdit*>{m_ui->lbManual_0, m_ui->Text_Manual_0},
                               {m_ui->lbManual_1, m_ui->Text_Manual_1},
                               {m_ui->lbManual_2, m_ui->Text_Manual_2},
                               {m_ui->lbManual_3, m_ui->Text_Manual_3},
                               {m_ui->lbManual_4, m_ui->Text_Manual_4}})
        edit->setAccessibleName(label->text());
    m_ui->cmbSVRNo->setAccessibleName(GetLangString(892));
    m_ui->Grid_DetectStatus->setAccessibleName(GetLangString(289));
    m_ui->Grid_SearchList->setAccessibleName(GetLangString(288));
    m_ui->txtSearchFilter->setPlaceholderText(GetLangString(953));
    m_ui->txtSearchFilter->setAccessibleName(GetLangString(953));
    m_ui->lbSearch->setText(GetLangString(170));
    AddEye(m_ui->Text_Manual_4, GetLangString(887), GetLangString(899));
}

void Form_NVRSetting::LoadFrame(int index)
{
    m_frame = index;
    m_ui->frames->setCurrentWidget(index == kFrameStatus   ? m_ui->Frame_2
                                   : index == kFrameSearch ? m_ui->Frame_1
                                                           : m_ui->Frame_0);
    steps()->setCurrent(index);
    m_next->setObjectName(u"lbNext_"_s + QString::number(index));
    m_next->setText(GetLangString(index == kFrameStatus ? 873 : 277));
    if (index == kFrameChoose)
        m_ui->Text_Manual_0->setFocus();
}

void Form_NVRSetting::lbNext_Click(int index)
{
    if (m_busy)
        return;
    Trapped("Form_NVRSetting - lbNext_Click", [&] {
        if (index == kFrameChoose && m_ui->OptMode_0->isChecked()) {
            LoadFrame(kFrameSearch);
            lbSearch_Click();
        } else if (index == kFrameChoose) {
            beginManual();
        } else if (index == kFrameSearch) {
            beginChosen();
        } else if (index == kFrameStatus) {
            m_finish();
            accept();
        }
    });
}

void Form_NVRSetting::lbCancel_Click()
{
    if (m_busy) {
        m_stopped = true;
        m_cancel->setEnabled(false);
        m_context.com.web.AbortWaited();
    } else {
        reject();
    }
}

void Form_NVRSetting::lbSearch_Click()
{
    m_ui->Chk_SelectAll->setChecked(false);
    m_found->clear();
    showChosen();
    m_ui->lbSearch->setText(GetLangString(170) + u"..."_s);
    m_ui->lbSearch->setEnabled(false);
    if (!m_context.com.finder.Search())
        searchEnded();
}

void Form_NVRSetting::searchEnded()
{
    m_ui->lbSearch->setText(GetLangString(170));
    m_ui->lbSearch->setEnabled(true);
    if (m_frame == kFrameSearch && m_found->rowCount() == 0)
        footer()->setNote(GetLangString(954));
}

void Form_NVRSetting::showChosen()
{
    footer()->setNote(
        GetLangString(955).arg(OccupiedSlots(m_context.recorders.SVRWorkList) + m_found->checkedRows()).arg(kMaxSVR));
}

void Form_NVRSetting::beginChosen()
{
    if (m_found->checkedRows() == 0) {
        MsgBox(GetLangString(832), InfoBoxStyle(), u"Information"_s);
        return;
    }
    m_context.com.finder.Stop();
    searchEnded();
    beginDetection(m_found->chosen());
}

void Form_NVRSetting::reject()
{
    if (!m_busy)
        DialogFrame::reject();
    else if (m_cancel->isEnabled() && m_cancel->property(kStopsWork).toBool())
        lbCancel_Click();
}

void Form_NVRSetting::beginManual()
{
    const QString title = u"Information"_s;
    ManualFault fault;
    {
        // A name look-up may wait.
        m_busy = true;
        fault =
            ValidateManualNVR(m_ui->Text_Manual_0->text(), m_ui->Text_Manual_1->text(), m_ui->Text_Manual_2->text());
        m_busy = false;
    }
    const int port = m_ui->Text_Manual_2->text().trimmed().toInt();
    if (fault.message == 0 && (port < 1 || port > 65535))
        fault = {556, ManualField::Port};
    if (fault.message != 0) {
        MsgBox(GetLangString(fault.message), InfoBoxStyle(), title);
        field(fault.field)->setFocus();
        field(fault.field)->selectAll();
        return;
    }
    NVRDetectItem item;
    item.iSlot = static_cast<qint16>(m_ui->cmbSVRNo->currentData().toInt());
    item.sName = m_ui->Text_Manual_0->text();
    item.sIP = m_ui->Text_Manual_1->text();
    item.iPort = port;
    item.sUser = m_ui->Text_Manual_3->text();
    item.sPassword = m_ui->Text_Manual_4->text();
    beginDetection({item});
}

void Form_NVRSetting::beginDetection(std::vector<NVRDetectItem> items)
{
    m_status->setItems(std::move(items));
    LoadFrame(kFrameStatus);
    footer()->setNote(GetLangString(874).arg(0).arg(m_status->rowCount()));
    setBusy(true);
    Timer_StartDetect->start(0);
}

void Form_NVRSetting::detectAll()
{
    {
        const Disabled disabled{parentWidget() ? parentWidget()->window() : nullptr, content()};
        const std::vector<NVRDetectItem> items = m_status->items();
        for (int row = 0; row < static_cast<int>(items.size()) && !Closing() && !m_stopped; ++row) {
            NVRDetectItem item = At(items, row);
            if (item.sIP.isEmpty())
                continue;
            if (item.iSlot < 0)
                item.iSlot = static_cast<qint16>(FirstFreeSlot(m_context.recorders.SVRWorkList));
            if ((row + 1) % kStatusRows == 0)
                m_ui->Grid_DetectStatus->scrollTo(m_status->index(row, 0), QAbstractItemView::PositionAtTop);
            const bool added = DetectNVR(m_context, item, [&](const DetectStatus& status) {
                m_status->setStatus(row, status);
                footer()->setNote(GetLangString(874).arg(m_status->finishedRows()).arg(m_status->rowCount()));
            });
            if (added)
                m_status->setChannels(row, CameraCount(At(m_context.recorders.SVRWorkList, item.iSlot)));
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
    }
    setBusy(false);
    m_next->setFocus();
}

void Form_NVRSetting::setBusy(bool busy)
{
    m_busy = busy;
    m_next->setEnabled(!busy);
    m_cancel->setEnabled(true);
    m_cancel->setProperty(kStopsWork, busy);
    setProperty(kStopsWork, busy); // Esc
    m_cancel->setText(GetLangString(busy ? 951 : 475));
    if (busy) {
        m_stopped = false;
        m_cancel->setFocus();
    }
}
