#include "users/ui/Form_Login.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/Fields.h"
#include "look/widgets/PasswordField.h"
#include "platform/AppPath.h"
#include "users/ui/FieldCaption.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLogo = 72; // px
} // namespace

Form_Login::Form_Login(const std::vector<UserRecord>& users, QWidget* parent)
    : DialogFrame(parent)
    , m_users(users)
    , m_logo(new QLabel)
    , m_name(new QLineEdit)
    , m_password(new PasswordField)
{
    setObjectName(u"Form_Login"_s);
    setClosable(false);
    setSizeGripEnabled(false);
    m_logo->setObjectName(u"Image1"_s);
    m_logo->setAlignment(Qt::AlignCenter);
    auto* title = new QLabel(u"Rigging Desk"_s);
    title->setObjectName(u"Label1"_s);
    title->setAlignment(Qt::AlignCenter);
    SetRole(title, "title"_L1);
    m_name->setObjectName(u"txtLogin_0"_s);
    m_password->setObjectName(u"txtLogin_1"_s);
    m_password->installEventFilter(this);
    SelectOnFocus(m_name);
    SelectOnFocus(m_password);

    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_logo);
    column->addWidget(title);
    auto* form = new QFormLayout;
    form->setVerticalSpacing(10);
    form->addRow(FieldCaption(40, m_name, u"lbLogin_0"_s), m_name);
    form->addRow(FieldCaption(41, m_password, u"lbLogin_1"_s), m_password);
    column->addLayout(form);

    m_exit = footer()->addButton(QString());
    m_exit->setObjectName(u"imgBtn_Exit"_s);
    m_exit->setAutoDefault(false);
    m_ok = footer()->addButton(QString(), "primary"_L1);
    m_ok->setObjectName(u"imgBtn_OK"_s);
    m_ok->setAutoDefault(false);
    connect(m_ok, &QPushButton::clicked, this, &Form_Login::imgBtn_OK_Click);
    connect(m_exit, &QPushButton::clicked, this, &Form_Login::reject);
    Trapped("Form_Login - UpdatingLogo", [&] { UpdatingLogo(); });
    ChangeLanguage();
    resize(420, 0);
    m_name->setFocus();
}

void Form_Login::refuse(const QString& reason)
{
    m_refusal = reason;
}

void Form_Login::UpdatingLogo()
{
    const QPixmap picture(StationPath(u"\\Images\\Yvx_icon.gif"));
    m_logo->setPixmap(picture.isNull() ? ProgramIcon().pixmap(kLogo, kLogo)
                                       : picture.scaled(kLogo, kLogo, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void Form_Login::ChangeLanguage()
{
    ApplyLanguage(this);
    setWindowTitle(GetLangString(945));
    m_ok->setText(GetLangString(755));
    m_exit->setText(GetLangString(51).trimmed());
    m_name->setAccessibleName(GetLangString(40));
    m_password->setAccessibleName(GetLangString(41));
}

QString Form_Login::userName() const
{
    return m_name->text();
}

bool Form_Login::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_password && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            imgBtn_OK_Click();
            return true;
        }
    }
    return DialogFrame::eventFilter(watched, event);
}

void Form_Login::keyPressEvent(QKeyEvent* event)
{
    // Return counts in the password only.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
            button->click();
        return;
    }
    DialogFrame::keyPressEvent(event);
}

void Form_Login::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && windowHandle())
        windowHandle()->startSystemMove();
}

void Form_Login::imgBtn_OK_Click()
{
    Trapped("Form_Login - imgBtn_OK_Click", [&] {
        for (auto [field, message] : {std::pair{m_name, 42}, std::pair{m_password, 43}}) {
            if (!field->text().isEmpty())
                continue;
            TellFault(field, message);
            return;
        }
        if (bIsUser())
            accept();
    });
}

bool Form_Login::bIsUser()
{
    bool found = false;
    Trapped("Form_Login - bIsUser", [&] {
        if (!m_refusal.isEmpty()) {
            Tell(Tone::Error, m_refusal);
            return;
        }
        const LoginResult result = CheckLogin(m_users, m_name->text(), m_password->text(), m_index);
        found = result == LoginResult::Ok;
        if (found)
            return;
        Tell(Tone::Error, 44);
        m_password->clear();
        if (result == LoginResult::Unknown)
            m_name->clear();
        PointAtFault(result == LoginResult::Unknown ? m_name : m_password);
    });
    return found;
}
