// The audit log and the upgrade beside the sqlite3 shell on the same files in the same run, through the real windows
// (without a screen).
// Usage: log_bench [rows]

#include "app/language/Languages.h"
#include "app/ui/UpdateWindow.h"
#include "bench/Bench.h"
#include "look/style/Theme.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "platform/FolderChooser.h"
#include "platform/MsgBox.h"
#include "store/Template.h"
#include "tests/LoopWatch.h"
#include "tooling/ui/Form_Tooling.h"

#include <QApplication>
#include <QDateEdit>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSqlQuery>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimeEdit>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kFirst = 1748736000; // 2025/6/1, midnight
constexpr qint32 kDay = 86400;
constexpr int kMonths = 10; // of 30 days
constexpr int kMonthDays = 30;
const QDate kFirstDay(2025, 6, 1);
constexpr const char* kExportChild = "--export";

qint64 g_longestPause = 0; // milliseconds

using bench::Require;

void Shell(const QString& file, const QStringList& commands, const QString& output = {})
{
    QProcess shell;
    shell.setStandardOutputFile(output.isEmpty() ? QProcess::nullDevice() : output);
    QStringList arguments{u"-batch"_s};
    arguments << file << commands;
    shell.start(u"sqlite3"_s, arguments);
    Require(shell.waitForFinished(600000) && shell.exitCode() == 0, "sqlite3");
}

void FillLog(Databases& databases, int rows)
{
    QSqlQuery query(databases.LogConn->database());
    Require(query.exec(u"BEGIN"_s), "fill");
    query.prepare(u"INSERT INTO SystemLog VALUES(?,?,?)"_s);
    static constexpr std::array texts{"Open Rigging Desk", "Modify Setting of NVR", "Modify Setting of User Group",
                                      "System Log Export", "Close Rigging Desk"};
    for (int i = 0; i < rows; ++i) {
        query.bindValue(0, kFirst + static_cast<qint32>(qint64(i) * kMonths * kMonthDays * kDay / rows));
        query.bindValue(1, u"operator%1"_s.arg(i % 40));
        query.bindValue(2, QString::fromLatin1(texts[static_cast<std::size_t>(i % 5)]));
        Require(query.exec(), "fill");
    }
    Require(query.exec(u"COMMIT"_s), "fill");
}

void MakeStation(const QString& folder, int logRows)
{
    SetAppPath(folder);
    CreateTemplate(StationPath(kTemplateFile));
    CopyDatabase(StationPath(kTemplateFile), StationPath(kDatabaseFile));
    Databases databases;
    Require(InitialDB(databases) == 1, "open");
    FillLog(databases, logRows);
    CloseDatabases(databases);
}

template <class Widget>
Widget* Find(QWidget& page, const QString& name)
{
    auto* widget = page.findChild<Widget*>(name);
    Require(widget, qPrintable(name));
    return widget;
}

// Presses a button and waits until what it begins has ended; the loop never stands still for long meanwhile.
void Press(QWidget& page, QPushButton* button)
{
    const LoopWatch watch;
    const auto* viewer = Find<QWidget>(page, u"Frame_SystemViewer"_s);
    const auto* fields = Find<QWidget>(page, u"exportFields"_s);
    button->click();
    while (!viewer->isEnabled() || !fields->isEnabled())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    g_longestPause = std::max(g_longestPause, watch.longest());
}

// From the press of the button until the page with the first rows is painted.
void Search(Form_Tooling& page, const QString& log, int rows)
{
    const QDate month = kFirstDay.addDays(kMonths / 2 * kMonthDays);
    Find<QDateEdit>(page, u"DTPicker_SystemViewer_0"_s)->setDate(month);
    Find<QTimeEdit>(page, u"DTPicker_SystemViewer_1"_s)->setTime(QTime(0, 0));
    Find<QDateEdit>(page, u"DTPicker_SystemViewer_2"_s)->setDate(month.addDays(kMonthDays - 1));
    Find<QTimeEdit>(page, u"DTPicker_SystemViewer_3"_s)->setTime(QTime(23, 59, 59));
    auto* button = Find<QPushButton>(page, u"lbSysSearch"_s);
    const qint32 from = kFirst + kMonths / 2 * kMonthDays * kDay;
    const QString select =
        u"Select * From SystemLog WHERE (TimeStamp >= %1 And TimeStamp <= %2) order by TimeStamp DESC"_s.arg(from).arg(
            from + kMonthDays * kDay - 1);
    bench::Compare(
        "search of a month in the log, painted", 2,
        [&] {
            Press(page, button);
            page.grab();
        },
        [&] { Shell(log, {select}); });
    Require(Find<QTableView>(page, u"Grid_SystemLog"_s)->model()->rowCount() == 11, "search");
    Require(Find<QLabel>(page, u"lbFound"_s)->text() == GetLangString(932).arg(rows / kMonths), "search");
}

// From the press of the button until the box that tells the end, the progress bar included.
void Export(Form_Tooling& page, const QString& log, const QString& folder, int rows)
{
    SetFolderHandler([&](const QString&) { return folder; });
    SetMsgBoxHandler([](const QString& text, qint32, const QString&) {
        Require(text.startsWith(GetLangString(745)), "export");
        return MsgResult::Ok;
    });
    auto* button = Find<QPushButton>(page, u"Cmd_SystemExport"_s);
    const QDir target(folder);
    const auto ours = [&] {
        const double time = bench::Milliseconds([&] { Press(page, button); });
        const QStringList files = target.entryList({u"Systemlog_Export_*.csv"_s});
        Require(files.size() == 1, "export");
        QFile file(target.filePath(files.first()));
        Require(file.open(QIODevice::ReadOnly) && file.readAll().count('\n') == rows + 1, "export");
        file.remove();
        return time;
    };
    bench::Compare(
        "export of the whole log as CSV", 1.5, ours,
        [&] {
            Shell(log, {u"-csv"_s, u"-header"_s, u"Select * From SystemLog order by TimeStamp DESC"_s},
                  folder + u"/shell.csv"_s);
        },
        30);
}

// The same as a database: only how long the loop stands still.
void ExportDatabase(Form_Tooling& page, const QString& folder)
{
    SetMsgBoxHandler([](const QString& text, qint32, const QString&) {
        Require(text.startsWith(GetLangString(746)), "export");
        return MsgResult::Ok;
    });
    Find<QRadioButton>(page, u"Opt_SysExport_1"_s)->click();
    Press(page, Find<QPushButton>(page, u"Cmd_SystemExport"_s));
    for (const QString& file : QDir(folder).entryList({u"Systemlog_Export_*.mdb"_s}))
        QFile::remove(folder + u'/' + file);
}

// The most memory that this process has held so far, in KiB.
long HighWater()
{
    QFile status(u"/proc/self/status"_s);
    Require(status.open(QIODevice::ReadOnly), "/proc/self/status");
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    Require(false, "VmHWM");
    return 0;
}

// What a process of its own does for the memory measure: exports and prints its high-water mark.
int ExportChild(const QString& station, const QString& folder)
{
    SetAppPath(station);
    Databases databases;
    Require(InitialDB(databases) == 1, "open");
    qint64 told = 0;
    SystemLogExport work(databases, {0, 2147483647, {}}, SystemLogExport::Kind::Csv, folder, u"child"_s);
    QObject::connect(&work, &SystemLogExport::progress, &work, [&told](qint64 written) { told = written; });
    QObject::connect(&work, &SystemLogExport::finished, &work, [](SystemLogExport::Outcome outcome) {
        Require(outcome == SystemLogExport::Outcome::Whole, "export");
        QCoreApplication::quit();
    });
    work.start();
    QCoreApplication::exec();
    QFile::remove(folder + u"/child.csv"_s);
    std::printf("%lld %ld\n", static_cast<long long>(told), HighWater());
    return 0;
}

double ExportMemory(const QString& station, const QString& folder, int rows)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kExportChild), station, folder});
    Require(child.waitForFinished(600000) && child.exitCode() == 0, "child");
    const QByteArrayList words = child.readAllStandardOutput().trimmed().split(' ');
    Require(words.size() == 2 && words[0].toInt() == rows, "child");
    return words[1].toDouble();
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

// Counts how often the progress window is painted.
class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == "formProgressBar"_L1)
            ++paints;
        return false;
    }
};

void Upgrade(const QString& folder)
{
    const QString old = folder + u"/old.mdb"_s;
    CopyDatabase(StationPath(kTemplateFile), old);
    FillStation(old);
    CopyDatabase(old, StationPath(kDatabaseFile));
    Databases databases;
    PaintCounter counter;
    qApp->installEventFilter(&counter);
    int updates = 0;
    const auto ours = [&] {
        CloseDatabases(databases);
        CopyDatabase(old, StationPath(kDatabaseFile));
        Require(InitialDB(databases) == 1, "open");
        BasicDefaultSet defaults;
        UpdateWindow window;
        const double time = bench::Milliseconds([&] { UpdateDatabase(databases, defaults, true, window); });
        ++updates;
        QSqlQuery converted(databases.DBConn->database());
        Require(defaults.stored.sDBVer == kDatabaseVersion &&
                    converted.exec(u"SELECT (SELECT COUNT(*) FROM SVR), (SELECT COUNT(*) FROM MotionROI)"_s) &&
                    converted.next() && converted.value(0).toInt() == 1024 && converted.value(1).toInt() == 1024,
                "update");
        return time;
    };

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
    bench::Compare(
        "upgrade of a full station", 2, ours,
        [&] {
            CopyDatabase(StationPath(kTemplateFile), target);
            Shell(target, {u"ATTACH '%1' AS old"_s.arg(old), copy});
        },
        20);
    Require(counter.paints >= updates, "the progress window was not painted in each update");
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    if (argc == 4 && qstrcmp(argv[1], kExportChild) == 0) {
        const QCoreApplication application(argc, argv);
        return ExportChild(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    QApplication application(argc, argv);
    ApplyTheme(application, Scheme::Light);
    SetLanguage(1);
    const int rows = argc > 1 ? std::atoi(argv[1]) : 1000000;
    Require(rows >= 1000, "rows");
    const QTemporaryDir small;
    const QTemporaryDir large;
    MakeStation(small.path(), rows / 10);
    MakeStation(large.path(), rows);
    {
        Databases databases;
        Require(InitialDB(databases) == 1, "open");
        Form_Tooling page(databases, [] {});
        page.resize(1060, 640);
        page.open();
        page.show();
        QApplication::processEvents();
        const QString log = StationPath(kSystemLogFile);
        Search(page, log, rows);
        Export(page, log, large.path(), rows);
        ExportDatabase(page, large.path());
        const auto pause = static_cast<double>(g_longestPause); // beside what a user does not feel
        bench::Row("log: longest pause of the loop", pause, 100, pause / 100, 1);
        CloseDatabases(databases);
    }
    const double before = ExportMemory(small.path(), small.path(), rows / 10);
    const double after = ExportMemory(large.path(), large.path(), rows);
    bench::Row("memory of an export, rows against a tenth", after, before, after / before, 1.1, "KiB");
    Upgrade(large.path());
    return 0;
}
