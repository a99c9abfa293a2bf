#include "recorders/ui/Form_NVRSetting.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/StartWork.h"
#include "app/shell/Boxes.h"
#include "look/style/Theme.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/SecondClick.h"
#include "look/widgets/StepStrip.h"
#include "platform/MsgBox.h"
#include "recorders/ui/CameraFrame.h"
#include "recorders/ui/CameraSearchFrame.h"
#include "recorders/ui/DetectStatusFrame.h"
#include "recorders/ui/NVRDetailFrame.h"
#include "recorders/ui/RecorderSearchFrame.h"
#include "recorders/ui/ui_Form_NVRSetting.h"
#include "support/Conversions.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFrameChoose = 0;
constexpr int kFrameSearch = 1;
constexpr int kFrameStatus = 2;
constexpr int kFrameDetail = 3;
constexpr int kFrameCamera = 4;
constexpr int kFrameCamSearch = 5;

enum Words
{
    kNoneFound = 954,
    kWithSelected = 955,
    kNoneSelected = 832,
    kFinish = 873,
    kAskKeepAdded = 1035,
    kAskDropTyped = 1036
};

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

Form_NVRSetting::Form_NVRSetting(DetectContext context, WizardHooks wizard, QWidget* parent)
    : DialogFrame(parent)
    , m_context(context)
    , m_wizard(std::move(wizard))
    , m_ui(std::make_unique<Ui::Form_NVRSetting>())
{
    setObjectName(u"Form_NVRSetting"_s);
    m_ui->setupUi(content());
    m_search = new RecorderSearchFrame(m_context.com.finder, m_context.recorders, m_ui->frames);
    m_ui->frames->addWidget(m_search);
    m_status = new DetectStatusFrame(m_context, m_work, m_ui->frames);
    m_ui->frames->addWidget(m_status);
    m_cancel = footer()->addButton(QString());
    m_back = footer()->addButton(QString());
    m_back->setObjectName(u"lbBack"_s);
    m_next = footer()->addButton(QString(), "primary"_L1);
    m_next->setDefault(true);
    connect(m_cancel, &QPushButton::clicked, this, &Form_NVRSetting::pressCancel);
    connect(m_back, &QPushButton::clicked, this, &Form_NVRSetting::lbBack_Click);
    connect(m_next, &QPushButton::clicked, this, &Form_NVRSetting::pressNext);

    m_manual = std::make_unique<RecorderFields>(std::array<QLineEdit*, RecorderFields::kCount>{
        m_ui->Text_Manual_0, m_ui->Text_Manual_1, m_ui->Text_Manual_2, m_ui->Text_Manual_3, m_ui->Text_Manual_4});
    m_ui->Text_Manual_2->setText(QString::number(kUsualPort));
    connect(m_ui->OptMode_1, &QRadioButton::toggled, this, &Form_NVRSetting::showSteps);
    connect(m_search, &RecorderSearchFrame::changed, this, &Form_NVRSetting::showChosen);
    connect(m_status, &DetectStatusFrame::ended, this, &Form_NVRSetting::detectionEnded);
    connect(m_status, &DetectStatusFrame::progressed, this, &Form_NVRSetting::showDetection);
    connect(&m_work, &Work::runningChanged, this, &Form_NVRSetting::setBusy);
    WatchClicks();
    fillSlots();
    ChangeLanguage();
    LoadFrame(kFrameChoose);
    takeRoom({820, 560}, 0.7);
}

Form_NVRSetting::~Form_NVRSetting() = default;

// At least as large as its frames like it, more where the window behind it has it.
void Form_NVRSetting::takeRoom(QSize least, double share)
{
    const QSize behind = parentWidget() ? parentWidget()->window()->size() : QSize();
    resize(least.expandedTo(behind * share));
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
    m_back->setText(GetLangString(880));
    m_manual->nameByLabels();
    m_ui->cmbSVRNo->setAccessibleName(GetLangString(892));
    m_search->changeLanguage();
    m_status->changeLanguage();
}

bool Form_NVRSetting::searches() const
{
    return m_ui->OptMode_0->isChecked();
}

// The steps of the chosen way: who types a recorder does not search.
void Form_NVRSetting::showSteps()
{
    m_ui->manual->setEnabled(!searches());
    const bool withSearch = searches() || m_frame == kFrameSearch;
    const QString choose = GetLangString(Message::kChoose);
    const QString detect = GetLangString(576);
    steps()->setSteps(withSearch ? QStringList{choose, GetLangString(Message::kSearch), detect}
                                 : QStringList{choose, detect});
    steps()->setCurrent(!withSearch && m_frame == kFrameStatus ? 1 : m_frame);
}

void Form_NVRSetting::SetNVR(int slot, std::function<void()> save, RemoveRecorder remove)
{
    m_save = std::move(save);
    m_remove = std::move(remove);
    m_detail = new NVRDetailFrame(m_context, m_work, m_ui->frames);
    m_ui->frames->addWidget(m_detail);
    m_camera = new CameraFrame(m_context.com, m_context.recorders, m_work, m_ui->frames);
    m_ui->frames->addWidget(m_camera);
    m_camSearch = new CameraSearchFrame(m_camera->edit(), m_work, m_ui->frames);
    m_ui->frames->addWidget(m_camSearch);
    connect(m_detail, &NVRDetailFrame::applied, this, [this](Modified modified) { leave(modified, true); });
    connect(m_camera, &CameraFrame::written, this, [this] {
        m_detail->channelWritten(m_camera->channel());
        LoadFrame(kFrameDetail);
    });
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
    takeRoom({1160, 680}, 0.9);
    LoadFrame(kFrameDetail);
}

void Form_NVRSetting::editName()
{
    if (m_detail)
        m_detail->editName();
}

void Form_NVRSetting::LoadFrame(int index)
{
    m_frame = index;
    DropSecondClick();
    const std::array<QWidget*, kFaces.size()> frames{m_ui->Frame_0, m_search, m_status,
                                                     m_detail,      m_camera, m_camSearch};
    m_ui->frames->setCurrentWidget(At(frames, index));
    steps()->setVisible(index <= kFrameStatus);
    if (index <= kFrameStatus)
        showSteps();
    m_back->setVisible(index == kFrameSearch || index == kFrameStatus);
    const FrameFace& face = At(kFaces, index);
    setWindowTitle(GetLangString(face.title).trimmed());
    m_next->setObjectName(QString::fromLatin1(face.next));
    m_next->setText(GetLangString(face.nextText));
    m_cancel->setObjectName(QString::fromLatin1(face.cancel));
    m_cancel->setText(GetLangString(face.cancelText));
    footer()->setNote(QString());
    if (index == kFrameChoose)
        (searches() ? static_cast<QWidget*>(m_ui->OptMode_0) : m_ui->Text_Manual_0)->setFocus();
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
    if (m_work.running() || m_frame < kFrameDetail)
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
    if (!m_detail) {
        const bool again = m_frame == kFrameStatus && m_status->incomplete();
        const auto lead = [](QPushButton* button, bool leads) {
            button->setDefault(leads);
            SetKind(button, leads ? "primary"_L1 : QLatin1StringView());
        };
        lead(m_status->retryButton(), again);
        lead(m_next, !again);
        return;
    }
    const bool recorderFirst = m_frame == kFrameDetail && m_detail->needsDetection();
    const bool cameraFirst = m_frame == kFrameCamera && m_camera->needsDetection();
    m_detail->detectButton()->setDefault(recorderFirst);
    m_camera->detectButton()->setDefault(cameraFirst);
    m_next->setDefault(!recorderFirst && !cameraFirst);
    m_next->setEnabled(!m_work.running() && (m_frame != kFrameCamSearch || m_camSearch->hasChoice()));
    const bool changes =
        (m_frame == kFrameDetail && m_detail->changed()) || (m_frame == kFrameCamera && m_camera->edit().changed());
    footer()->setNote(changes ? GetLangString(Message::kUnsavedChanges) : QString());
}

void Form_NVRSetting::lbCamModifyApply_Click(int index)
{
    if (m_work.running())
        return;
    Trapped("Form_NVRSetting - lbCamModifyApply_Click", [&] {
        if (index == 0)
            m_camera->apply();
        else
            LoadFrame(kFrameDetail);
    });
}

void Form_NVRSetting::lbModifyApply_Click(int index)
{
    if (m_work.running())
        return;
    Trapped("Form_NVRSetting - lbModifyApply_Click", [&] {
        if (index == 0)
            m_detail->apply();
        else
            leave(LeaveUnapplied(m_context.recorders, m_detail->slot()), false);
    });
}

// The page of a recorder may go, once what it leads to is done.
void Form_NVRSetting::leave(Modified modified, bool applied)
{
    const auto go = [this, applied] { applied ? accept() : DialogFrame::reject(); };
    switch (modified) {
    case Modified::Kept:
        return;
    case Modified::Nothing:
        break;
    case Modified::Applied:
        m_save();
        break;
    case Modified::Remove:
        const auto remove = [this] {
            m_work.say(GetLangString(Message::kWriting)); // a removal tells the recorder
            return m_remove(m_detail->slot(), m_work);
        };
        StartWork(m_work, "Form_NVRSetting - lbModifyApply_Click"_L1, remove, go);
        return;
    }
    go();
}

void Form_NVRSetting::lbNext_Click(int index)
{
    if (m_work.running())
        return;
    Trapped("Form_NVRSetting - lbNext_Click", [&] {
        if (index == kFrameChoose && searches()) {
            LoadFrame(kFrameSearch);
            m_search->open();
        } else if (index == kFrameChoose) {
            beginManual();
        } else if (index == kFrameSearch) {
            beginChosen();
        } else if (index == kFrameStatus) {
            finishWizard();
        }
    });
}

void Form_NVRSetting::lbBack_Click()
{
    if (m_work.running())
        return;
    Trapped("Form_NVRSetting - lbBack_Click", [&] {
        if (m_frame == kFrameStatus && searches()) {
            LoadFrame(kFrameSearch);
            m_search->open();
            return;
        }
        m_search->stop();
        if (m_frame == kFrameStatus && !m_status->incomplete()) { // added: the next one
            m_ui->Text_Manual_0->clear();
            m_ui->Text_Manual_1->clear();
        }
        fillSlots();
        LoadFrame(kFrameChoose);
    });
}

void Form_NVRSetting::lbCancel_Click()
{
    if (m_work.running())
        m_work.stop();
    else
        leaveWizard(false);
}

void Form_NVRSetting::showChosen()
{
    if (m_frame != kFrameSearch)
        return;
    const int selected = OccupiedSlots(m_context.recorders.SVRWorkList) + m_search->found().checkedRows();
    footer()->setNote(m_search->nothingFound() ? GetLangString(kNoneFound)
                                               : GetLangString(kWithSelected).arg(selected).arg(kMaxSVR));
}

void Form_NVRSetting::showDetection()
{
    footer()->setNote(m_status->summary());
}

void Form_NVRSetting::beginManual()
{
    StartWork(
        m_work, "Form_NVRSetting - lbNext_Click"_L1, [this] { return m_manual->check(m_work); },
        [this](const ManualFault& fault) { takeManual(fault); });
}

void Form_NVRSetting::takeManual(const ManualFault& fault)
{
    if (m_work.stopped())
        return;
    if (fault.message != 0) {
        m_manual->tell(fault);
        return;
    }
    NVRDetectItem item = m_manual->item();
    item.iSlot = static_cast<qint16>(m_ui->cmbSVRNo->currentData().toInt());
    if (!NamesSettled(m_context.recorders, {item})) {
        m_manual->go(ManualField::Name);
        return;
    }
    LoadFrame(kFrameStatus);
    m_status->begin({item});
}

void Form_NVRSetting::beginChosen()
{
    const NVRDetectItem login = m_manual->item();
    std::vector<NVRDetectItem> items = m_search->found().chosen(login.sUser, login.sPassword);
    if (items.empty()) {
        Tell(Tone::Warning, kNoneSelected);
        return;
    }
    if (!NamesSettled(m_context.recorders, items))
        return;
    m_search->stop();
    LoadFrame(kFrameStatus);
    m_status->begin(std::move(items));
}

void Form_NVRSetting::detectionEnded()
{
    m_next->setText(GetLangString(m_status->added().empty() ? Message::kClose : kFinish));
    if (m_status->incomplete())
        m_status->takeFocus();
    else
        m_next->setFocus();
}

void Form_NVRSetting::finishWizard()
{
    if (!m_status->added().empty() && m_wizard.finish)
        m_wizard.finish();
    accept();
}

bool Form_NVRSetting::typed() const
{
    const NVRDetectItem item = m_manual->item();
    return !(item.sName.isEmpty() && item.sIP.isEmpty() && item.sUser.isEmpty() && item.sPassword.isEmpty() &&
             item.iPort == kUsualPort);
}

void Form_NVRSetting::leaveWizard(bool askTyped)
{
    Trapped("Form_NVRSetting - lbCancel_Click", [&] {
        QStringList names;
        for (const int slot : m_status->added())
            names += At(m_context.recorders.SVRWorkList, slot).sSVR_Name;
        if (!names.isEmpty()) {
            switch (MsgBox(GetLangString(kAskKeepAdded).arg(names.join(u", "_s)), BoxStyle(kBoxQuestionOrStay),
                           GetLangString(Message::kInformation))) {
            case MsgResult::Yes:
                finishWizard();
                return;
            case MsgResult::No:
                if (m_wizard.discard)
                    m_wizard.discard();
                break;
            default:
                return;
            }
        } else if (askTyped && typed() && !AskToDestroy(kAskDropTyped, m_manual->item().sName)) {
            return;
        }
        DialogFrame::reject();
    });
}

void Form_NVRSetting::leaveRecorder()
{
    switch (m_detail->changed() ? AskToLeave() : Leave::Discard) {
    case Leave::Save:
        lbModifyApply_Click(0);
        break;
    case Leave::Discard:
        lbModifyApply_Click(1);
        break;
    case Leave::Stay:
        break;
    }
}

void Form_NVRSetting::leaveCamera()
{
    switch (m_camera->edit().changed() ? AskToLeave() : Leave::Discard) {
    case Leave::Save:
        lbCamModifyApply_Click(0);
        break;
    case Leave::Discard:
        lbCamModifyApply_Click(1);
        break;
    case Leave::Stay:
        break;
    }
}

void Form_NVRSetting::reject()
{
    if (m_work.running()) {
        m_work.stop();
    } else if (m_frame == kFrameCamSearch) {
        LoadFrame(kFrameCamera);
    } else if (m_frame == kFrameCamera) {
        leaveCamera();
    } else if (m_frame == kFrameDetail) {
        leaveRecorder();
    } else {
        leaveWizard(true);
    }
}

void Form_NVRSetting::closeEvent(QCloseEvent* event)
{
    m_work.stop();
    DialogFrame::closeEvent(event);
}

void Form_NVRSetting::setBusy(bool busy)
{
    m_next->setEnabled(!busy);
    m_back->setEnabled(!busy);
    m_cancel->setText(GetLangString(busy ? Message::kStop : At(kFaces, m_frame).cancelText));
    if (busy) {
        m_held.emplace(content());
        m_cancel->setFocus();
    } else {
        m_held.reset();
        showChanges();
    }
}
