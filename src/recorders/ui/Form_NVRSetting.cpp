#include "recorders/ui/Form_NVRSetting.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "look/tables/Tables.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/StepStrip.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "recorders/ui/CameraFrame.h"
#include "recorders/ui/CameraSearchFrame.h"
#include "recorders/ui/HeldBack.h"
#include "recorders/ui/NVRDetailFrame.h"
#include "recorders/ui/ui_Form_NVRSetting.h"
#include "support/Conversions.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFrameChoose = 0;
constexpr int kFrameSearch = 1;
constexpr int kFrameStatus = 2;
constexpr int kFrameDetail = 3;
constexpr int kFrameCamera = 4;
constexpr int kFrameCamSearch = 5;
constexpr int kStatusRows = 11; // rows of the status grid on show at a time

// The buttons and the title of a frame: object names and message numbers.
struct FrameFace
{
    const char* next;
    int nextText;
    const char* cancel;
    int cancelText;
    int title;
};
constexpr std::array<FrameFace, 6> kFaces{{{"lbNext_0", 277, "lbCancel", 475, 287},
                                           {"lbNext_1", 277, "lbCancel", 475, 287},
                                           {"lbNext_2", 873, "lbCancel", 475, 287},
                                           {"lbModifyApply_0", 591, "lbModifyApply_1", 475, 290},
                                           {"lbCamModifyApply_0", 591, "lbCamModifyApply_1", 475, 585},
                                           {"lbCamChoose", 875, "lbCamBack", 880, 612}}};

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
    connect(m_cancel, &QPushButton::clicked, this, &Form_NVRSetting::pressCancel);
    connect(m_next, &QPushButton::clicked, this, &Form_NVRSetting::pressNext);

    m_manual = std::make_unique<RecorderFields>(std::array<QLineEdit*, RecorderFields::kCount>{
        m_ui->Text_Manual_0, m_ui->Text_Manual_1, m_ui->Text_Manual_2, m_ui->Text_Manual_3, m_ui->Text_Manual_4});
    m_ui->Text_Manual_2->setText(u"80"_s);

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
    setCloseText(GetLangString(881));
    steps()->setSteps({GetLangString(875), GetLangString(170), GetLangString(576)});
    m_manual->nameByLabels();
    m_ui->cmbSVRNo->setAccessibleName(GetLangString(892));
    m_ui->Grid_DetectStatus->setAccessibleName(GetLangString(289));
    m_ui->Grid_SearchList->setAccessibleName(GetLangString(288));
    m_ui->txtSearchFilter->setPlaceholderText(GetLangString(953));
    m_ui->txtSearchFilter->setAccessibleName(GetLangString(953));
    m_ui->lbSearch->setText(GetLangString(170));
}

void Form_NVRSetting::SetNVR(int slot, ModifyHooks hooks)
{
    m_hooks = std::move(hooks);
    m_detail = new NVRDetailFrame(m_context, m_ui->frames);
    m_ui->frames->addWidget(m_detail);
    m_camera = new CameraFrame(m_context.com, m_context.recorders, m_ui->frames);
    m_ui->frames->addWidget(m_camera);
    m_camSearch = new CameraSearchFrame(m_camera->edit(), m_ui->frames);
    m_ui->frames->addWidget(m_camSearch);
    connect(m_detail, &NVRDetailFrame::busyChanged, this, &Form_NVRSetting::setBusy);
    connect(m_camera, &CameraFrame::busyChanged, this, &Form_NVRSetting::setBusy);
    connect(m_camSearch, &CameraSearchFrame::busyChanged, this, &Form_NVRSetting::setBusy);
    connect(m_detail, &NVRDetailFrame::changesChanged, this, &Form_NVRSetting::showChanges);
    connect(m_camera, &CameraFrame::stateChanged, this, &Form_NVRSetting::showChanges);
    connect(m_camSearch, &CameraSearchFrame::choiceChanged, this, &Form_NVRSetting::showChanges);
    connect(m_detail, &NVRDetailFrame::channelWanted, this, [this](int channel) {
        m_camera->openChannel(channel);
        LoadFrame(kFrameCamera);
    });
    connect(m_camera, &CameraFrame::searchWanted, this, [this] {
        LoadFrame(kFrameCamSearch);
        m_camSearch->open();
    });
    connect(m_camSearch, &CameraSearchFrame::chosen, this, [this](const QString& address, int port) {
        m_camera->takeFound(address, port);
        LoadFrame(kFrameCamera);
    });
    ApplyLanguage(this);
    m_detail->changeLanguage();
    m_camera->changeLanguage();
    m_camSearch->changeLanguage();
    m_detail->SetNVR(slot);
    resize(1160, 680);
    LoadFrame(kFrameDetail);
}

void Form_NVRSetting::LoadFrame(int index)
{
    m_frame = index;
    const std::array<QWidget*, kFaces.size()> frames{m_ui->Frame_0, m_ui->Frame_1, m_ui->Frame_2,
                                                     m_detail,      m_camera,      m_camSearch};
    m_ui->frames->setCurrentWidget(At(frames, index));
    steps()->setVisible(index <= kFrameStatus);
    if (index <= kFrameStatus)
        steps()->setCurrent(index);
    const FrameFace& face = At(kFaces, index);
    setWindowTitle(GetLangString(face.title).trimmed());
    m_next->setObjectName(QString::fromLatin1(face.next));
    m_next->setText(GetLangString(face.nextText));
    m_cancel->setObjectName(QString::fromLatin1(face.cancel));
    m_cancel->setText(GetLangString(face.cancelText));
    footer()->setNote(QString());
    if (index == kFrameChoose)
        m_ui->Text_Manual_0->setFocus();
    if (index == kFrameDetail) {
        const SVRRecord& record = m_context.recorders.SVREdit;
        setSubtitle(u"NVR %1  ·  "_s.arg(m_detail->slot() + 1) + record.sSVR_Name);
        m_detail->takeFocus();
    } else if (index == kFrameCamera) {
        m_camera->takeFocus();
    }
    showChanges();
}

void Form_NVRSetting::pressNext()
{
    if (m_frame == kFrameDetail)
        lbModifyApply_Click(0);
    else if (m_frame == kFrameCamera)
        lbCamModifyApply_Click(0);
    else if (m_frame == kFrameCamSearch)
        m_camSearch->chooseCurrent();
    else
        lbNext_Click(m_frame);
}

void Form_NVRSetting::pressCancel()
{
    if (m_busy || m_frame < kFrameDetail)
        lbCancel_Click();
    else if (m_frame == kFrameDetail)
        lbModifyApply_Click(1);
    else if (m_frame == kFrameCamera)
        lbCamModifyApply_Click(1);
    else
        LoadFrame(kFrameCamera);
}

// What the frame on show has to say about changes, and which button Return presses.
void Form_NVRSetting::showChanges()
{
    if (!m_detail)
        return;
    const bool recorderFirst = m_frame == kFrameDetail && m_detail->needsDetection();
    const bool cameraFirst = m_frame == kFrameCamera && m_camera->needsDetection();
    m_detail->detectButton()->setDefault(recorderFirst);
    m_camera->detectButton()->setDefault(cameraFirst);
    m_next->setDefault(!recorderFirst && !cameraFirst);
    m_next->setEnabled(!m_busy && (m_frame != kFrameCamSearch || m_camSearch->hasChoice()));
    const bool changes =
        (m_frame == kFrameDetail && m_detail->changed()) || (m_frame == kFrameCamera && m_camera->edit().changed());
    footer()->setNote(changes ? GetLangString(868) : QString());
}

void Form_NVRSetting::lbCamModifyApply_Click(int index)
{
    if (m_busy)
        return;
    Trapped("Form_NVRSetting - lbCamModifyApply_Click", [&] {
        if (index == 0) {
            if (!m_camera->apply())
                return;
            m_detail->channelWritten(m_camera->channel());
        }
        LoadFrame(kFrameDetail);
    });
}

void Form_NVRSetting::lbModifyApply_Click(int index)
{
    if (m_busy)
        return;
    Trapped("Form_NVRSetting - lbModifyApply_Click", [&] {
        if (index != 0) {
            reject();
        } else if (m_detail->apply(m_hooks)) {
            if (m_hooks.SaveCheck)
                m_hooks.SaveCheck();
            accept();
        }
    });
}

void Form_NVRSetting::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_frame > kFrameDetail)
        pressCancel();
    else
        DialogFrame::keyPressEvent(event);
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
        MsgBox(GetLangString(832), InfoBoxStyle(), GetLangString(570));
        return;
    }
    m_context.com.finder.Stop();
    searchEnded();
    beginDetection(m_found->chosen());
}

void Form_NVRSetting::reject()
{
    if (m_busy) {
        if (m_cancel->isEnabled() && m_cancel->property(kStopsWork).toBool())
            lbCancel_Click();
        return;
    }
    if (m_detail)
        Trapped("Form_NVRSetting - lbModifyApply_Click",
                [&] { LeaveUnapplied(m_context.recorders, m_detail->slot(), m_hooks); });
    DialogFrame::reject();
}

void Form_NVRSetting::beginManual()
{
    m_busy = true; // a name look-up may wait
    const bool complete = m_manual->check();
    m_busy = false;
    if (!complete)
        return;
    NVRDetectItem item = m_manual->item();
    item.iSlot = static_cast<qint16>(m_ui->cmbSVRNo->currentData().toInt());
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
        const HeldBack held{content()};
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

void Form_NVRSetting::setBusy(bool busy, bool stoppable)
{
    m_busy = busy;
    const bool stop = busy && stoppable;
    m_next->setEnabled(!busy);
    m_cancel->setEnabled(!busy || stoppable);
    m_cancel->setProperty(kStopsWork, stop);
    setProperty(kStopsWork, stop); // Esc
    m_cancel->setText(GetLangString(stop ? 951 : At(kFaces, m_frame).cancelText));
    if (busy) {
        m_stopped = false;
        if (stoppable)
            m_cancel->setFocus();
    } else {
        showChanges();
    }
}
