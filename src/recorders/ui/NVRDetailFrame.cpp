#include "recorders/ui/NVRDetailFrame.h"

#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "app/shell/Boxes.h"
#include "look/style/Theme.h"
#include "look/tables/Tables.h"
#include "look/widgets/Keys.h"
#include "recorders/NVRListModel.h"
#include "recorders/camera/CameraEvents.h"
#include "recorders/camera/ChannelClear.h"
#include "recorders/ui/ui_NVRDetailFrame.h"
#include "support/Conversions.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kShortList = 6; // fewer channels than this draw a short grid
constexpr int kReDetect = 703;
constexpr int kTooManyEvents = 91;
constexpr int kAskClear = 970;
constexpr qint16 kBothEvents = 3; // the two bits of an older recorder's switch
constexpr qint16 kEvent = 1;      // the one of a Pro recorder

NVRDetectItem ItemOf(const SVRRecord& record)
{
    NVRDetectItem item;
    item.sName = record.sSVR_Name;
    item.sIP = record.sSVR_IP;
    item.iPort = record.iSVR_HttpPort;
    item.sUser = record.sSVR_UserName;
    item.sPassword = record.sSVR_Password;
    return item;
}

} // namespace

NVRDetailFrame::NVRDetailFrame(DetectContext context, Work& work, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_work(work)
    , m_ui([this] {
        auto ui = std::make_unique<Ui::NVRDetailFrame>();
        ui->setupUi(this);
        return ui;
    }())
    , m_fields({m_ui->TextNVRDetail_0, m_ui->TextNVRDetail_1, m_ui->TextNVRDetail_2, m_ui->TextNVRDetail_3,
                m_ui->TextNVRDetail_4})
    , m_channels(new ChannelListModel(m_context.recorders, this))
{
    prepareGrid();
    connect(m_ui->lbNVRDetect, &QPushButton::clicked, this, &NVRDetailFrame::lbNVRDetect_Click);
    OnKey(this, Qt::Key_F5, [this] { lbNVRDetect_Click(); });
    OnKey(this, Qt::Key_F2, [this] { editName(); });
    // The box waits until the click that met the limit is over.
    connect(
        m_channels, &ChannelListModel::limitReached, this, [] { Tell(Tone::Warning, kTooManyEvents); },
        Qt::QueuedConnection);
    for (int i = 0; i < RecorderFields::kCount; ++i)
        connect(m_fields.field(static_cast<ManualField>(i)), &QLineEdit::textChanged, this,
                &NVRDetailFrame::changesChanged);
    connect(m_channels, &ChannelListModel::dataChanged, this, &NVRDetailFrame::changesChanged);
    connect(&m_work, &Work::stepChanged, this, [this] {
        if (isVisible())
            showStep(m_work.step(), m_work.percent());
    });
    connect(&m_work, &Work::runningChanged, this, [this](bool running) {
        if (!running)
            showFacts();
    });
}

NVRDetailFrame::~NVRDetailFrame() = default;

void NVRDetailFrame::prepareGrid()
{
    DeskTable* grid = m_ui->Grid_ChannelList;
    grid->setList(m_channels);
    grid->sortBy(ChannelListModel::Number);
    grid->filterBy(m_ui->txtChannelFilter);
    grid->whenOpened([this](int channel) { emit channelWanted(channel); });
    grid->whenRemoved(
        [this](int channel) { Trapped("Form_NVRSetting - Grid_ChannelList_Click", [&] { clearChannel(channel); }); });
    connect(grid, &DeskTable::shownChanged, this, &NVRDetailFrame::showCounts);
}

void NVRDetailFrame::changeLanguage()
{
    m_fields.nameByLabels();
    m_channels->retranslate();
}

void NVRDetailFrame::SetNVR(int slot)
{
    m_slot = slot;
    OpenEditPair(m_context.recorders, slot);
    m_detected = false;
    m_channels->setDetected(false);
    m_channels->setCameraEvents(m_context.recorders.SVREdit.bSVR_N_EventSupport);
    m_fields.set(ItemOf(m_context.recorders.SVREdit));
    GridChannelList();
    showChannel(0);
}

void NVRDetailFrame::GridChannelList()
{
    m_channels->refill();
    m_ui->Grid_ChannelList->setColumnHidden(ChannelListModel::CameraEvent, !m_channels->hasCameraEvents());
    showFacts();
    fitGrid();
}

// A recorder of a few channels shows them without a large empty table.
void NVRDetailFrame::fitGrid()
{
    QTableView* grid = m_ui->Grid_ChannelList;
    const int rows = m_channels->rowCount();
    const bool isShort = rows < kShortList;
    const int fitting = grid->horizontalHeader()->height() + rows * TableRowHeight() + 2 * grid->frameWidth() + 2;
    grid->setMaximumHeight(isShort ? fitting : QWIDGETSIZE_MAX);
    grid->setMinimumHeight(isShort ? fitting : 0);
    layout()->invalidate();
    m_ui->shortSpace->changeSize(0, 0, QSizePolicy::Minimum, isShort ? QSizePolicy::Expanding : QSizePolicy::Minimum);
}

void NVRDetailFrame::showChannel(int channel)
{
    DeskTable* grid = m_ui->Grid_ChannelList;
    const QModelIndex cell = grid->cellOf(channel, ChannelListModel::Name);
    grid->setCurrentIndex(cell.isValid() ? cell : grid->model()->index(0, ChannelListModel::Name));
    grid->scrollTo(grid->currentIndex());
}

QPushButton* NVRDetailFrame::detectButton() const
{
    return m_ui->lbNVRDetect;
}

void NVRDetailFrame::takeFocus()
{
    m_ui->Grid_ChannelList->setFocus();
}

void NVRDetailFrame::editName()
{
    m_fields.go(ManualField::Name);
}

void NVRDetailFrame::showFacts()
{
    const SVRRecord& record = m_context.recorders.SVREdit;
    QStringList facts{record.sSVR_Brand, ShownModel(record), record.sSVR_Version};
    facts.removeAll(QString());
    m_ui->lbFacts->setText(facts.join(u"  ·  "_s));
    m_ui->progressStack->setCurrentWidget(m_ui->factsPage);
}

void NVRDetailFrame::showCounts()
{
    m_ui->lbChannelCount->setText(
        GetLangString(Message::kChannelsOf).arg(m_channels->cameras()).arg(m_channels->rowCount()));
    m_ui->lbNoChannel->setVisible(m_ui->Grid_ChannelList->shownRows() == 0 && m_channels->rowCount() > 0);
}

void NVRDetailFrame::showStep(const QString& words, int percent)
{
    m_ui->lbStep->setText(words);
    m_ui->barDetect->setMaximum(percent < 0 ? 0 : 100);
    m_ui->barDetect->setValue(qMax(percent, 0));
    m_ui->progressStack->setCurrentWidget(m_ui->progressPage);
}

bool NVRDetailFrame::changed() const
{
    return m_detected || needsDetection() || !m_channels->switched().empty() ||
           m_fields.item().sName != At(m_context.recorders.SVRWorkList, m_slot).sSVR_Name;
}

void NVRDetailFrame::lbNVRDetect_Click()
{
    StartWork(
        m_work, "Form_NVRSetting - lbNVRDetect_Click"_L1, [this] { return detect(); },
        [this](const Detected& detected) { takeDetected(detected); });
}

QCoro::Task<NVRDetailFrame::Detected> NVRDetailFrame::detect()
{
    Detected detected;
    detected.fault = co_await m_fields.check(m_work);
    if (detected.fault.message != 0 || m_work.stopped())
        co_return detected;
    NVRDetectItem item = m_fields.item();
    item.iSlot = static_cast<qint16>(m_slot);
    const auto report = [&](const DetectStatus& status) {
        detected.last = status;
        m_work.say(GetLangString(status.message), status.percent);
    };
    detected.done = co_await DetectNVR(m_context, item, report, m_work, DetectMode::Modify);
    co_return detected;
}

void NVRDetailFrame::takeDetected(const Detected& detected)
{
    if (detected.done) {
        m_detected = true;
        m_channels->setDetected(true);
        m_channels->setCameraEvents(m_context.recorders.SVREdit.bSVR_N_EventSupport);
        m_fields.set(ItemOf(m_context.recorders.SVREdit));
        GridChannelList();
        showChannel(0);
        emit changesChanged();
    }
    showFacts();
    if (m_work.stopped())
        return;
    if (detected.fault.message != 0)
        m_fields.tell(detected.fault);
    else
        Tell(detected.done ? Tone::Success : Tone::Error, GetLangString(detected.last.message) + detected.last.suffix);
}

// A call that was stopped has nothing to say.
void NVRDetailFrame::tell(const RecorderOutcome& outcome) const
{
    if (outcome.ok || !m_work.stopped())
        TellOutcome(outcome);
}

void NVRDetailFrame::clearChannel(int channel)
{
    const SVRRecord& record = m_context.recorders.SVREdit;
    const QString camera =
        At(record.channels, channel).sSub_CH_Name + u"  ·  "_s + At(record.channels, channel).sSub_CH_IP;
    if (!AskToDestroy(GetLangString(kAskClear).arg(channel + 1), camera, Message::kDelete))
        return;
    const auto clear = [this, channel] {
        m_work.say(GetLangString(Message::kWriting));
        return ClearRecorderChannel(m_context.com, m_context.recorders, channel, m_work);
    };
    StartWork(m_work, "Form_NVRSetting - Grid_ChannelList_Click"_L1, clear,
              [this, channel](const RecorderOutcome& cleared) {
                  tell(cleared);
                  if (cleared.ok)
                      channelWritten(channel);
              });
}

void NVRDetailFrame::channelWritten(int channel)
{
    TakeOverWritten(m_context.recorders, m_slot, channel, m_context.events);
    m_channels->refreshChannel(channel);
    emit changesChanged();
}

// Writes the switches that differ; the others stay as the recorder has them.
QCoro::Task<RecorderOutcome> NVRDetailFrame::writeCameraEvents(std::vector<std::pair<int, bool>> changes)
{
    m_work.say(GetLangString(Message::kWriting));
    SVRRecord& record = m_context.recorders.SVREdit;
    CameraEventBits bits{};
    RecorderOutcome outcome = co_await ReadRecorderCameraEvents(m_context.com, record, bits, m_work);
    if (!outcome.ok)
        co_return outcome;
    for (const auto& [channel, on] : changes) {
        qint16& bit = At(bits, channel);
        const qint16 switchedOn = IsProFamily(record.sSVR_DeviceType) ? kEvent : kBothEvents;
        bit = !on ? qint16(0) : bit != 0 ? bit : switchedOn;
    }
    outcome = co_await WriteRecorderCameraEvents(m_context.com, record, bits, m_work);
    TakeOverSwitches(m_context.recorders, m_slot);
    co_return outcome;
}

ManualFault NVRDetailFrame::differing() const
{
    const NVRDetectItem typed = m_fields.item();
    const NVRDetectItem known = ItemOf(m_context.recorders.SVREdit);
    if (typed.sIP != known.sIP)
        return {kReDetect, ManualField::Address};
    if (typed.iPort != known.iPort)
        return {kReDetect, ManualField::Port};
    if (typed.sUser != known.sUser)
        return {kReDetect, ManualField::User};
    if (typed.sPassword != known.sPassword)
        return {kReDetect, ManualField::Password};
    return {};
}

void NVRDetailFrame::apply()
{
    const QString name = m_fields.item().sName;
    const ManualFault fault = name.isEmpty() ? ManualFault{553, ManualField::Name} : differing();
    if (fault.message != 0) {
        m_fields.tell(fault);
        return;
    }
    NVRDetectItem renamed;
    renamed.iSlot = static_cast<qint16>(m_slot);
    renamed.sName = name;
    if (name != At(m_context.recorders.SVRWorkList, m_slot).sSVR_Name &&
        !NamesSettled(m_context.recorders, {renamed})) {
        editName();
        return;
    }
    const std::vector<std::pair<int, bool>> changes = m_channels->switched();
    if (changes.empty()) {
        takeOver();
        return;
    }
    StartWork(
        m_work, "Form_NVRSetting - lbModifyApply_Click"_L1, [this, changes] { return writeCameraEvents(changes); },
        [this](const RecorderOutcome& written) {
            m_channels->setCameraEvents(m_context.recorders.SVREdit.bSVR_N_EventSupport);
            tell(written);
            if (written.ok)
                takeOver();
        });
}

void NVRDetailFrame::takeOver()
{
    emit applied(ModifyApply(m_context.recorders, m_slot, m_fields.item().sName, m_context.events));
}
