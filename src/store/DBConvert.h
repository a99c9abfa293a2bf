#pragma once

#include "platform/Connection.h"
#include "platform/Recordset.h"

#include <QString>
#include <functional>
#include <utility>
#include <vector>

// Told before each row: the table, the row's number from 1 and the number of rows. Lets the progress window paint.
using ConvertProgress = std::function<void(const QString& table, qint64 row, qint64 rows)>;

// Carries the data of an old configuration database over into a copy of the current template: every table and field
// that both files have, by name. Rows of the template are overwritten in place, further rows are added.
class clsDBConvert
{
public:
    explicit clsDBConvert(ConvertProgress progress = {})
        : m_progress(std::move(progress))
    {
    }

    // Paths are platform paths. A row or table that fails costs one log line and the copy goes on. True when the
    // source could be read and the target written to the end; false leaves the target as it was.
    bool ConvertDB(const QString& source, const QString& target);

private:
    void copyTable(const QString& table);
    // The source's rows from number `first` (from 0) on; `fields` are pairs of indices, source and target.
    void addRows(const QString& table, qint64 rows, qint64 first, const std::vector<std::pair<int, int>>& fields,
                 const QString& order);
    // Fills MotionROI and MotionSettings from the old table MDROI (region bitmap and sensitivity of a channel).
    void ConvertMDROI();
    // Carries out work on either file and notes that the file failed, which ends the conversion.
    template <class Work>
    auto noting(Work&& work);
    // The target's row number `index` (from 0) becomes the one that is set, a new one behind the last.
    void placeTarget(qint64 index, qint64 targetRows);
    void report(const QString& table, qint64 row, qint64 rows);

    ConvertProgress m_progress;
    Connection m_sourceConnection;
    Connection m_targetConnection;
    Recordset m_source;
    Recordset m_target;
    bool m_broken = false; // a file failed: the source gives, or the target takes, no more
};
