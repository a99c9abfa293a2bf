#include "users/ui/Form_UserSetting.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/ElidedLabel.h"
#include "look/widgets/PasswordField.h"
#include "platform/AppPath.h"
#include "platform/FileChooser.h"
#include "support/Conversions.h"
#include "users/ui/FieldCaption.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {
constexpr qint64 kPhotoLimit = 10000001; // bytes; a photo must be smaller
constexpr int kPhotoSide = 160;          // px
constexpr int kLongestText = 255;
} // namespace

Form_UserSetting::Form_UserSetting(UserSet& users, const QStringList& groups, bool groupFixed,
                                   std::function<void()> save, QWidget* parent)
    : DialogFrame(parent)
    , m_users(users)
    , m_save(std::move(save))
    , cmbUser(new QComboBox)
    , Image1(new QLabel)
    , Text_Filename(new ElidedLabel)
{
    setObjectName(u"Form_UserSetting"_s);
    build(groups);
    ApplyLanguage(this);
    // Captions that other windows share have no star of their own.
    for (const auto& [label, number] : {std::pair{u"lbUser_1"_s, 41}, {u"lbGroup"_s, 423}})
        CutString(findChild<QLabel*>(label), u'*' + GetLangString(number), Language() == kRightToLeftLanguage);
    setWindowTitle(GetLangString(645));
    Trapped("Form_UserSetting - Form_Activate", [&] { Form_Activate(groupFixed); });
    m_before = state();
    resize(760, 0);
}

Form_UserSetting::~Form_UserSetting()
{
    m_users.EditUserIndex = kNewUser;
}

void Form_UserSetting::build(const QStringList& groups)
{
    static constexpr std::array captions{649, 41, 417, 418, 419, 420, 421, 650};
    static constexpr std::array order{Name, Password, PasswordAgain, Company, Telephone, Mail1, Mail2, Mobile};
    auto* row = new QHBoxLayout(content());
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->setHorizontalSpacing(16);
    row->addLayout(form, 1);
    for (const TextField which : order) {
        QLineEdit* field = which == Password || which == PasswordAgain ? new PasswordField : new QLineEdit;
        field->setObjectName(u"txtUser_%1"_s.arg(static_cast<int>(which)));
        field->setMaxLength(kLongestText);
        txtUser[which] = field;
        connect(field, &QLineEdit::textChanged, this, &Form_UserSetting::allowApply);
        // Numbers and mail addresses read from the left in every language.
        if (which == Telephone || which == Mobile || which == Mail1 || which == Mail2)
            field->setLayoutDirection(Qt::LeftToRight);
        if (which != Name) {
            form->addRow(FieldCaption(captions[which], field, u"lbUser_%1"_s.arg(static_cast<int>(which))), field);
            continue;
        }
        auto* check = new QPushButton;
        check->setObjectName(u"lbUserCheck"_s);
        check->setProperty("tag", u"Caption:648"_s);
        check->setAutoDefault(false);
        connect(check, &QPushButton::clicked, this, &Form_UserSetting::lbUserCheck_Click);
        auto* pair = new QHBoxLayout;
        pair->setSpacing(10);
        pair->addWidget(field, 1);
        pair->addWidget(check);
        form->addRow(FieldCaption(captions[which], field), pair);
    }
    cmbUser->setObjectName(u"cmbUser"_s);
    cmbUser->addItems(groups);
    cmbUser->setPlaceholderText(GetLangString(1081));
    connect(cmbUser, &QComboBox::currentIndexChanged, this, &Form_UserSetting::allowApply);
    form->insertRow(3, FieldCaption(423, cmbUser, u"lbGroup"_s), cmbUser);
    auto* necessary = new QLabel;
    necessary->setProperty("tag", u"Caption:651"_s);
    SetRole(necessary, "hint"_L1);
    form->addRow(QString(), necessary);

    auto* side = new QVBoxLayout;
    side->setSpacing(8);
    side->addWidget(FieldCaption(646, Image1));
    Image1->setObjectName(u"Image1"_s);
    Image1->setFixedSize(kPhotoSide, kPhotoSide);
    Image1->setAlignment(Qt::AlignCenter);
    Image1->setFrameShape(QFrame::StyledPanel);
    Image1->setFocusPolicy(Qt::TabFocus);
    Image1->setToolTip(GetLangString(643));
    Image1->installEventFilter(this);
    Text_Filename->setObjectName(u"Text_Filename"_s);
    Text_Filename->setMaximumWidth(kPhotoSide);
    Text_Filename->setLeftToRight(true);
    SetRole(Text_Filename, "muted"_L1);
    auto* choose = new QPushButton(GetLangString(875));
    choose->setObjectName(u"btnPhoto"_s);
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &Form_UserSetting::Image1_DblClick);
    side->addWidget(Image1);
    side->addWidget(Text_Filename);
    side->addWidget(choose);
    side->addStretch();
    row->addLayout(side);

    QPushButton* cancel = footer()->addButton(GetLangString(475));
    cancel->setObjectName(u"lbUserApply_1"_s);
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, [this] { done(Rejected); }); // what was typed is given up
    m_apply = footer()->addButton(GetLangString(591), "primary"_L1);
    m_apply->setObjectName(u"lbUserApply_0"_s);
    m_apply->setDefault(true);
    connect(m_apply, &QPushButton::clicked, this, &Form_UserSetting::lbUserApply_Click);
}

void Form_UserSetting::Form_Activate(bool groupFixed)
{
    if (m_users.EditUserIndex == kNewUser) {
        // The first user of a station is an administrator.
        cmbUser->setCurrentIndex(m_users.AdminCount == 0 ? 0 : -1);
        cmbUser->setEnabled(m_users.AdminCount != 0);
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
        Text_Filename->setText(user.sPhoto);
        cmbUser->setCurrentIndex(user.iGroup >= 0 && user.iGroup < cmbUser->count() ? user.iGroup : -1);
        cmbUser->setEnabled(!groupFixed);
    }
    Trapped("Form_UserSetting - Form_Activate", [&] { showPhoto(); });
    allowApply();
    m_apply->setEnabled(false); // nothing has changed yet
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
    m_apply->setEnabled(cmbUser->currentIndex() >= 0);
    m_apply->setToolTip(cmbUser->currentIndex() >= 0 ? QString() : GetLangString(1081));
}

QStringList Form_UserSetting::state() const
{
    QStringList texts{Text_Filename->text(), QString::number(cmbUser->currentIndex())};
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
        if (cmbUser->currentIndex() < 0)
            return refuse(u"save user error: no group"_s, 334, cmbUser);
        SetUser_Modify(m_users,
                       {txtUser[Name]->text(), txtUser[Password]->text(), txtUser[Company]->text(),
                        txtUser[Telephone]->text(), txtUser[Mail1]->text(), txtUser[Mail2]->text(),
                        txtUser[Mobile]->text(), Text_Filename->text(), static_cast<qint16>(cmbUser->currentIndex())});
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
            Text_Filename->clear();
        } else {
            // A photo of the station's own folder goes by its name, so that the station can be moved.
            const QFileInfo info(file);
            const bool own = info.dir() == QDir(StationPath(u"\\Images"));
            Text_Filename->setText(own ? info.fileName() : file);
        }
        allowApply();
        showPhoto();
    });
}

void Form_UserSetting::showPhoto()
{
    Image1->setPixmap(Icon("user"_L1, "muted"_L1).pixmap(kPhotoSide / 3, kPhotoSide / 3));
    const QString name = Text_Filename->text();
    if (name.isEmpty())
        return;
    const QString file = QFileInfo(name).isAbsolute() ? name : StationPath(QString(u"\\Images\\"_s + name));
    QImageReader reader(file);
    QSize size = reader.size();
    if (size.isValid() && (size.width() > kPhotoSide || size.height() > kPhotoSide))
        reader.setScaledSize(size.scaled(kPhotoSide, kPhotoSide, Qt::KeepAspectRatio));
    const QImage picture = reader.read();
    if (picture.isNull())
        throw ConversionError(u"Cannot show the photo '%1': %2"_s.arg(name, reader.errorString()));
    Image1->setPixmap(QPixmap::fromImage(picture));
}

bool Form_UserSetting::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == Image1) {
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
