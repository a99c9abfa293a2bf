#include "store/BasicDefault.h"

#include "platform/AppPath.h"
#include "platform/Autostart.h"
#include "platform/Clock.h"
#include "platform/clsOSInfo.h"
#include "store/Family.h"
#include "store/tables/Tables.h"
#include "support/ServiceTexts.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSaveSource("Module_DB_Access - SaveMyDefault");

// The wall's style is honoured only on layouts whose fourth version part begins with a number of 22 or more.
bool ReadsVideoWallStyle(const QString& version)
{
    const QString fourth = version.section(u'.', 3, 3).left(2);
    bool ok = false;
    const int number = fourth.toInt(&ok);
    return ok && number >= 22;
}

} // namespace

qint16 GetBasicDefault(Databases& databases, BasicDefaultSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetBasicDefault");
    BasicDefaultRecord& record = set.stored;
    const qint16 read =
        ReadRows(databases, u"BasicDefault"_s, u"Select * From BasicDefault"_s, source, [&](Recordset& rows) {
            // An older layout lacks columns, and one without a row has no version: both are converted.
            if (!rows.eof())
                TableAccess<BasicDefaultRecord>(rows, BasicDefaultColumns, source).read(record);
            if (record.sSystemName.isEmpty())
                record.sSystemName = CMS_Core;
            if (ReadsVideoWallStyle(record.sDBVer))
                Trapped(source, [&] { record.iVideoWallStyle = Int16Field(rows.value(u"iVideoWallStyle"_s)); });
        });
    record.bChanged = false;
    return read;
}

qint16 SaveMyDefault(Databases& databases, BasicDefaultSet& set)
{
    if (OpenRecset(databases, u"BasicDefault"_s) == 0)
        return 0;
    const bool saved = Trapped(kSaveSource, [&] {
        Recordset& rows = *databases.DBRec;
        const qint64 count = rows.recordCount();
        for (qint64 i = 0; i < count; ++i) {
            rows.moveFirst();
            rows.move(i);
            if (TextField(rows.value(u"sBrand"_s)) != set.stored.sBrand)
                continue;
            TableAccess<BasicDefaultRecord>(rows, BasicDefaultColumns, kSaveSource).write(set.stored);
            break;
        }
        rows.update();
    });
    Trapped(kSaveSource, [&] { databases.DBRec->close(); });
    return saved ? 1 : 0;
}

void WMIGet(BasicDefaultSet& set)
{
    Trapped("Module_PublicFunction - WMIGet", [&] {
        const clsOSInfo info;
        set.edit.iMonitorCount = info.GetScreenCount();
        set.edit.sSystemIP = LocalIPAddress();
        set.stored.iMonitorCount = set.edit.iMonitorCount;
        set.stored.sSystemIP = set.edit.sSystemIP;
    });
}

void StartUp_Reg(const BasicDefaultRecord& record)
{
    constexpr QLatin1String source("Module_PublicFunction - StartUp_Reg");
    const QString name = CMS_Core;
    Trapped(source, [&] {
        if (record.bStartup) {
            if (!SetAutostart(AutostartScope::User, name, ProgramPath(name)))
                throw StoreError(GetRegistryErrorText(12));
        } else if (!DeleteAutostart(AutostartScope::User, name)) {
            throw StoreError(GetRegistryErrorText(14));
        }
    });
    Trapped(source, [&] {
        if (!DeleteAutostart(AutostartScope::Machine, name))
            throw StoreError(GetRegistryErrorText(14));
    });
}

QString DetailExport()
{
    const QString file = StationPath(u"\\DetailExport-") + Now().toString(u"yyyyMMdd") + u".txt"_s;
    Trapped("Form_Initial - DetailExport", [&] {
        const clsOSInfo info;
        const QStringList lines{u"OS           : "_s + info.OSName(), u"PCName       : "_s + info.ComputerName(),
                                u"HDDSize      : "_s + QString::number(info.DiskSizeGB()) + u" GB"_s,
                                u"MonitorCount : "_s + QString::number(info.GetScreenCount())};
        QFile target(file);
        if (!target.open(QIODevice::WriteOnly))
            throw StoreError(u"Cannot write '%1': %2"_s.arg(file, target.errorString()));
        OwnerOnly(file);
        for (const QString& line : lines) {
            if (target.write(QuotedValue(line).toUtf8() + "\r\n") < 0)
                throw StoreError(u"Cannot write '%1': %2"_s.arg(file, target.errorString()));
        }
        if (!target.flush())
            throw StoreError(u"Cannot write '%1': %2"_s.arg(file, target.errorString()));
    });
    return file;
}

RecordFamily BasicDefaultFamily(Databases& databases, BasicDefaultSet& set)
{
    const auto row = [](const BasicDefaultRecord& record) {
        return std::vector<FamilyRow<BasicDefaultRecord>>{{record.sBrand, record.sSystemName, record}};
    };
    RecordFamily family = MakeFamily(
        databases, {FamilyOrder::BasicDefault, 0, 890, {u"BasicDefault"_s}, kSaveSource},
        Generations<BasicDefaultRecord>{set.stored, set.edit},
        [&databases, &set] { return SaveMyDefault(databases, set); },
        [&set, row](auto& list) { Compare(list, row(set.stored), row(set.edit), BasicDefaultColumns); });
    family.save = [&set, save = std::move(family.save)] {
        if (!save())
            return false;
        StartUp_Reg(set.stored);
        return true;
    };
    return family;
}
