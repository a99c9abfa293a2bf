#pragma once

#include <QByteArray>
#include <QString>

// Texts of audit times in local time. Time zones change their offset at quarter hours of UTC, so that one look at the
// zone serves all rows of a quarter.
class LogTimes
{
public:
    struct Parts
    {
        int year, month, day, hour, minute, second;
    };
    // `utcSeconds` since 1970/1/1.
    Parts local(qint32 utcSeconds);
    QString shortText(qint32 utcSeconds); // mm/dd hh:mm:ss
    QString longText(qint32 utcSeconds);  // yyyy/mm/dd hh:mm:ss
    // Appends "yyyy/mm/dd", `separator`, "hh:mm:ss".
    void append(QByteArray& line, qint32 utcSeconds, char separator);

private:
    qint64 m_quarter = -1;
    qint64 m_offset = 0;
    qint64 m_day = -1;
    int m_year = 1970;
    int m_month = 1;
    int m_dayOfMonth = 1;
};
