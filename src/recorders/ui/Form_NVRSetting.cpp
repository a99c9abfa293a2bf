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
#include <QIntValidator>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFrameChoose = 0;
constexpr int kFrameStatus = 2;
constexpr int kStatusRows = 11; // rows of the status grid on show at a time

// The main window and the wizard, held back while devices are asked.
class DisabledWindows
{
public:
    explicit DisabledWindows(QWidget* wizard)
    {
        for (QWidget* window : {wizard->parentWidget() ? wizard->parentWidget()->window() : nullptr, wizard}) {
            if (window && window->isEnabled()) {
                window->setEnabled(false);
                m_windows << window;
            }
        }
    }
    ~DisabledWindows()
    {
        for (const QPointer<QWidget>& window : m_windows) {
            if (window)
                window->setEnabled(true);
        }
    }
    DisabledWindows(const DisabledWindows&) = delete;
    DisabledWindows& operator=(const DisabledWindows&) = delete;

private:
    QList<QPointer<QWidget>> m_windows;
};

} // namespace

Form_NVRSetting::Form_NVRSetting(DetectContext context, std::function<void()> finish, QWidget* parent)
    : DialogFrame(parent)
    , m_context(context)
    , m_finish(std::move(finish))
    , m_ui(std::make_unique<Ui::Form_NVRSetting>())
    , m_status(new DetectStatusModel(this))
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

    Timer_StartDetect->setSingleShot(true);
    connect(Timer_StartDetect, &QTimer::timeout, this, &Form_NVRSetting::detectAll);
    fillSlots();
    ChangeLanguage();
    LoadFrame(kFrameChoose);
    resize(820, 560);
}

Form_NVRSetting::~Form_NVRSetting() = default;

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
    AddEye(m_ui->Text_Manual_4, GetLangString(887), GetLangString(899));
}

void Form_NVRSetting::LoadFrame(int index)
{
    m_frame = index;
    m_ui->frames->setCurrentWidget(index == kFrameStatus ? m_ui->Frame_2 : m_ui->Frame_0);
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
        if (index == kFrameChoose) {
            beginManual();
        } else if (index == kFrameStatus) {
            m_finish();
            accept();
        }
    });
}

void Form_NVRSetting::lbCancel_Click()
{
    reject();
}

void Form_NVRSetting::reject()
{
    if (!m_busy)
        DialogFrame::reject();
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
    m_status->setItems({item});
    LoadFrame(kFrameStatus);
    setBusy(true);
    Timer_StartDetect->start(0);
}

void Form_NVRSetting::detectAll()
{
    {
        const DisabledWindows disabled(this);
        const std::vector<NVRDetectItem> items = m_status->items();
        for (int row = 0; row < static_cast<int>(items.size()) && !Closing(); ++row) {
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
    m_cancel->setEnabled(!busy);
}
