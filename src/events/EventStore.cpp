#include "events/EventStore.h"

#include "platform/AppPath.h"
#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSaveServersSource("Module_DB_Access - SaveMyListenServer");
constexpr QLatin1String kSaveHandlingSource("Module_DB_Access - SaveEventHandling");
const QString kServerTable = u"ListenServer"_s;
const QString kHandlingTable = u"EventHandling"_s;

// Writes a record to the first row of `statement`, or to a new one.
template <class Row, std::size_t N>
void WriteRow(Databases& databases, const QString& statement, const QVariantList& values,
              const std::array<Column<Row>, N>& columns, QLatin1String source, const Row& record)
{
    OpenStatement(databases, statement, LockType::Optimistic, values, CursorType::Keyset);
    Recordset& rows = *databases.DBRec;
    if (rows.eof())
        rows.addNew();
    TableAccess<Row>(rows, columns, source).write(record);
    rows.update();
}

void SetFresh(EventServerSet::Servers& servers)
{
    servers.fill(ListenServerRec());
    for (ListenServerRec& server : servers) {
        server.aID = static_cast<qint16>(&server - servers.data() + 1);
        server.sWarningPath = DefaultWarningPath();
    }
}

} // namespace

EventServerSet::EventServerSet()
{
    SetFresh(stored);
    edit = stored;
}

QString DefaultWarningPath()
{
    return StationPath(u"\\wav\\alert.wav");
}

qint16 GetListenServer(Databases& databases, EventServerSet& set)
{
    constexpr QLatin1String source("Module_DB_Access - GetListenServer");
    SetFresh(set.stored);
    std::array<bool, kEventServers> read{};
    const auto take = [&](ListenServerRec&& row) {
        bool& known = At(read, row.aID - 1);
        if (std::exchange(known, true))
            throw StoreError(u"A second row %1 is left alone"_s.arg(row.aID));
        if (row.sWarningPath.isEmpty())
            row.sWarningPath = DefaultWarningPath();
        At(set.stored, row.aID - 1) = std::move(row);
    };
    return ReadTable(databases, kServerTable, u"Select * From ListenServer ORDER BY aID ASC"_s, ListenServerColumns,
                     source, take);
}

qint16 SaveMyListenServer(Databases& databases, const EventServerSet& set)
{
    return AsOneStep(databases, kSaveServersSource, [&]() -> qint16 {
        for (int i = 0; i < kEventServers; ++i) {
            if (At(set.edit, i).bChanged)
                WriteRow(databases, u"Select * From ListenServer Where aID = ?"_s, {i + 1}, ListenServerColumns,
                         kSaveServersSource, At(set.stored, i));
        }
        return 1;
    });
}

qint16 GetEventHandling(Databases& databases, EventHandlingSet& set)
{
    set.stored = EventHandlingRecord();
    bool first = true;
    return ReadTable(databases, kHandlingTable, u"Select * From EventHandling"_s, EventHandlingColumns,
                     "Module_DB_Access - GetEventHandling"_L1, [&](EventHandlingRecord&& row) {
                         if (std::exchange(first, false))
                             set.stored = std::move(row);
                     });
}

qint16 SaveEventHandling(Databases& databases, const EventHandlingSet& set)
{
    return AsOneStep(databases, kSaveHandlingSource, [&]() -> qint16 {
        WriteRow(databases, u"Select * From EventHandling"_s, {}, EventHandlingColumns, kSaveHandlingSource,
                 set.stored);
        return 1;
    });
}

bool CheckListenSetup(const EventServerSet& set, EventAction action)
{
    static constexpr std::array names{&ListenServerRec::sMailFrom, &ListenServerRec::sFTPserverIP,
                                      &ListenServerRec::sAlertIP, &ListenServerRec::sWaringName};
    const auto name = At(names, static_cast<int>(action));
    return std::any_of(set.stored.begin(), set.stored.end(),
                       [name](const ListenServerRec& server) { return !(server.*name).isEmpty(); });
}

bool CheckMail(const QString& address)
{
    const QString text = address.trimmed();
    if (text.isEmpty() || text.contains(".."_L1))
        return false;
    const QLatin1String refused("!#$%^&*()=+{}[]|\\;:'/?>,< ");
    if (std::any_of(text.begin(), text.end(), [&](QChar c) { return refused.contains(c); }))
        return false;
    const qsizetype at = text.indexOf(u'@');
    const qsizetype dot = text.lastIndexOf(u'.');
    return at > 0 && text.indexOf(u'@', at + 1) < 0 && dot > at + 1;
}

RecordFamily EventServerFamily(Databases& databases, EventServerSet& set)
{
    const auto rows = [](const EventServerSet::Servers& servers) {
        return RowsByPlace(servers, [](const ListenServerRec&) { return QString(); });
    };
    RecordFamily family = MakeFamily(
        databases, {FamilyOrder::ListenServer, 5, 312, {kServerTable}, kSaveServersSource},
        Generations<EventServerSet::Servers>{set.stored, set.edit},
        [&databases, &set] { return SaveMyListenServer(databases, set); },
        [&set, rows](auto& list) { Compare(list, rows(set.stored), rows(set.edit), ListenServerColumns); });
    // A server that is set anew need not rest any longer.
    family.save = [&set, save = std::move(family.save)] {
        for (ListenServerRec& server : set.edit)
            server.lLastSend = server.bChanged ? 0 : server.lLastSend;
        return save();
    };
    return family;
}

RecordFamily EventHandlingFamily(Databases& databases, EventHandlingSet& set)
{
    const auto row = [](const EventHandlingRecord& record) {
        return std::vector<FamilyRow<EventHandlingRecord>>{{u"1"_s, QString(), record}};
    };
    return MakeFamily(
        databases, {FamilyOrder::EventHandling, 4, 853, {kHandlingTable}, kSaveHandlingSource},
        Generations<EventHandlingRecord>{set.stored, set.edit},
        [&databases, &set] { return SaveEventHandling(databases, set); },
        [&set, row](auto& list) { Compare(list, row(set.stored), row(set.edit), EventHandlingColumns); });
}
