#include "store/DBConvert.h"

#include "app/log/Module_Log.h"
#include "platform/EngineHandle.h"
#include "platform/RowStream.h"
#include "support/Conversions.h"

#include <QHash>
#include <QSqlQuery>
#include <QStringList>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kConvertSource("clsDBConvert - ConvertDB");
constexpr QLatin1String kMDROISource("clsDBConvert - ConvertMDROI");
constexpr int kROILines = 24;
constexpr int kROIWidth = 22; // shorter lines of an old bitmap are filled up to this

QStringList TableNames(const Connection& connection)
{
    QSqlQuery query(connection.database());
    query.setForwardOnly(true);
    if (!query.exec(u"SELECT name FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\'"_s))
        throw StoreError(u"Cannot list the tables"_s, query.lastError());
    QStringList names;
    while (query.next())
        names << query.value(0).toString();
    return names;
}

void Execute(const Connection& connection, const QString& sql)
{
    QSqlQuery query(connection.database());
    if (!query.exec(sql))
        throw StoreError(sql, query.lastError());
}

// The column that numbers itself (lower case), empty without one: a whole-number primary key stands for the row id.
QString NumberingColumn(const Connection& connection, const QString& table)
{
    QSqlQuery query(connection.database());
    query.setForwardOnly(true);
    query.prepare(u"SELECT lower(name), upper(type) FROM pragma_table_info(?) WHERE pk > 0"_s);
    query.addBindValue(table);
    if (!query.exec() || !query.next() || query.value(1).toString() != "INTEGER"_L1)
        return {};
    const QString name = query.value(0).toString();
    return query.next() ? QString() : name; // a key of several columns numbers nothing
}

struct ChannelFacts
{
    QVariant lSub_CH_IntelligentID;
    QVariant bSub_CH_MD_Enable;
};

using ChannelTable = QHash<std::pair<qint64, qint64>, ChannelFacts>;

// Hands over each row's number, channel and the given field of the table SVR; nothing when the table lacks the field.
template <class Take>
void WalkSVR(Connection& connection, const QString& field, Take&& take)
{
    Recordset rows;
    rows.open(u"SVR"_s, connection, CursorType::Keyset, LockType::ReadOnly, CommandType::Table);
    if (!rows.fieldNames().contains(field, Qt::CaseInsensitive))
        return;
    rows.open(u"Select iSVR_Num,iSub_Channel,%1 From SVR"_s.arg(field), connection, CursorType::ForwardOnly,
              LockType::ReadOnly, CommandType::Text);
    for (; !rows.eof(); rows.moveNext())
        take(std::pair(rows.value(0).toLongLong(), rows.value(1).toLongLong()), rows.value(2));
}

// The converted recorders by number and channel, the first row of each. The switch of motion detection is a field of
// old layouts only.
ChannelTable ReadChannels(Connection& source, Connection& target)
{
    ChannelTable table;
    WalkSVR(target, u"lSub_CH_IntelligentID"_s, [&](const auto& key, const QVariant& value) {
        if (!table.contains(key))
            table.insert(key, {value, {}});
    });
    for (Connection* connection : {&target, &source}) {
        try {
            WalkSVR(*connection, u"bSub_CH_MD_Enable"_s, [&](const auto& key, const QVariant& value) {
                const auto found = table.find(key);
                if (found != table.end() && found->bSub_CH_MD_Enable.isNull())
                    found->bSub_CH_MD_Enable = value;
            });
        } catch (const StoreError& error) {
            if (error.fileFailed())
                throw;
            LogTrap(kMDROISource, QString::fromUtf8(error.what())); // a layout without recorders
        }
    }
    return table;
}

QString ROILine(const QString& bitmap, int line, int rows, int columns)
{
    QString text;
    if (line < rows && columns > 0)
        text = bitmap.mid(qsizetype(columns) * line, columns);
    return text.leftJustified(kROIWidth, u'0');
}

int NewSensitivity(qint32 old)
{
    switch (old) {
    case 4000:
        return 30;
    case 2000:
        return 50;
    case 1000:
        return 80;
    default:
        return -1;
    }
}

} // namespace

bool clsDBConvert::ConvertDB(const QString& source, const QString& target)
{
    bool complete = false;
    Trapped(kConvertSource, [&] {
        m_sourceConnection.setConnectionString(DatabaseConnectionString(source));
        m_targetConnection.setConnectionString(DatabaseConnectionString(target));
        m_sourceConnection.openAsIs();
        m_targetConnection.openAsIs();

        // One view of the source for the whole conversion: nobody can lock it away from here on.
        Execute(m_sourceConnection, u"BEGIN"_s);
        const QString targetList = TableNames(m_targetConnection).join(u';') + u';';
        QStringList tables;
        bool hasMDROI = false;
        const QStringList sourceTables = TableNames(m_sourceConnection);
        for (const QString& name : sourceTables) {
            if (name == "MDROI"_L1)
                hasMDROI = true;
            else if (targetList.contains(name))
                tables << name;
        }
        // The working file becomes the database only as a whole: one transaction spares a disk write for each row.
        Execute(m_targetConnection, u"BEGIN"_s);
        for (const QString& table : std::as_const(tables)) {
            if (!m_broken)
                Trapped(kConvertSource, [&] { copyTable(table); });
        }
        if (hasMDROI && !m_broken)
            Trapped(kMDROISource, [&] { ConvertMDROI(); });
        m_source.close();
        m_target.close();
        if (m_broken)
            throw StoreError(u"'%1' could not be read or '%2' not be written to its end"_s.arg(source, target));
        Execute(m_targetConnection, u"COMMIT"_s);
        complete = true;
    });
    m_source.close();
    m_target.close();
    m_sourceConnection.close();
    m_targetConnection.close();
    return complete;
}

void clsDBConvert::report(const QString& table, qint64 row, qint64 rows)
{
    if (m_progress)
        m_progress(table, row, rows);
}

template <class Work>
auto clsDBConvert::noting(Work&& work)
{
    try {
        return work();
    } catch (const StoreError& error) {
        m_broken = m_broken || error.fileFailed();
        throw;
    }
}

void clsDBConvert::placeTarget(qint64 index, qint64 targetRows)
{
    if (index + 1 > targetRows) {
        m_target.addNew();
        return;
    }
    m_target.moveFirst();
    m_target.move(index);
}

void clsDBConvert::copyTable(const QString& table)
{
    m_source.close();
    m_target.close();
    const qint64 rows = noting([&] {
        m_source.open(table, m_sourceConnection, CursorType::Keyset, LockType::ReadOnly, CommandType::Table);
        return m_source.recordCount();
    });
    m_target.open(table, m_targetConnection, CursorType::Keyset, LockType::Optimistic, CommandType::Table);
    const qint64 targetRows = m_target.recordCount();

    std::vector<std::pair<int, int>> fields; // source, target
    const QString numbering = NumberingColumn(m_targetConnection, table);
    QHash<QString, int> targetFields;
    const QStringList targetNames = m_target.fieldNames();
    for (int i = 0; i < static_cast<int>(targetNames.size()); ++i)
        targetFields.insert(targetNames.at(i).toLower(), i);
    const QStringList sourceNames = m_source.fieldNames();
    for (int i = 0; i < static_cast<int>(sourceNames.size()); ++i) {
        const QString name = sourceNames.at(i).toLower();
        // The version stays the template's, or the next start would convert again.
        if (targetFields.contains(name) && name != numbering && name != "sdbver"_L1)
            fields.emplace_back(i, targetFields.value(name));
    }

    const bool byNumber = table == "EventTrigger"_L1 && sourceNames.contains(u"SN"_s, Qt::CaseInsensitive);
    noting([&] {
        m_source.open(byNumber ? u"Select * From EventTrigger ORDER BY SN"_s : table, m_sourceConnection,
                      CursorType::ForwardOnly, LockType::ReadOnly, byNumber ? CommandType::Text : CommandType::Table);
    });
    for (qint64 i = 0; i < targetRows && !m_source.eof() && !m_broken; ++i) {
        report(table, i + 1, rows);
        Trapped(kConvertSource, [&] {
            m_target.moveFirst();
            m_target.move(i);
            for (const auto& [from, to] : fields)
                m_target.setValue(to, m_source.value(from));
            noting([&] { m_target.update(); });
        });
        noting([&] { m_source.moveNext(); });
    }
    m_source.close();
    if (!m_broken && rows > targetRows)
        addRows(table, rows, targetRows, fields, byNumber ? u" ORDER BY SN"_s : QString());
}

// Rows beyond those of the template go over as they are, without a detour through values of our own.
void clsDBConvert::addRows(const QString& table, qint64 rows, qint64 first,
                           const std::vector<std::pair<int, int>>& fields, const QString& order)
{
    const QStringList sourceNames = noting([&] {
        m_source.open(table, m_sourceConnection, CursorType::Keyset, LockType::ReadOnly, CommandType::Table);
        return m_source.fieldNames();
    });
    const QStringList targetNames = m_target.fieldNames();
    QStringList read{u"NULL"_s};
    QStringList written;
    for (const auto& [from, to] : fields) {
        read << QuotedName(sourceNames.at(from));
        written << targetNames.at(to);
    }
    const auto insert = m_target.insertOf(written);
    const auto stream = noting([&] {
        return std::make_unique<RowStream>(
            m_sourceConnection, u"SELECT %1 FROM %2%3 LIMIT -1 OFFSET %4"_s.arg(read.join(u','), QuotedName(table),
                                                                                order, QString::number(first)));
    });
    for (qint64 i = first; !m_broken && noting([&] { return stream->next(); }); ++i) {
        report(table, i + 1, rows);
        Trapped(kConvertSource, [&] {
            for (int field = 0; field < static_cast<int>(fields.size()); ++field) {
                insert->setField(static_cast<std::size_t>(field));
                insert->copy(*stream, field + 1);
            }
            noting([&] { insert->add(); });
        });
    }
}

void clsDBConvert::ConvertMDROI()
{
    const ChannelTable channels = noting([&] { return ReadChannels(m_sourceConnection, m_targetConnection); });
    const auto walk = [&](const QString& target, auto&& fill) {
        m_source.close();
        m_target.close();
        const qint64 rows = noting([&] {
            m_source.open(u"MDROI"_s, m_sourceConnection, CursorType::Keyset, LockType::ReadOnly, CommandType::Table);
            const qint64 count = m_source.recordCount();
            m_source.open(u"MDROI"_s, m_sourceConnection, CursorType::ForwardOnly, LockType::ReadOnly,
                          CommandType::Table);
            return count;
        });
        m_target.open(target, m_targetConnection, CursorType::Keyset, LockType::Optimistic, CommandType::Table);
        const qint64 targetRows = m_target.recordCount();
        const int slotField = m_source.fieldIndex(u"iSVR"_s);
        const int channelField = m_source.fieldIndex(u"iCH"_s);
        for (qint64 i = 0; !m_source.eof() && !m_broken; ++i) {
            report(u"MDROI"_s, i + 1, rows);
            Trapped(kMDROISource, [&] {
                placeTarget(i, targetRows);
                const auto channel = channels.constFind(
                    {m_source.value(slotField).toLongLong(), m_source.value(channelField).toLongLong()});
                if (channel != channels.constEnd())
                    m_target.setValue(u"Channel"_s, channel->lSub_CH_IntelligentID);
                fill(channel == channels.constEnd() ? nullptr : &*channel);
                noting([&] { m_target.update(); });
            });
            noting([&] { m_source.moveNext(); });
        }
    };

    Trapped(kMDROISource, [&] {
        std::vector<int> fields; // of the target, looked up once
        walk(u"MotionROI"_s, [&](const ChannelFacts*) {
            for (int line = static_cast<int>(fields.size()); line < kROILines; ++line)
                fields.push_back(m_target.fieldIndex(u"ROI_%1"_s.arg(line, 2, 10, QLatin1Char('0'))));
            const int rows = Int16Field(m_source.value(u"iRow"_s));
            const int columns = Int16Field(m_source.value(u"iCol"_s));
            const QString bitmap = TextField(m_source.value(u"sROI"_s));
            for (int line = 0; line < kROILines; ++line)
                m_target.setValue(At(fields, line), ROILine(bitmap, line, rows, columns));
        });
    });
    walk(u"MotionSettings"_s, [&](const ChannelFacts* channel) {
        if (channel && !channel->bSub_CH_MD_Enable.isNull())
            m_target.setValue(u"Enable"_s, channel->bSub_CH_MD_Enable);
        const int sensitivity = NewSensitivity(Int32Field(m_source.value(u"iMD_Sen"_s)));
        if (sensitivity >= 0)
            m_target.setValue(u"Sensitivity"_s, QVariant(sensitivity));
    });
}
