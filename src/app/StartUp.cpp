#include "app/StartUp.h"

#include "app/language/Languages.h"
#include "app/log/Module_Log.h"
#include "app/shell/Messages.h"
#include "emap/EMapStore.h"
#include "platform/AppPath.h"
#include "platform/DatabaseFile.h"
#include "platform/MsgBox.h"
#include "platform/clsOSInfo.h"
#include "recorders/data/SVRStore.h"
#include "screens/LayoutStore.h"
#include "screens/PatternStore.h"
#include "screens/ScreenLists.h"
#include "screens/StartStore.h"
#include "screens/WallStore.h"
#include "store/DatabaseRepair.h"
#include "store/Template.h"
#include "support/Conversions.h"
#include "users/AccountStore.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kLoadSource("Form_Initial - Form_Load");

bool Exists(QStringView literal)
{
    return QFileInfo::exists(StationPath(literal));
}

// What an older version or a copy by hand left readable for others. Files that cannot be changed stay as they are.
void TightenRights()
{
    for (const auto* literal : {u"\\Database", u"\\log", u"\\log\\Listen"}) {
        const QString folder = StationPath(literal);
        if (!QFileInfo::exists(folder))
            continue;
        OwnerOnly(folder);
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
        for (const QFileInfo& file : files)
            OwnerOnly(file.filePath());
    }
    const QFileInfoList exports =
        QDir(AppPath()).entryInfoList({u"DetailExport-*"_s, u"Systemlog_Export_*"_s}, QDir::Files);
    for (const QFileInfo& file : exports)
        OwnerOnly(file.filePath());
}

} // namespace

void OpenDatabases(Station& station)
{
    Trapped(kLoadSource, [] { TightenRights(); });
    while (InitialDB(station.databases) == 0) {
        if (RepairDatabase() != RepairResult::Untouched) {
            InitialDB(station.databases);
            return;
        }
        NormaliseLanguage(station);
        SettleLanguage(station);
        if (MsgBox(GetLangString(981), AskBoxStyle(), GetLangString(Message::kInformation)) != MsgResult::Yes)
            return;
    }
}

void ReadDefaults(Station& station, UpdateWatcher& watcher)
{
    qint16 known = 0;
    Trapped(kLoadSource, [&] { known = GetBasicDefault(station.databases, station.basicDefault); });
    WMIGet(station.basicDefault);
    NormaliseLanguage(station);
    const QString version = station.basicDefault.stored.sDBVer;
    // A database that cannot be read (locked, damaged) has no version to go by and is left alone.
    if (known == 1 && version != kDatabaseVersion) {
        SettleLanguage(station); // the progress window speaks it
        UpdateDatabase(station.databases, station.basicDefault, QString(kDatabaseVersion) > version, watcher);
    }
    NormaliseLanguage(station);
    SettleLanguage(station);
}

void NormaliseLanguage(Station& station)
{
    qint16& language = station.basicDefault.stored.iLanguage;
    if (language == 99 || language == 0)
        language = static_cast<qint16>(GetOsLang());
}

void SettleLanguage(Station& station)
{
    SetLanguage(station.basicDefault.stored.iLanguage);
    SetBoxStyles(Language() == kRightToLeftLanguage);
}

void LoadRecords(Station& station)
{
    GetSVREx(station.databases, station.recorders);
    GetUser(station.databases, station.users);
    GetEMapGroup(station.databases, station.emap);
    GetEMapIconEx(station.databases, station.emap);
    GetListenServer(station.databases, station.eventServers);
    station.screens.iMonitorCount = clsOSInfo().GetScreenCount();
    GetScreenLayout(station.databases, station.screens);
    GetEventInfo(station.databases, station.channelEvents, station.recorders);
    GetEventHandling(station.databases, station.eventHandling);
    GetMyAccount(station.databases, station.accounts);
    GetGroupPrivilege(station.databases, station.groups);
    GetNVRPrivilege(station.databases, station.groups);
}

void LoadUserRecords(Station& station)
{
    ScreenSet& screens = station.screens;
    GetMyPattern(station.databases, screens, CurrentUser());
    screens.patternsEdit = screens.patternsStored;
    GetDefaultStart(station.databases, screens, CurrentUser());
    screens.startEdit = screens.startStored;
    GetVideoWall(station.databases, screens, CurrentUser());
    screens.wallsEdit = screens.wallsStored;
    screens.repairedFor = LiveChannels(station.recorders).channels;
}

bool CheckRecords(Station& station)
{
    if (station.databases.unread.isEmpty())
        return true;
    QStringList tables(station.databases.unread.cbegin(), station.databases.unread.cend());
    tables.sort();
    MsgBox(GetLangString(983).arg(tables.join(u", "_s)), InfoBoxStyle(), GetLangString(Message::kInformation));
    return false;
}

void SettleCurrentGroup(Station& station)
{
    station.CurrentGroupIndex = 0;
    if (station.CurrentUserIndex < 65535) {
        Trapped(kLoadSource,
                [&] { station.CurrentGroupIndex = At(station.users.stored, station.CurrentUserIndex).iGroup; });
    }
}

void RotateBackups()
{
    constexpr QLatin1String source("Form_Initial - Form_QueryUnload");
    const QString backup1 = StationPath(kBackup1File);
    const QString backup2 = StationPath(kBackup2File);
    if (Exists(kBackup1File)) {
        if (Exists(kBackup2File))
            Trapped(source, [&] { DeleteDatabase(backup2); });
        Trapped(source, [&] { RenameDatabase(backup1, backup2); });
    }
    Trapped(source, [&] { CopyDatabase(StationPath(kDatabaseFile), backup1); });
}

void FinishNewRecorders(Station& station)
{
    Trapped("Form_NVRSetting - lbNext_Click", [&] {
        for (int slot = 0; slot < kMaxSVR; ++slot) {
            if (At(station.recorders.SVRList, slot).sSVR_IP != At(station.recorders.SVRWorkList, slot).sSVR_IP)
                station.events.added.send(slot);
        }
        SaveNVRPrivilege(station.databases, station.groups,
                         [&](int slot) { return !At(station.recorders.SVRWorkList, slot).sSVR_Name.isEmpty(); });
    });
    SaveCheck(station);
}
