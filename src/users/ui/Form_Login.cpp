#include "users/ui/Form_Login.h"

#include "app/language/Languages.h"
#include "app/language/ui/ChangeLanguage.h"
#include "app/log/Module_Log.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "look/widgets/Fields.h"
#include "platform/AppPath.h"
#include "users/ui/ui_Form_Login.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int kLogo = 72; // px
} // namespace

Form_Login::Form_Login(const std::vector<UserRecord>& users, QWidget* parent)
    : DialogFrame(parent)
    , m_users(users)
    , m_ui(std::make_unique<Ui::Form_Login>())
{
    setObjectName(u"Form_Login"_s);
    setClosable(false);
    setSizeGripEnabled(false);
    m_ui->setupUi(content());
    setFooter(m_ui->footer);
    m_ui->txtLogin_1->installEventFilter(this);
    SelectOnFocus(m_ui->txtLogin_0);
    SelectOnFocus(m_ui->txtLogin_1);
    connect(m_ui->imgBtn_OK, &QPushButton::clicked, this, &Form_Login::imgBtn_OK_Click);
    connect(m_ui->imgBtn_Exit, &QPushButton::clicked, this, &Form_Login::reject);
    Trapped("Form_Login - UpdatingLogo", [&] { UpdatingLogo(); });
    ChangeLanguage();
    resize(420, 0);
    m_ui->txtLogin_0->setFocus();
}

Form_Login::~Form_Login() = default;

void Form_Login::refuse(const QString& reason)
{
    m_refusal = reason;
}

void Form_Login::UpdatingLogo()
{
    const QPixmap picture(StationPath(u"\\Images\\Yvx_icon.gif"));
    m_ui->Image1->setPixmap(picture.isNull()
                                ? ProgramIcon().pixmap(kLogo, kLogo)
                                : picture.scaled(kLogo, kLogo, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void Form_Login::ChangeLanguage()
{
    ApplyLanguage(this);
    setWindowTitle(GetLangString(945));
    m_ui->imgBtn_Exit->setText(GetLangString(51).trimmed());
}

QString Form_Login::userName() const
{
    return m_ui->txtLogin_0->text();
}

bool Form_Login::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->txtLogin_1 && event->type() == QEvent::KeyPress) {
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
        for (auto [field, message] : {std::pair<QLineEdit*, int>{m_ui->txtLogin_0, 42}, {m_ui->txtLogin_1, 43}}) {
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
        const LoginResult result = CheckLogin(m_users, m_ui->txtLogin_0->text(), m_ui->txtLogin_1->text(), m_index);
        found = result == LoginResult::Ok;
        if (found)
            return;
        Tell(Tone::Error, 44);
        m_ui->txtLogin_1->clear();
        if (result == LoginResult::Unknown)
            m_ui->txtLogin_0->clear();
        PointAtFault(result == LoginResult::Unknown ? m_ui->txtLogin_0 : m_ui->txtLogin_1);
    });
    return found;
}
