#include "tooling/LogTimes.h"

#include <QDateTime>

namespace {

constexpr qint64 kQuarter = 900;
constexpr qint64 kDay = 86400;

qint64 FloorDiv(qint64 value, qint64 by)
{
    return value >= 0 ? value / by : -((-value + by - 1) / by);
}

void TwoDigits(QByteArray& line, int value)
{
    line += static_cast<char>('0' + value / 10);
    line += static_cast<char>('0' + value % 10);
}

} // namespace

LogTimes::Parts LogTimes::local(qint32 utcSeconds)
{
    const qint64 quarter = FloorDiv(utcSeconds, kQuarter);
    if (quarter != m_quarter || m_day < 0) {
        m_quarter = quarter;
        m_offset = QDateTime::fromSecsSinceEpoch(utcSeconds).offsetFromUtc();
    }
    const qint64 seconds = utcSeconds + m_offset;
    const qint64 day = FloorDiv(seconds, kDay);
    if (day != m_day) {
        m_day = day;
        QDate(1970, 1, 1).addDays(day).getDate(&m_year, &m_month, &m_dayOfMonth);
    }
    const int rest = static_cast<int>(seconds - day * kDay);
    return {m_year, m_month, m_dayOfMonth, rest / 3600, rest / 60 % 60, rest % 60};
}

QString LogTimes::shortText(qint32 utcSeconds)
{
    return longText(utcSeconds).mid(5);
}

QString LogTimes::longText(qint32 utcSeconds)
{
    QByteArray line;
    append(line, utcSeconds, ' ');
    return QString::fromLatin1(line);
}

void LogTimes::append(QByteArray& line, qint32 utcSeconds, char separator)
{
    const Parts parts = local(utcSeconds);
    TwoDigits(line, parts.year / 100);
    TwoDigits(line, parts.year % 100);
    line += '/';
    TwoDigits(line, parts.month);
    line += '/';
    TwoDigits(line, parts.day);
    line += separator;
    TwoDigits(line, parts.hour);
    line += ':';
    TwoDigits(line, parts.minute);
    line += ':';
    TwoDigits(line, parts.second);
}
