#include "recorders/ui/DetectStatusFrame.h"

#include "app/language/Languages.h"
#include "app/log/StartWork.h"
#include "recorders/ui/RecorderFields.h"
#include "recorders/ui/ui_DetectStatusFrame.h"
#include "support/Conversions.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kStatusRows = 11; // rows of the status grid on show at a time

enum Message
{
    kDone = 874,
    kAllAdded = 1030,
    kSomeFailed = 1031
};

} // namespace

DetectStatusFrame::DetectStatusFrame(DetectContext context, Work& work, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_work(work)
    , m_ui(std::make_unique<Ui::DetectStatusFrame>())
    , m_status(new DetectStatusModel(this))
{
    m_ui->setupUi(this);
    m_ui->Grid_DetectStatus->setList(m_status);
    m_ui->retryBar->hide();
    m_ui->txtRetryUser->setMaxLength(At(RecorderFields::kLengths, static_cast<int>(ManualField::User)));
    m_ui->txtRetryPassword->setMaxLength(At(RecorderFields::kLengths, static_cast<int>(ManualField::Password)));
    connect(m_ui->lbRetry, &QPushButton::clicked, this, &DetectStatusFrame::lbRetry_Click);
}

DetectStatusFrame::~DetectStatusFrame() = default;

void DetectStatusFrame::changeLanguage()
{
    m_status->retranslate();
    m_ui->txtRetryUser->setAccessibleName(m_ui->lbRetryUser->text());
    m_ui->txtRetryPassword->setAccessibleName(m_ui->lbRetryPassword->text());
}

QPushButton* DetectStatusFrame::retryButton() const
{
    return m_ui->lbRetry;
}

void DetectStatusFrame::takeFocus()
{
    m_ui->txtRetryUser->setFocus();
    m_ui->txtRetryUser->selectAll();
}

bool DetectStatusFrame::incomplete() const
{
    return !m_work.running() && m_status->doneRows() < m_status->rowCount();
}

QString DetectStatusFrame::summary() const
{
    const int rows = m_status->rowCount();
    if (m_work.running())
        return GetLangString(kDone).arg(m_status->finishedRows()).arg(rows);
    if (m_status->failedRows() == 0)
        return GetLangString(kAllAdded).arg(m_status->doneRows()).arg(rows);
    return GetLangString(kSomeFailed).arg(m_status->doneRows()).arg(rows).arg(m_status->failedRows());
}

void DetectStatusFrame::begin(std::vector<NVRDetectItem> items)
{
    if (!items.empty()) {
        m_ui->txtRetryUser->setText(items.front().sUser);
        m_ui->txtRetryPassword->setText(items.front().sPassword);
    }
    m_status->setItems(std::move(items));
    start();
}

void DetectStatusFrame::lbRetry_Click()
{
    if (m_work.running())
        return;
    m_status->tryAgain(m_ui->txtRetryUser->text(), m_ui->txtRetryPassword->text());
    start();
}

void DetectStatusFrame::start()
{
    m_ui->retryBar->hide();
    StartWork(
        m_work, "Form_NVRSetting - Timer_StartDetect"_L1, [this] { return detectAll(); },
        [this] {
            m_ui->retryBar->setVisible(incomplete());
            emit progressed();
            emit ended();
        });
    emit progressed();
}

QCoro::Task<> DetectStatusFrame::detectAll()
{
    std::vector<int> rows;
    std::vector<NVRDetectItem> items;
    for (int row = 0; row < m_status->rowCount(); ++row) {
        if (m_status->waits(row)) {
            rows.push_back(row);
            items.push_back(m_status->item(row));
        }
    }
    const auto tell = [&](std::size_t index, const DetectStatus& status) { report(rows[index], status); };
    co_await DetectList(m_context, items, tell, m_work);
}

void DetectStatusFrame::report(int row, const DetectStatus& status)
{
    m_status->setStatus(row, status);
    if (status.state == DetectStatus::State::Done) {
        m_added.push_back(status.slot);
        m_status->setChannels(row, CameraCount(At(m_context.recorders.SVRWorkList, status.slot)));
    }
    if (status.state != DetectStatus::State::Running && (row + 1) % kStatusRows == 0)
        m_ui->Grid_DetectStatus->scrollTo(m_ui->Grid_DetectStatus->cellOf(row), QAbstractItemView::PositionAtTop);
    emit progressed();
}
