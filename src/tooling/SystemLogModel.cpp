#include "tooling/SystemLogModel.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"

using namespace Qt::StringLiterals;

SystemLogModel::SystemLogModel(Databases& databases, QObject* parent)
    : TableModel(parent)
    , m_databases(databases)
{
    const auto time = [this](QString (LogTimes::*written)(qint32)) {
        return [this, written](int row) { return (m_times.*written)(At(m_rows, row).TimeStamp); };
    };
    const auto user = [this](int row) { return At(m_rows, row).User; };
    const auto description = [this](int row) { return At(m_rows, row).Description; };
    setColumns({
        {.head = 176,
         .width = 150,
         .kind = TableColumn::Kind::Figures,
         .text = time(&LogTimes::shortText),
         .words = time(&LogTimes::longText)},
        {.head = Message::kUser, .width = 150, .text = user, .words = user},
        {.head = 129, .text = description, .words = description},
    });
    connect(&m_slices, &QTimer::timeout, this, &SystemLogModel::slice);
}

void SystemLogModel::search(const SystemLogQuery& query, const QString& filter)
{
    m_filter = filter;
    m_query = query;
    m_searched = true;
    find(true);
}

void SystemLogModel::setFilter(const QString& text)
{
    if (text == m_filter)
        return;
    m_filter = text;
    if (m_searched)
        find(true);
}

// A search that is under way is given up for the new one.
void SystemLogModel::find(bool fromStart)
{
    m_fromStart = fromStart || (searching() && m_fromStart);
    m_reader = std::make_unique<SystemLogReader>(m_databases, m_query, m_filter);
    m_finding.clear();
    m_slices.start(0);
}

void SystemLogModel::slice()
{
    bool more = false;
    const bool ok = Trapped("Module_DB_Access - GetSystemLog", [&] { more = m_reader->readPlaces(m_finding); });
    if (more)
        return;
    m_slices.stop();
    m_reader.reset();
    if (!ok)
        m_finding.clear();
    m_entries.swap(m_finding);
    m_finding = {};
    m_page = m_fromStart ? 0 : qMin(m_page, lastPage());
    draw(ok);
}

void SystemLogModel::pageControl(int button)
{
    switch (button) {
    case First:
        m_page = 0;
        break;
    case Back:
        if (canGoBack())
            --m_page;
        break;
    case On:
        if (canGoOn())
            ++m_page;
        break;
    case Last:
        m_page = lastPage();
        break;
    case Refresh:
        if (m_searched)
            find(false);
        return;
    default:
        return;
    }
    draw(true);
}

qint32 SystemLogModel::lastPage() const
{
    return static_cast<qint32>(qMax<qint64>(0, upperBound() / kPageRows));
}

QString SystemLogModel::pageText() const
{
    const qint64 bound = qMax<qint64>(0, upperBound());
    const qint64 pages = bound / kPageRows + (bound % kPageRows == 0 ? 0 : 1);
    return QString::number(m_page + 1) + u'/' + QString::number(pages);
}

void SystemLogModel::draw(bool ok)
{
    const auto first = std::min(m_entries.size(), static_cast<std::size_t>(m_page) * kPageRows);
    const auto count = std::min<std::size_t>(kPageRows, m_entries.size() - first);
    const bool fetched = FetchSystemLog(m_databases, std::span(m_entries).subspan(first, count), m_rows) == 1;
    setRecordCount(static_cast<int>(m_rows.size()));
    emit drawn(ok && fetched);
}

QString SystemLogModel::copyText(const QList<int>& rows) const
{
    QString text;
    for (const int row : rows) {
        if (row < 0 || row >= rowCount())
            continue;
        const SystemLogRow& line = At(m_rows, row);
        text += m_times.longText(line.TimeStamp) + u'\t' + line.User + u'\t' + line.Description + u'\n';
    }
    return text;
}
