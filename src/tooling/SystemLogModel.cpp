#include "tooling/SystemLogModel.h"

#include "app/language/Languages.h"

using namespace Qt::StringLiterals;

SystemLogModel::SystemLogModel(Databases& databases, QObject* parent)
    : QAbstractTableModel(parent)
    , m_databases(databases)
{
}

bool SystemLogModel::search(const SystemLogQuery& query, const QString& filter)
{
    m_filter = filter;
    m_query = query;
    m_searched = true;
    return findFromStart();
}

bool SystemLogModel::setFilter(const QString& text)
{
    if (text == m_filter)
        return true;
    m_filter = text;
    return !m_searched || findFromStart();
}

bool SystemLogModel::findFromStart()
{
    m_page = 0;
    const bool ok = find();
    return draw() && ok;
}

bool SystemLogModel::find()
{
    const bool ok = FindSystemLog(m_databases, m_query.from, m_query.to, m_query.user, m_filter, m_entries) == 1;
    if (!ok)
        m_entries.clear();
    return ok;
}

bool SystemLogModel::pageControl(int button)
{
    bool ok = true;
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
        ok = !m_searched || find();
        m_page = qMin(m_page, lastPage());
        break;
    default:
        return true;
    }
    return draw() && ok;
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

bool SystemLogModel::draw()
{
    beginResetModel();
    const auto first = std::min(m_entries.size(), static_cast<std::size_t>(m_page) * kPageRows);
    const auto count = std::min<std::size_t>(kPageRows, m_entries.size() - first);
    const bool ok = FetchSystemLog(m_databases, std::span(m_entries).subspan(first, count), m_rows) == 1;
    endResetModel();
    return ok;
}

QString SystemLogModel::copyText(const QList<int>& rows) const
{
    QString text;
    for (const int row : rows) {
        if (row < 0 || row >= rowCount())
            continue;
        const SystemLogRow& line = m_rows[static_cast<std::size_t>(row)];
        text += m_times.longText(line.TimeStamp) + u'\t' + line.User + u'\t' + line.Description + u'\n';
    }
    return text;
}

void SystemLogModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

int SystemLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int SystemLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant SystemLogModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const SystemLogRow& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::ToolTipRole && index.column() == Time)
        return m_times.longText(row.TimeStamp);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (index.column()) {
    case Time:
        return m_times.shortText(row.TimeStamp);
    case User:
        return row.User;
    default:
        return row.Description;
    }
}

QVariant SystemLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return GetLangString(section == Time ? 176 : section == User ? 465 : 129);
}
