#include "tooling/SystemLogReader.h"

#include "support/Conversions.h"

#include <QElapsedTimer>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kFirstWindow = 1024;
constexpr qint64 kSmallestWindow = 64;
constexpr qint64 kLargestWindow = 1 << 16;

// A text as it stands, anywhere in a field.
QString Pattern(const QString& text)
{
    QString pattern = text;
    for (const QChar special : u"\\%_"_s)
        pattern.replace(special, QString(u'\\') + special);
    return u'%' + pattern + u'%';
}

} // namespace

Connection& OpenSystemLog(Databases& databases)
{
    if (!databases.LogConn)
        throw StoreError(u"Object variable not set"_s);
    if (!databases.LogConn->isOpen())
        databases.LogConn->open();
    return *databases.LogConn;
}

SystemLogReader::SystemLogReader(Databases& databases, const SystemLogQuery& query, const QString& filter)
    : m_databases(databases)
    , m_where(u" FROM SystemLog WHERE rowid > ? AND rowid <= ? AND TimeStamp >= ? AND TimeStamp <= ?"_s)
    , m_values{query.from, query.to}
{
    if (!query.user.isEmpty()) {
        m_where += u" AND User = ?"_s;
        m_values << query.user;
    }
    if (!filter.isEmpty()) {
        m_where += u" AND (User LIKE ? ESCAPE '\\' OR Description LIKE ? ESCAPE '\\')"_s;
        m_values << Pattern(filter) << Pattern(filter);
    }
    m_where += u" ORDER BY rowid DESC"_s;
    rewind();
}

void SystemLogReader::rewind()
{
    m_below = std::numeric_limits<qint64>::max();
    m_window = kFirstWindow;
}

bool SystemLogReader::read(const QString& columns, const std::function<void(const RowStream& row)>& visit)
{
    const Connection& log = OpenSystemLog(m_databases);
    QElapsedTimer slice;
    slice.start();
    qint64 spent = 0;
    while (spent < kSlice) {
        qint64 top = 0;
        {
            RowStream last(log, u"SELECT rowid FROM SystemLog WHERE rowid < ? ORDER BY rowid DESC LIMIT 1"_s,
                           {m_below});
            if (!last.next())
                return false;
            top = last.integer(0);
        }
        RowStream rows(log, u"SELECT "_s + columns + m_where, QVariantList{top - m_window, top} + m_values);
        while (rows.next())
            visit(rows);
        m_below = top - m_window + 1;
        // As many at a time as leaves several windows to a slice.
        const qint64 window = slice.elapsed() - spent;
        spent += window;
        m_window = std::clamp(window <= 1  ? m_window * 2
                              : window > 3 ? m_window / 2
                                           : m_window,
                              kSmallestWindow, kLargestWindow);
    }
    return true;
}

bool SystemLogReader::readPlaces(std::vector<SystemLogEntry>& places)
{
    const auto before = static_cast<std::ptrdiff_t>(places.size());
    const bool more = read(u"rowid, TimeStamp"_s, [&places](const RowStream& row) {
        places.push_back({row.integer(0), Int32Field(row.integer(1))});
    });
    const auto newer = [](const SystemLogEntry& one, const SystemLogEntry& other) {
        return one.TimeStamp > other.TimeStamp;
    };
    const auto middle = places.begin() + before;
    if (!std::is_sorted(middle, places.end(), newer))
        std::stable_sort(middle, places.end(), newer);
    if (middle != places.end())
        std::inplace_merge(std::upper_bound(places.begin(), middle, *middle, newer), middle, places.end(), newer);
    return more;
}
