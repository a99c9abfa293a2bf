#include "tooling/ui/Form_Tooling.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "app/shell/ui/TellFault.h"
#include "look/style/Icons.h"
#include "look/style/Theme.h"
#include "look/widgets/Fields.h"
#include "look/widgets/Keys.h"
#include "platform/Clock.h"
#include "platform/FolderChooser.h"
#include "support/TimeSeconds.h"
#include "tooling/SystemLogUsers.h"
#include "tooling/ui/ui_Form_Tooling.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHeaderView>
#include <QShortcut>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFilterDelay = 200;   // milliseconds after the last key
const QDate kFirstDate(1970, 1, 2); // what fits the stamps of audit rows in every zone
const QDate kLastDate(2038, 1, 17);

} // namespace

// Keeps widgets inactive for the life of the object; the keyboard returns to where it was, unless it has gone
// elsewhere.
class Inactive
{
public:
    explicit Inactive(std::initializer_list<QWidget*> widgets)
        : m_widgets(widgets)
        , m_focus(QApplication::focusWidget())
    {
        for (QWidget* widget : m_widgets)
            widget->setEnabled(false);
        m_meanwhile = QApplication::focusWidget();
    }
    ~Inactive()
    {
        for (QWidget* widget : m_widgets)
            widget->setEnabled(true);
        if (m_focus && QApplication::focusWidget() == m_meanwhile)
            m_focus->setFocus();
    }
    Inactive(const Inactive&) = delete;
    Inactive& operator=(const Inactive&) = delete;

private:
    QList<QWidget*> m_widgets;
    QPointer<QWidget> m_focus;
    QPointer<QWidget> m_meanwhile;
};

Form_Tooling::Form_Tooling(Databases& databases, std::function<void()> exported, QWidget* parent)
    : QWidget(parent)
    , m_databases(databases)
    , m_exported(std::move(exported))
    , m_ui(std::make_unique<Ui::Form_Tooling>())
    , m_model(new SystemLogModel(databases, this))
    , m_users(new SystemLogUsers(databases, this))
    , m_filterDelay(new QTimer(this))
{
    m_ui->setupUi(this);
    m_ui->lbSysSearch->setIcon(Icon("search"_L1));
    m_ui->Cmd_SystemExport->setIcon(Icon("export"_L1));
    m_ui->btnCopyRows->setIcon(Icon("copy"_L1));
    m_ui->btnOpenFolder->setIcon(Icon("folder"_L1));
    m_ui->btnOpenFolder->hide();
    m_ui->ProgressBar_Export->hide();
    m_ui->lbExportState->hide();
    DeskTable* grid = m_ui->Grid_SystemLog;
    grid->setList(m_model);
    grid->verticalHeader()->setDefaultSectionSize(TableRowHeight() - 2); // a page fits the smallest desk

    const std::array buttons{m_ui->lbSysPageControl_0, m_ui->lbSysPageControl_1, m_ui->lbSysPageControl_2,
                             m_ui->lbSysPageControl_3, m_ui->lbSysPageControl_4};
    const std::array icons{"first"_L1, "previous"_L1, "following"_L1, "last"_L1, "refresh"_L1};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        buttons[i]->setIcon(Icon(icons[i]));
        connect(buttons[i], &QToolButton::clicked, this, [this, i] { lbSysPageControl_Click(static_cast<int>(i)); });
    }
    connect(m_ui->lbSysSearch, &QPushButton::clicked, this, &Form_Tooling::lbSysSearch_Click);
    connect(m_ui->Cmd_SystemExport, &QPushButton::clicked, this, &Form_Tooling::Cmd_SystemExport_Click);
    connect(m_ui->btnCopyRows, &QPushButton::clicked, this, &Form_Tooling::copyRows);
    connect(m_ui->btnOpenFolder, &QPushButton::clicked, this, &Form_Tooling::openFolder);
    connect(new QShortcut(QKeySequence::Copy, grid, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
            &Form_Tooling::copyRows);
    OnKey(this, Qt::Key_F5, [this] { lbSysPageControl_Click(SystemLogModel::Refresh); });
    connect(m_ui->txtSysFilter, &QLineEdit::returnPressed, grid, qOverload<>(&QWidget::setFocus));
    m_filterDelay->setSingleShot(true);
    m_filterDelay->setInterval(kFilterDelay);
    connect(m_ui->txtSysFilter, &QLineEdit::textChanged, m_filterDelay, qOverload<>(&QTimer::start));
    connect(m_filterDelay, &QTimer::timeout, this, [this] { m_model->setFilter(m_ui->txtSysFilter->text()); });
    connect(m_model, &SystemLogModel::drawn, this, &Form_Tooling::drawPage);
    connect(m_users, &SystemLogUsers::found, this, [this](const QStringList& users) {
        fillUsers(m_ui->Cmb_SystemViewerUser, users);
        fillUsers(m_ui->Cmb_SystemExportUser, QStringList(QString()) + users);
    });
    const auto followChecks = [this] {
        m_ui->Cmb_SystemViewerUser->setEnabled(m_ui->Chk_SystemViewer->isChecked());
        const QList<QWidget*> fields{m_ui->DTPicker_SystemExport_0, m_ui->DTPicker_SystemExport_1,
                                     m_ui->DTPicker_SystemExport_2, m_ui->DTPicker_SystemExport_3,
                                     m_ui->Cmb_SystemExportUser};
        for (QWidget* field : fields)
            field->setEnabled(m_ui->Chk_SystemExport->isChecked());
    };
    connect(m_ui->Chk_SystemViewer, &QCheckBox::toggled, this, followChecks);
    connect(m_ui->Chk_SystemExport, &QCheckBox::toggled, this, followChecks);
    followChecks();
    setPickers();
}

Form_Tooling::~Form_Tooling() = default;

// A day back from the present, until the end of it.
void Form_Tooling::setPickers()
{
    const QDate today = Now().date();
    for (const QLatin1String frame : {"DTPicker_SystemViewer_"_L1, "DTPicker_SystemExport_"_L1}) {
        for (int i = 0; i < 4; ++i) {
            const QString name = frame + QString::number(i);
            if (auto* date = findChild<QDateEdit*>(name)) {
                SetTimeFormat(date, u"yyyy/MM/dd"_s);
                date->setDateRange(kFirstDate, kLastDate);
                date->setDate(i == 0 ? today.addDays(-1) : today);
            } else if (auto* time = findChild<QTimeEdit*>(name)) {
                SetTimeFormat(time, u"HH:mm:ss"_s);
                time->setTime(i == 1 ? QTime(0, 0) : QTime(23, 59, 59));
            }
        }
    }
}

void Form_Tooling::open()
{
    m_users->start();
}

void Form_Tooling::fillUsers(QComboBox* box, const QStringList& users)
{
    const QString present = box->currentText();
    box->clear();
    box->addItems(users);
    box->setCurrentIndex(qMax(0, static_cast<int>(users.indexOf(present))));
}

void Form_Tooling::changeLanguage()
{
    m_ui->lbSysSearch->setText(GetLangString(Message::kSearch));
    m_ui->Cmb_SystemViewerUser->setAccessibleName(GetLangString(Message::kUser));
    m_ui->ProgressBar_Export->setAccessibleName(GetLangString(730));
    for (int i = 0; i < 5; ++i)
        findChild<QToolButton*>(u"lbSysPageControl_%1"_s.arg(i))->setAccessibleName(GetLangString(939 + i));
    for (const QLatin1String frame : {"DTPicker_SystemViewer_"_L1, "DTPicker_SystemExport_"_L1}) {
        for (int i = 0; i < 4; ++i)
            findChild<QWidget*>(frame + QString::number(i))->setAccessibleName(GetLangString(i < 2 ? 735 : 736));
    }
    m_model->retranslate();
    drawPage(!m_failed);
}

bool Form_Tooling::readSpan(const QString& pickers, SystemLogQuery& query)
{
    const auto seconds = [&](int first) {
        return TimeToUtcSeconds(QDateTime(findChild<QDateEdit*>(pickers + QString::number(first))->date(),
                                          findChild<QTimeEdit*>(pickers + QString::number(first + 1))->time()));
    };
    query.from = seconds(0);
    query.to = seconds(2);
    if (query.from < query.to)
        return true;
    TellFault(findChild<QWidget*>(pickers + u'0'), 742);
    return false;
}

void Form_Tooling::lbSysSearch_Click()
{
    Trapped("Form_Tooling - lbSysSearch_Click", [&] {
        SystemLogQuery query;
        if (!readSpan(u"DTPicker_SystemViewer_"_s, query))
            return;
        if (m_ui->Chk_SystemViewer->isChecked())
            query.user = m_ui->Cmb_SystemViewerUser->currentText();
        m_filterDelay->stop();
        m_searching =
            std::make_unique<Inactive>(std::initializer_list<QWidget*>{m_ui->Grid_SystemLog, m_ui->Frame_SystemViewer});
        m_ui->lbFound->setText(GetLangString(Message::kSearching));
        m_model->search(query, m_ui->txtSysFilter->text());
    });
}

void Form_Tooling::lbSysPageControl_Click(int button)
{
    Trapped("Form_Tooling - lbSysPageControl_Click", [&] { m_model->pageControl(button); });
}

void Form_Tooling::drawPage(bool ok)
{
    m_searching.reset();
    m_failed = !ok;
    const bool none = m_model->found() == 0;
    const bool filtered = !m_ui->txtSysFilter->text().isEmpty();
    if (!ok || !m_model->searched() || (none && !filtered)) {
        m_ui->empty->setHeadline(GetLangString(!ok ? 933 : m_model->searched() ? 744 : Message::kSystemLog));
        m_ui->empty->setHint(GetLangString(!ok ? 946 : 937));
        m_ui->stack->setCurrentWidget(m_ui->emptyPage);
        return;
    }
    m_ui->stack->setCurrentWidget(m_ui->listPage);
    m_ui->lbFound->setText(none ? GetLangString(Message::kNoMatch) : GetLangString(932).arg(m_model->found()));
    m_ui->Lb_SystemViewer_2->setText(m_model->pageText());
    m_ui->lbSysPageControl_0->setEnabled(m_model->canGoBack());
    m_ui->lbSysPageControl_1->setEnabled(m_model->canGoBack());
    m_ui->lbSysPageControl_2->setEnabled(m_model->canGoOn());
    m_ui->lbSysPageControl_3->setEnabled(m_model->canGoOn());
    m_ui->btnCopyRows->setEnabled(!none);
}

// The selected rows, without a selection the whole page.
void Form_Tooling::copyRows()
{
    QList<int> rows;
    const QModelIndexList selected = m_ui->Grid_SystemLog->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        rows << index.row();
    std::sort(rows.begin(), rows.end());
    for (int row = 0; selected.isEmpty() && row < m_model->rowCount(); ++row)
        rows << row;
    QGuiApplication::clipboard()->setText(m_model->copyText(rows));
}

bool Form_Tooling::asDatabase() const
{
    return m_ui->Opt_SysExport_1->isChecked();
}

void Form_Tooling::Cmd_SystemExport_Click()
{
    Trapped("Form_Tooling - Cmd_SystemExport_Click", [&] {
        m_exporting = std::make_unique<Inactive>(std::initializer_list<QWidget*>{m_ui->exportFields});
        m_ui->btnOpenFolder->hide();
        m_ui->lbExportState->hide();
        const QString folder = OpenDirectoryTV(u"Test"_s);
        if (!folder.isEmpty())
            exportTo(folder);
    });
    if (!m_export)
        m_exporting.reset();
}

void Form_Tooling::exportTo(const QString& folder)
{
    SystemLogQuery query{0, TimeToUtcSeconds(Now()), {}};
    if (m_ui->Chk_SystemExport->isChecked()) {
        if (!readSpan(u"DTPicker_SystemExport_"_s, query))
            return;
        query.user = m_ui->Cmb_SystemExportUser->currentText();
    }
    m_folder = folder;
    m_ui->ProgressBar_Export->setRange(0, 0); // how many rows there are is still to be found
    m_ui->ProgressBar_Export->show();
    using Kind = SystemLogExport::Kind;
    m_export = std::make_unique<SystemLogExport>(m_databases, query, asDatabase() ? Kind::Mdb : Kind::Csv, folder,
                                                 SystemLogExportStem());
    connect(m_export.get(), &SystemLogExport::progress, this, [this](qint64 written, qint64 rows) {
        m_ui->ProgressBar_Export->setRange(0, static_cast<int>(rows));
        m_ui->ProgressBar_Export->setValue(static_cast<int>(written));
    });
    connect(m_export.get(), &SystemLogExport::finished, this, &Form_Tooling::exported);
    m_export->start();
}

void Form_Tooling::exported(SystemLogExport::Outcome outcome)
{
    using Outcome = SystemLogExport::Outcome;
    const QString file = m_export->file();
    const QString reason = m_export->failure();
    m_export.release()->deleteLater();
    m_exporting.reset();
    m_ui->ProgressBar_Export->hide();
    if (outcome == Outcome::Stopped)
        return;
    if (outcome == Outcome::Unreadable)
        showExportState(Status::Bad, GetLangString(933), reason);
    if (outcome == Outcome::Nothing || outcome == Outcome::Unreadable) {
        Tell(outcome == Outcome::Nothing ? Tone::Warning : Tone::Error, 744);
        return;
    }
    const bool whole = outcome == Outcome::Whole;
    m_ui->btnOpenFolder->setVisible(whole);
    showExportState(whole ? Status::Ok : Status::Bad, whole ? QFileInfo(file).fileName() : GetLangString(938),
                    whole ? file : reason);
    const QString end = GetLangString(asDatabase() ? 746 : 745) + u"\n\n"_s;
    m_exported();
    if (!whole)
        Tell(Tone::Error, end + GetLangString(938));
    else if (TellAndOffer(end + file + u"\n\n"_s + GetLangString(1087)))
        openFolder();
}

void Form_Tooling::openFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(m_folder));
}

void Form_Tooling::showExportState(Status status, const QString& words, const QString& details)
{
    m_ui->lbExportState->setStatus(status, words);
    m_ui->lbExportState->setToolTip(details);
    m_ui->lbExportState->show();
}
