#include "recorders/ui/CameraFrame.h"

#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "app/shell/Boxes.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "recorders/ui/RecorderFields.h"
#include "recorders/ui/ui_CameraFrame.h"
#include "support/Conversions.h"

#include <QIntValidator>

using namespace Qt::StringLiterals;

namespace {

using Control = CameraEdit::Control;

enum Words
{
    kAskWrite = 611,
    kAsking = 975
};

} // namespace

CameraFrame::CameraFrame(Form_COM& com, RecorderSet& recorders, Work& work, QWidget* parent)
    : QWidget(parent)
    , m_com(com)
    , m_recorders(recorders)
    , m_edit(com, recorders)
    , m_work(work)
    , m_ui(std::make_unique<Ui::CameraFrame>())
{
    m_ui->setupUi(this);
    m_ui->camProgress->hide();
    m_ui->cameraArea->viewport()->setAutoFillBackground(false); // the dialog's own ground
    m_ui->cameraBody->setAutoFillBackground(false);
    txtCam = {m_ui->txtCam_0, m_ui->txtCam_1, m_ui->txtCam_2, m_ui->txtCam_3, m_ui->txtCam_4};
    m_rows = {{{Control::VideoSource, m_ui->Cmb_VideoID},
               {Control::Format, m_ui->cmbFormat},
               {Control::Resolution, m_ui->cmbResolution},
               {Control::FrameRate, m_ui->cmbCameraDetail_0},
               {Control::RateControl, m_ui->cmbCameraDetail_1},
               {Control::Quality, m_ui->cmbCameraDetail_2},
               {Control::BitRate, m_ui->cmbCameraDetail_3},
               {Control::LensMode, m_ui->Cmb_LensMode},
               {Control::LeftMode, m_ui->cmbLeftMode},
               {Control::RightMode, m_ui->cmbRightMode}}};
    for (std::size_t i = 0; i < txtCam.size(); ++i) {
        txtCam[i]->setMaxLength(RecorderFields::kLengths[i]);
        connect(txtCam[i], &QLineEdit::textEdited, this, &CameraFrame::takeFields);
    }
    m_ui->txtCam_2->setValidator(new QIntValidator(0, 99999, this));
    // Addresses and ports read from the left in every language.
    m_ui->txtCam_1->setLayoutDirection(Qt::LeftToRight);
    m_ui->txtCam_2->setLayoutDirection(Qt::LeftToRight);
    for (const Row& row : m_rows) {
        connect(row.box, &QComboBox::activated, this, [this, control = row.control](int index) {
            Trapped("Form_NVRSetting - cmbCameraDetail_Click", [&] { m_edit.choose(control, index); });
            render();
        });
    }
    OnKey(this, Qt::Key_F5, [this] { lbCamDetect_Click(); });
    connect(&m_work, &Work::stepChanged, m_ui->lbCamStep, [this] { m_ui->lbCamStep->setText(m_work.step()); });
    connect(&m_work, &Work::runningChanged, m_ui->camProgress, &QWidget::setVisible);
    connect(&m_edit, &CameraEdit::choicesChanged, this, &CameraFrame::render);
    connect(m_ui->lbCamDetect, &QPushButton::clicked, this, &CameraFrame::lbCamDetect_Click);
    connect(m_ui->lbCamSearch, &QPushButton::clicked, this, &CameraFrame::searchWanted);
}

CameraFrame::~CameraFrame() = default;

void CameraFrame::changeLanguage()
{
    for (QWidget* field : findChildren<QWidget*>()) {
        const auto* label = qobject_cast<QLabel*>(field);
        if (label && label->buddy())
            label->buddy()->setAccessibleName(label->text());
    }
}

void CameraFrame::openChannel(int channel)
{
    m_edit.open(channel);
    m_ui->lbCamNo->setText(GetLangString(586) + u' ' + QString::number(channel + 1));
    showFields();
    render();
    showPicture();
}

// What the recorder shows of the channel; one without a camera has no picture.
void CameraFrame::showPicture()
{
    const SVRRecord& recorder = m_recorders.SVREdit;
    const SVRChannel& camera = At(recorder.channels, channel());
    m_ui->VideoCamera->setVisible(!camera.sSub_CH_IP.isEmpty());
    if (camera.sSub_CH_IP.isEmpty())
        m_ui->VideoCamera->Stop();
    else
        m_ui->VideoCamera->Start(m_com.http, AddressOf(recorder), static_cast<qint16>(channel() + 1));
}

QPushButton* CameraFrame::detectButton() const
{
    return m_ui->lbCamDetect;
}

bool CameraFrame::needsDetection() const
{
    return m_edit.changed() && m_edit.checkApply().message == Message::kDetectAgain;
}

void CameraFrame::takeFocus()
{
    txtCam.front()->setFocus();
    txtCam.front()->selectAll();
}

void CameraFrame::showFields()
{
    const CameraEdit::Fields& fields = m_edit.fields();
    const std::array texts{&fields.name, &fields.address, &fields.port, &fields.user, &fields.password};
    for (std::size_t i = 0; i < txtCam.size(); ++i) {
        if (txtCam[i]->text() != *texts[i])
            txtCam[i]->setText(*texts[i]);
    }
}

void CameraFrame::takeFields()
{
    m_edit.setFields({txtCam[0]->text(), txtCam[1]->text(), txtCam[2]->text(), txtCam[3]->text(), txtCam[4]->text()});
    render();
}

void CameraFrame::takeFound(const QString& address, int port)
{
    CameraEdit::Fields fields = m_edit.fields();
    fields.address = address;
    fields.port = QString::number(port);
    m_edit.setFields(fields);
    showFields();
    render();
}

void CameraFrame::render()
{
    bool anything = false;
    for (const Row& row : m_rows) {
        const CameraEdit::Choice& choice = m_edit.choice(row.control);
        row.box->clear();
        row.box->addItems(choice.entries);
        row.box->setCurrentIndex(choice.current);
        m_ui->cameraChoices->setRowVisible(row.box, choice.shown);
        anything = anything || choice.shown;
    }
    const CameraEdit::Choice& view = m_edit.choice(Control::FishEyeMode);
    m_ui->cmbVideoID->setText(view.text());
    m_ui->cameraChoices->setRowVisible(m_ui->cmbVideoID, view.shown);
    m_ui->lbNothingKnown->setVisible(!anything && !view.shown);
    m_ui->CamBrandID->setText(m_edit.brand());
    emit stateChanged();
}

void CameraFrame::report(const RecorderOutcome& outcome)
{
    if (!outcome.ok && m_work.stopped()) // a call that was stopped has nothing to say
        return;
    TellOutcome(outcome);
    if (outcome.field >= 0)
        PointAtFault(At(txtCam, outcome.field));
}

void CameraFrame::lbCamDetect_Click()
{
    const auto detect = [this] {
        m_work.say(GetLangString(kAsking));
        return m_edit.detect(m_work);
    };
    StartWork(m_work, "Form_NVRSetting - lbCamDetect_Click"_L1, detect, [this](const RecorderOutcome& outcome) {
        render();
        report(outcome);
    });
}

void CameraFrame::apply()
{
    const RecorderOutcome allowed = m_edit.checkApply();
    if (!allowed.ok) {
        report(allowed);
        return;
    }
    if (!Ask(kAskWrite, Message::kNotice))
        return;
    const auto write = [this] {
        m_work.say(GetLangString(Message::kWriting));
        return m_edit.writeBack(m_work);
    };
    StartWork(m_work, "Form_NVRSetting - lbCamModifyApply_Click"_L1, write, [this](const RecorderOutcome& outcome) {
        render();
        report(outcome);
        if (outcome.ok)
            emit written();
    });
}
