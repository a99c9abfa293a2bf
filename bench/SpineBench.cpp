// The spine against its floors in the same run: start to a usable window on a full station (16 recorders of 64
// channels) against an empty Qt window; saving the 1,024 rows and loading them against the SQLite C API with the same
// settings.
#include "app/StartUp.h"
#include "app/Station.h"
#include "app/ui/Form_Initial.h"
#include "bench/Bench.h"
#include "look/style/Theme.h"
#include "platform/AppPath.h"
#include "platform/Closing.h"
#include "platform/DatabaseFile.h"
#include "recorders/data/SVRStore.h"
#include "store/Template.h"
#include "store/tables/SVRTable.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

void FillRecorders(RecorderSet& set)
{
    for (int slot = 0; slot < kMaxSVR; ++slot) {
        SVRRecord& svr = At(set.SVRList, slot);
        SVRProRecord& pro = At(set.SVRProList, slot);
        svr.iSVR_Num = static_cast<qint16>(slot + 1);
        svr.sSVR_Name = u"Recorder %1"_s.arg(slot + 1);
        svr.sSVR_IP = u"127.0.1.%1"_s.arg(slot + 20); // answers with a refusal
        svr.iSVR_HttpPort = 9;
        svr.sSVR_DeviceType = kFamilyTXR632;
        svr.sSVR_DisplayDeviceType = u"TX-64"_s;
        svr.iSVR_Maxchannel = kMaxChannel;
        for (int channel = 0; channel < kMaxChannel; ++channel) {
            ClearChannel(svr, pro, channel);
            const auto c = static_cast<std::size_t>(channel);
            svr.channels[c].sSub_CH_Name = u"Camera %1"_s.arg(channel + 1);
            svr.channels[c].sSub_CH_IP = u"192.168.20.%1"_s.arg(channel + 1);
            svr.channels[c].sSub_CH_UserName = svr.channels[c].sSub_CH_Password = u"admin"_s;
            svr.channels[c].sSub_CH_VideoFormat = u"H264"_s;
            svr.channels[c].sSub_CH_Resolution = u"1920x1080"_s;
            svr.channels[c].sCH_ResolutionList = u"1920x1080,1280x720,640x480;640x480;1920x1080"_s;
            svr.channels[c].sCH_PTZ_Speed_Range = u"1,10,1"_s;
            pro.channels[c].sCH_Pro_Mac = u"02:1a:4f:00:00:06"_s;
            for (SVRProStream& stream : pro.channels[c].streams) {
                stream.sResolutionList = u"1920x1080,1280x720,640x480,320x240"_s;
                for (auto* bounds : {&stream.iFPSUpper, &stream.iFPSLower, &stream.iBPSUpper, &stream.iBPSLower})
                    *bounds = {30, 25, 15, 5};
            }
        }
    }
}

sqlite3* OpenRaw(const QString& file)
{
    sqlite3* database = nullptr;
    if (sqlite3_open(file.toUtf8().constData(), &database) != SQLITE_OK)
        std::abort();
    sqlite3_exec(database, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    return database;
}

struct RawRow
{
    std::vector<std::pair<int, QByteArray>> cells; // SQLite type and text
};

std::vector<RawRow> ReadRaw(sqlite3* database)
{
    std::vector<RawRow> rows;
    sqlite3_stmt* select = nullptr;
    sqlite3_prepare_v2(database, "SELECT * FROM SVR", -1, &select, nullptr);
    while (sqlite3_step(select) == SQLITE_ROW) {
        RawRow& row = rows.emplace_back();
        for (int i = 0; i < sqlite3_column_count(select); ++i)
            row.cells.emplace_back(sqlite3_column_type(select, i),
                                   QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(select, i)),
                                              sqlite3_column_bytes(select, i)));
    }
    sqlite3_finalize(select);
    return rows;
}

// The same rows, before them the old ones deleted a recorder at a time: each row its own transaction, or all in one.
enum class Step
{
    Row,
    Whole
};
void SaveRaw(sqlite3* database, const std::vector<RawRow>& rows, Step step)
{
    if (step == Step::Whole)
        sqlite3_exec(database, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    std::string sql = "INSERT INTO SVR VALUES (?";
    for (std::size_t i = 1; i < rows[0].cells.size(); ++i)
        sql += ",?";
    sql += ")";
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database, sql.c_str(), -1, &insert, nullptr);
    for (int slot = 1; slot <= kMaxSVR; ++slot) {
        const std::string remove = "DELETE FROM SVR WHERE iSVR_Num=" + std::to_string(slot);
        sqlite3_exec(database, remove.c_str(), nullptr, nullptr, nullptr);
        for (int channel = 0; channel < kMaxChannel; ++channel) {
            const RawRow& row = rows[static_cast<std::size_t>((slot - 1) * kMaxChannel + channel)];
            for (std::size_t i = 0; i < row.cells.size(); ++i) {
                const auto& [type, text] = row.cells[i];
                const int at = static_cast<int>(i) + 1;
                if (type == SQLITE_INTEGER)
                    sqlite3_bind_int64(insert, at, text.toLongLong());
                else
                    sqlite3_bind_text(insert, at, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
            }
            if (sqlite3_step(insert) != SQLITE_DONE)
                std::abort();
            sqlite3_reset(insert);
        }
    }
    sqlite3_finalize(insert);
    if (step == Step::Whole)
        sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
}

qint64 ReadAllColumns(sqlite3* database)
{
    qint64 sum = 0;
    sqlite3_stmt* select = nullptr;
    sqlite3_prepare_v2(database, "SELECT * FROM SVR", -1, &select, nullptr);
    const int columns = sqlite3_column_count(select);
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int i = 0; i < columns; ++i) {
            if (sqlite3_column_type(select, i) == SQLITE_INTEGER) {
                sum += sqlite3_column_int64(select, i);
            } else {
                const QString text(reinterpret_cast<const QChar*>(sqlite3_column_text16(select, i)),
                                   sqlite3_column_bytes16(select, i) / 2);
                sum += text.size();
            }
        }
    }
    sqlite3_finalize(select);
    return sum;
}

void BenchStore(const QString& floorFile)
{
    auto station = std::make_unique<Station>();
    OpenDatabases(*station);
    FillRecorders(station->recorders);
    const auto save = [&] {
        for (int slot = 0; slot < kMaxSVR; ++slot)
            SaveMySVR(station->databases, station->recorders, slot);
    };
    save();
    CopyDatabase(StationPath(kDatabaseFile), floorFile);
    sqlite3* raw = OpenRaw(floorFile);
    const std::vector<RawRow> rows = ReadRaw(raw);
    if (rows.size() != 1024)
        std::abort();
    bench::Compare("save 16 recorders, against row by row", 0.8, save, [&] { SaveRaw(raw, rows, Step::Row); });
    bench::Compare("save 16 recorders, against one step", 2.5, save, [&] { SaveRaw(raw, rows, Step::Whole); });

    auto back = std::make_unique<RecorderSet>();
    qint64 sum = 0;
    bench::Compare(
        "load 16 recorders, 1,024 rows", 1.7, [&] { GetSVREx(station->databases, *back); },
        [&] { sum += ReadAllColumns(raw); });
    bench::Require(back->SVRList[15].channels[63].sSub_CH_Name == u"Camera 64"_s && sum > 0,
                   "the rows were not loaded");
    sqlite3_close(raw);
}

// One start in a process of its own: "desk" up to the painted, usable main window, "empty" an empty Qt window.
int StartOnce(QApplication& application, const QString& what)
{
    if (what == "empty"_L1) {
        QWidget window;
        window.resize(1280, 800);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            return 1;
        window.grab();
        return 0;
    }
    ApplyTheme(application, InitialScheme());
    auto station = std::make_unique<Station>();
    Form_Initial window(*station);
    if (!window.Form_Load())
        return 1;
    window.resize(1280, 800);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    window.grab();
    return station->recorders.SVRList[15].channels[63].sSub_CH_Name == u"Camera 64"_s ? 0 : 1;
}

void BenchStart()
{
    const auto run = [](const QString& what) {
        QProcess child;
        child.setStandardErrorFile(QProcess::nullDevice());
        child.start(QCoreApplication::applicationFilePath(), {what, AppPath()});
        bench::Require(child.waitForFinished() && child.exitCode() == 0, "a window did not come up");
    };
    bench::Compare(
        "start to usable window, full station", 4, [&] { run(u"desk"_s); }, [&] { run(u"empty"_s); }, 20);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 3) {
        SetAppPath(QString::fromLocal8Bit(argv[2]));
        return StartOnce(application, QString::fromLocal8Bit(argv[1]));
    }
    QTemporaryDir folder;
    SetAppPath(folder.path());
    CreateTemplate(StationPath(kTemplateFile));
    BenchStore(folder.filePath(u"floor.mdb"_s));
    BenchStart();
    return 0;
}
