// The audit log and the upgrade beside the sqlite3 shell on the same files in the same run.
// Usage: log_bench [rows]      prints one line a measure: ours, floor, ratio.

#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "store/Template.h"
#include "store/UpdateDatabase.h"
#include "tooling/SystemLogExport.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QProcess>
#include <QSqlQuery>
#include <QTableView>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRepeats = 5;
constexpr qint32 kFirst = 1750000000;
constexpr qint32 kMonth = 2592000;

template <class Work>
double Best(Work&& work)
{
    double best = 1e9;
    for (int i = 0; i < kRepeats; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = std::min(best, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    return best;
}

void Require(bool ok, const char* what)
{
    if (ok)
        return;
    std::fprintf(stderr, "log_bench: %s failed\n", what);
    std::exit(1);
}

void Shell(const QString& file, const QStringList& commands, const QString& output = {})
{
    QProcess shell;
    shell.setStandardOutputFile(output.isEmpty() ? QProcess::nullDevice() : output);
    QStringList arguments{u"-batch"_s};
    arguments << file << commands;
    shell.start(u"sqlite3"_s, arguments);
    Require(shell.waitForFinished(600000) && shell.exitCode() == 0, "sqlite3");
}

// Most memory the process has held so far, in KiB.
qint64 HighWater()
{
    QFile status(u"/proc/self/status"_s);
    Require(status.open(QIODevice::ReadOnly), "/proc/self/status");
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

void ResetHighWater()
{
    QFile clear(u"/proc/self/clear_refs"_s);
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

void Report(const char* name, double ours, double floor, double limit)
{
    std::printf("%-34s %9.1f ms  floor %9.1f ms  ratio %5.2f  (limit %.1f)\n", name, ours, floor, ours / floor, limit);
}

void FillLog(Databases& databases, int rows)
{
    QSqlQuery query(databases.LogConn->database());
    Require(query.exec(u"BEGIN"_s), "fill");
    query.prepare(u"INSERT INTO SystemLog VALUES(?,?,?)"_s);
    static constexpr std::array texts{"Open Rigging Desk", "Modify Setting of NVR", "Modify Setting of User Group",
                                      "System Log Export", "Close Rigging Desk"};
    for (int i = 0; i < rows; ++i) {
        query.bindValue(0, kFirst + static_cast<qint32>(qint64(i) * 10 * kMonth / rows));
        query.bindValue(1, u"operator%1"_s.arg(i % 40));
        query.bindValue(2, QString::fromLatin1(texts[static_cast<std::size_t>(i % 5)]));
        Require(query.exec(), "fill");
    }
    Require(query.exec(u"COMMIT"_s), "fill");
}

void Search(Databases& databases, const QString& log)
{
    QTableView view;
    SystemLogModel model(databases);
    view.setModel(&model);
    view.resize(900, 480);
    view.show();
    QApplication::processEvents();
    const double ours = Best([&] {
        Require(model.search({kFirst + 5 * kMonth, kFirst + 6 * kMonth - 1, {}}), "search");
        view.grab();
    });
    Require(model.found() > 0 && model.rowCount() == SystemLogModel::kPageRows, "search");
    std::printf("%lld rows found\n", static_cast<long long>(model.found()));
    const QString select =
        u"Select * From SystemLog WHERE (TimeStamp >= %1 And TimeStamp <= %2) order by TimeStamp DESC"_s
            .arg(kFirst + 5 * kMonth)
            .arg(kFirst + 6 * kMonth - 1);
    Report("search of a month, painted", ours, Best([&] { Shell(log, {select}); }), 2.0);
}

void Export(Databases& databases, const QString& log, const QString& folder, int rows)
{
    const SystemLogQuery everything{0, 2147483647, {}};
    qint64 told = 0;
    const auto progress = [&](qint64 done) {
        told = done;
        return true;
    };
    ResetHighWater();
    const qint64 before = HighWater();
    const double ours = Best([&] {
        QFile::remove(folder + u"/ours.csv"_s);
        Require(CountSystemLog(databases, 0, 2147483647, {}) == rows, "count");
        ExportSystemLogCsv(databases, everything, folder, u"ours"_s, progress);
    });
    const qint64 growth = HighWater() - before;
    Require(told == rows, "export");
    const double floor = Best([&] {
        Shell(log, {u"-csv"_s, u"-header"_s, u"Select * From SystemLog order by TimeStamp DESC"_s},
              folder + u"/shell.csv"_s);
    });
    Report("export of all rows as CSV", ours, floor, 1.5);
    std::printf("%-34s %9lld KiB (file %lld KiB)\n", "memory growth of the export", static_cast<long long>(growth),
                static_cast<long long>(QFile(folder + u"/ours.csv"_s).size() / 1024));
}

// A station with every slot and channel taken and rows in every other table, of an older version.
void FillStation(const QString& file)
{
    Connection connection;
    connection.setConnectionString(DatabaseConnectionString(file));
    connection.open();
    QSqlQuery query(connection.database());
    Require(query.exec(u"BEGIN"_s), "station");
    for (const TableInfo& table : AllTables()) {
        if (table.name == "BasicDefault"_L1)
            continue;
        QStringList names;
        QStringList values;
        for (const FieldInfo& field : table.fields) {
            const QString name = QString::fromLatin1(field.name);
            names << name;
            values << (field.type == FieldType::Text ? u"'text '||i"_s : u"i % 100"_s);
            if (name == "iSVR_Num"_L1)
                values.last() = u"i / 64 + 1"_s;
            else if (name == "iSub_Channel"_L1)
                values.last() = u"i % 64 + 1"_s;
        }
        const int rows = table.name == "GroupPrivilege"_L1 ? 0 : table.name == "SVR"_L1 ? 1024 : 100;
        Require(query.exec(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) "
                           "INSERT INTO \"%1\" (%2) SELECT %3 FROM n LIMIT %4"_s.arg(
                               table.name, names.join(u','), values.join(u','), QString::number(rows))),
                "station");
    }
    Require(query.exec(u"UPDATE BasicDefault SET sDBVer='1.0.1.0'"_s), "station");
    Require(query.exec(u"CREATE TABLE MDROI(iSVR INTEGER, iCH INTEGER, iRow INTEGER, iCol INTEGER, sROI TEXT, iMD_Sen "
                       "INTEGER)"_s),
            "station");
    Require(query.exec(u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n) INSERT INTO MDROI SELECT i / 64 "
                       "+ 1, i % 64 + 1, 18, 22, replace(hex(zeroblob(198)), '00', '01'), 2000 FROM n LIMIT 1024"_s),
            "station");
    Require(query.exec(u"COMMIT"_s), "station");
}

// Counts what it is told, as the progress window does between two paintings.
class CountingWatcher final : public UpdateWatcher
{
public:
    void row(const QString&, qint64, qint64) override { ++rows; }
    qint64 rows = 0;
};

void Upgrade(const QString& folder)
{
    const QString old = folder + u"/old.mdb"_s;
    CopyDatabase(StationPath(kTemplateFile), old);
    FillStation(old);
    CopyDatabase(old, StationPath(kDatabaseFile));
    Databases databases;
    double ours = 1e9;
    for (int i = 0; i < kRepeats; ++i) {
        CloseDatabases(databases);
        CopyDatabase(old, StationPath(kDatabaseFile));
        Require(InitialDB(databases) == 1, "open");
        BasicDefaultSet defaults;
        CountingWatcher watcher;
        QElapsedTimer timer;
        timer.start();
        UpdateDatabase(databases, defaults, true, watcher);
        ours = std::min(ours, static_cast<double>(timer.nsecsElapsed()) / 1e6);
        Require(defaults.stored.sDBVer == kDatabaseVersion && watcher.rows > 3000, "update");
    }

    QString copy = u"BEGIN;"_s;
    for (const TableInfo& table : AllTables()) {
        QStringList names;
        for (const FieldInfo& field : table.fields)
            names << QString::fromLatin1(field.name);
        const QString list = names.join(u',');
        copy += u"DELETE FROM \"%1\";INSERT INTO \"%1\" (%2) SELECT %2 FROM old.\"%1\";"_s.arg(table.name, list);
    }
    QStringList lines;
    QStringList names;
    for (int line = 0; line < 24; ++line) {
        names << u"ROI_%1"_s.arg(line, 2, 10, QLatin1Char('0'));
        lines << u"substr(substr(sROI, iCol * %1 + 1, iCol) || '0000000000000000000000', 1, 22)"_s.arg(line);
    }
    copy += u"CREATE INDEX s ON SVR(iSVR_Num, iSub_Channel);"
            "INSERT INTO MotionROI (Channel,%1) SELECT (SELECT lSub_CH_IntelligentID FROM SVR WHERE iSVR_Num=iSVR AND "
            "iSub_Channel=iCH),%2 FROM old.MDROI;"
            "INSERT INTO MotionSettings SELECT (SELECT lSub_CH_IntelligentID FROM SVR WHERE iSVR_Num=iSVR AND "
            "iSub_Channel=iCH),1,50 FROM old.MDROI;DROP INDEX s;COMMIT;"_s.arg(names.join(u','), lines.join(u','));
    const QString target = folder + u"/plain.mdb"_s;
    const double floor = Best([&] {
        CopyDatabase(StationPath(kTemplateFile), target);
        Shell(target, {u"ATTACH '%1' AS old"_s.arg(old), copy});
    });
    Report("upgrade of a full station", ours, floor, 3.0);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int rows = argc > 1 ? std::atoi(argv[1]) : 1000000;
    const QTemporaryDir folder;
    SetAppPath(folder.path());
    CreateTemplate(StationPath(kTemplateFile));
    CopyDatabase(StationPath(kTemplateFile), StationPath(kDatabaseFile));
    {
        Databases databases;
        Require(InitialDB(databases) == 1, "open");
        FillLog(databases, rows);
        const QString log = StationPath(kSystemLogFile);
        Search(databases, log);
        Export(databases, log, folder.path(), rows);
        CloseDatabases(databases);
    }
    Upgrade(folder.path());
    return 0;
}
