#include "users/ui/Form_UserSetting.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "platform/AppPath.h"
#include "platform/FileChooser.h"
#include "support/Conversions.h"
#include "users/ui/ui_Form_UserSetting.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 kPhotoLimit = 10000001; // bytes; a photo must be smaller
} // namespace

Form_UserSetting::Form_UserSetting(UserSet& users, const QStringList& groups, bool groupFixed,
                                   std::function<void()> save, QWidget* parent)
    : DialogFrame(parent)
    , m_users(users)
    , m_save(std::move(save))
    , m_ui(std::make_unique<Ui::Form_UserSetting>())
{
    setObjectName(u"Form_UserSetting"_s);
    setWindowTitle(GetLangString(645));
    m_ui->setupUi(content());
    setFooter(m_ui->footer);
    txtUser = {m_ui->txtUser_0, m_ui->txtUser_1, m_ui->txtUser_2, m_ui->txtUser_3,
               m_ui->txtUser_4, m_ui->txtUser_5, m_ui->txtUser_6, m_ui->txtUser_7};
    m_ui->cmbUser->addItems(groups);
    for (QLineEdit* field : txtUser)
        connect(field, &QLineEdit::textChanged, this, &Form_UserSetting::allowApply);
    connect(m_ui->cmbUser, &QComboBox::currentIndexChanged, this, &Form_UserSetting::allowApply);
    connect(m_ui->lbUserCheck, &QPushButton::clicked, this, &Form_UserSetting::lbUserCheck_Click);
    connect(m_ui->btnPhoto, &QPushButton::clicked, this, &Form_UserSetting::Image1_DblClick);
    m_ui->Image1->installEventFilter(this);
    connect(m_ui->lbUserApply_0, &QPushButton::clicked, this, &Form_UserSetting::lbUserApply_Click);
    connect(m_ui->lbUserApply_1, &QPushButton::clicked, this, [this] { done(Rejected); }); // what was typed is given up
    ApplyLanguage(this);
    // Captions that other windows share have no star of their own.
    for (const auto& [label, number] : {std::pair{m_ui->lbUser_1, 41}, {m_ui->lbGroup, 423}})
        CutString(label, u'*' + GetLangString(number), Language() == kRightToLeftLanguage);
    Trapped("Form_UserSetting - Form_Activate", [&] { Form_Activate(groupFixed); });
    m_before = state();
    resize(760, 0);
}

Form_UserSetting::~Form_UserSetting()
{
    m_users.EditUserIndex = kNewUser;
}

void Form_UserSetting::Form_Activate(bool groupFixed)
{
    if (m_users.EditUserIndex == kNewUser) {
        // The first user of a station is an administrator.
        m_ui->cmbUser->setCurrentIndex(m_users.AdminCount == 0 ? 0 : -1);
        m_ui->cmbUser->setEnabled(m_users.AdminCount != 0);
    } else {
        const UserRecord& user = At(m_users.edit, m_users.EditUserIndex);
        txtUser[Name]->setText(user.sUser);
        txtUser[Password]->setText(user.sPSWD);
        txtUser[PasswordAgain]->setText(user.sPSWD);
        txtUser[Company]->setText(user.sCorp);
        txtUser[Telephone]->setText(user.sPhone);
        txtUser[Mail1]->setText(user.sMainEmail);
        txtUser[Mail2]->setText(user.sSubEmail);
        txtUser[Mobile]->setText(user.sMobile);
        m_ui->Text_Filename->setText(user.sPhoto);
        m_ui->cmbUser->setCurrentIndex(user.iGroup >= 0 && user.iGroup < m_ui->cmbUser->count() ? user.iGroup : -1);
        m_ui->cmbUser->setEnabled(!groupFixed);
    }
    Trapped("Form_UserSetting - Form_Activate", [&] { showPhoto(); });
    allowApply();
    m_ui->lbUserApply_0->setEnabled(false); // nothing has changed yet
    txtUser[Name]->setFocus();
}

void Form_UserSetting::PSWD_Clear()
{
    txtUser[Password]->clear();
    txtUser[PasswordAgain]->clear();
}

void Form_UserSetting::refuse(const QString& logText, int message, QWidget* field)
{
    LogSave(u"user"_s, LogSys, u"init"_s, u"Form_UserSetting - cmdSearch_Click"_s, logText);
    TellFault(field, message);
}

// A change can be applied once there is a group.
void Form_UserSetting::allowApply()
{
    m_ui->lbUserApply_0->setEnabled(m_ui->cmbUser->currentIndex() >= 0);
    m_ui->lbUserApply_0->setToolTip(m_ui->cmbUser->currentIndex() >= 0 ? QString() : GetLangString(1081));
}

QStringList Form_UserSetting::state() const
{
    QStringList texts{m_ui->Text_Filename->text(), QString::number(m_ui->cmbUser->currentIndex())};
    for (const QLineEdit* field : txtUser)
        texts << field->text();
    return texts;
}

// Esc and the close button.
void Form_UserSetting::reject()
{
    const Leave leave = state() == m_before ? Leave::Discard : AskToLeave();
    if (leave == Leave::Save)
        lbUserApply_Click();
    else if (leave == Leave::Discard)
        DialogFrame::reject();
}

void Form_UserSetting::lbUserApply_Click()
{
    Trapped("Form_UserSetting - lbUserApply_Click", [&] {
        if (txtUser[Name]->text().isEmpty()) {
            refuse(u"save user error: no name"_s, 606, txtUser[Name]);
            PSWD_Clear();
            return;
        }
        if (SetUser_CheckName(m_users, txtUser[Name]->text()) != -1)
            return refuse(u"save user error: name duplicated"_s, 653, txtUser[Name]);
        if (txtUser[Password]->text().isEmpty())
            return refuse(u"save user error: no pswd"_s, 607, txtUser[Password]);
        if (txtUser[Password]->text() != txtUser[PasswordAgain]->text())
            return refuse(u"save user error: pswd is not same"_s, 359, txtUser[PasswordAgain]);
        if (m_ui->cmbUser->currentIndex() < 0)
            return refuse(u"save user error: no group"_s, 334, m_ui->cmbUser);
        SetUser_Modify(m_users, {txtUser[Name]->text(), txtUser[Password]->text(), txtUser[Company]->text(),
                                 txtUser[Telephone]->text(), txtUser[Mail1]->text(), txtUser[Mail2]->text(),
                                 txtUser[Mobile]->text(), m_ui->Text_Filename->text(),
                                 static_cast<qint16>(m_ui->cmbUser->currentIndex())});
        m_save();
        accept();
    });
}

void Form_UserSetting::lbUserCheck_Click()
{
    const QString name = txtUser[Name]->text();
    const bool free = name.isEmpty() || SetUser_CheckName(m_users, name) == -1;
    if (free)
        Tell(Tone::Success, 652);
    else
        TellFault(txtUser[Name], 653);
}

void Form_UserSetting::Image1_DblClick()
{
    Trapped("Form_UserSetting - Image1_DblClick", [&] {
        const QString file =
            Form_OpenFile({StationPath(u"\\Images\\"), u"*.bmp;*.jpg;*.gif;*.png"_s, GetLangString(643)});
        if (file.isEmpty())
            return;
        if (QFileInfo(file).size() >= kPhotoLimit) {
            Tell(Tone::Warning, 640);
            m_ui->Text_Filename->clear();
        } else {
            // A photo of the station's own folder goes by its name, so that the station can be moved.
            const QFileInfo info(file);
            const bool own = info.dir() == QDir(StationPath(u"\\Images"));
            m_ui->Text_Filename->setText(own ? info.fileName() : file);
        }
        allowApply();
        showPhoto();
    });
}

void Form_UserSetting::showPhoto()
{
    const QSize room = m_ui->Image1->maximumSize();
    m_ui->Image1->setPixmap(Icon("user"_L1, "muted"_L1).pixmap(room / 3));
    const QString name = m_ui->Text_Filename->text();
    if (name.isEmpty())
        return;
    const QString file = QFileInfo(name).isAbsolute() ? name : StationPath(QString(u"\\Images\\"_s + name));
    QImageReader reader(file);
    const QSize size = reader.size();
    if (size.isValid() && size != size.boundedTo(room))
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio));
    const QImage picture = reader.read();
    if (picture.isNull())
        throw ConversionError(u"Cannot show the photo '%1': %2"_s.arg(name, reader.errorString()));
    m_ui->Image1->setPixmap(QPixmap::fromImage(picture));
}

bool Form_UserSetting::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->Image1) {
        const bool pressed =
            event->type() == QEvent::KeyPress && (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space ||
                                                  static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return);
        if (pressed || event->type() == QEvent::MouseButtonDblClick) {
            Image1_DblClick();
            return true;
        }
    }
    return DialogFrame::eventFilter(watched, event);
}
