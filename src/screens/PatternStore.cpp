#include "screens/PatternStore.h"

#include "screens/OwnedRow.h"
#include "screens/ScreenLists.h"
#include "store/Family.h"
#include "store/tables/Tables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPage = 3;      // patterns are told of as users' settings
constexpr int kCaption = 104; // "User Pattern"
constexpr QLatin1String kGetSource("Module_DB_Access - GetMyPattern");
constexpr QLatin1String kSaveSource("Module_DB_Access - SaveMyPattern");

bool IsPane(QStringView entry)
{
    const std::optional<qint16> number = NumberOf(entry);
    return number && *number >= kEmptyPane && *number < kChannelsOfStation;
}

// True when the list held what is no channel.
bool MendPanes(PatternRow& pattern)
{
    if (pattern.sCHSequence.isEmpty() ||
        (pattern.sCHSequence.count(u',') < kMostPanes && AllEntries(pattern.sCHSequence, IsPane)))
        return false;
    const qsizetype panes = std::min<qsizetype>(pattern.sCHSequence.count(u',') + 1, kMostPanes);
    pattern.sCHSequence = ToList(PanesOf(pattern.sCHSequence, panes));
    return true;
}

} // namespace

bool GetMyPattern(Databases& databases, ScreenSet& set, const QString& user)
{
    std::vector<PatternRow> patterns;
    QStringList mended;
    const auto take = [&](PatternTableRow&& row) {
        PatternRow& pattern = patterns.emplace_back(PatternRow{std::move(row)});
        if (MendPanes(pattern))
            mended << pattern.sName;
    };
    const bool read = ReadTable(databases, u"Pattern"_s, u"Select * From Pattern Where sOwner=? Order By iID"_s,
                                PatternColumns, kGetSource, take, {}, {Bound(user)}) == 1;
    if (!mended.isEmpty())
        LogTrap(kGetSource, u"Entries that name no channel were left out: "_s + mended.join(u", "_s).left(256));
    if (patterns.empty())
        patterns.emplace_back().iID = kNoPattern;
    set.patternsStored = std::move(patterns);
    return read;
}

bool SaveMyPattern(Databases& databases, const ScreenSet& set, const QString& user)
{
    const auto fill = [&](auto&& add) {
        for (const PatternRow& pattern : set.patternsStored) {
            PatternTableRow row = pattern;
            row.sOwner = user;
            if (!row.sName.isEmpty())
                add(row);
        }
    };
    return ReplaceTable(databases, u"Pattern"_s, u"Delete * From Pattern Where sOwner=?"_s, PatternColumns, kSaveSource,
                        fill, {Bound(user)}) == 1;
}

RecordFamily PatternFamily(Databases& databases, ScreenSet& set, std::function<bool()> countsAtExit)
{
    const auto rows = [](const std::vector<PatternRow>& patterns) {
        std::vector<FamilyRow<PatternTableRow>> list;
        for (const PatternRow& pattern : patterns) {
            if (!pattern.sName.isEmpty())
                list.push_back({QString::number(pattern.iID), pattern.sName, pattern});
        }
        return list;
    };
    RecordFamily family = MakeFamily(
        databases, {FamilyOrder::Pattern, kPage, kCaption, {u"Pattern"_s}, kSaveSource},
        Generations<std::vector<PatternRow>>{set.patternsStored, set.patternsEdit},
        [&databases, &set]() -> qint16 { return SaveMyPattern(databases, set, CurrentUser()); },
        [&set, rows](auto& list) { Compare(list, rows(set.patternsStored), rows(set.patternsEdit), PatternColumns); });
    family.countsAtExit = std::move(countsAtExit);
    return family;
}

void RedimPattern(std::vector<PatternRow>& patterns)
{
    std::erase_if(patterns, [](const PatternRow& pattern) { return pattern.sName.isEmpty(); });
    if (patterns.empty())
        patterns.emplace_back().iID = kNoPattern;
    else
        std::for_each(patterns.begin(), patterns.end(),
                      [id = qint16(1)](PatternRow& pattern) mutable { pattern.iID = id++; });
    for (PatternRow& pattern : patterns)
        pattern.bChanged = true;
}

const PatternRow* PatternNamed(const std::vector<PatternRow>& patterns, const QString& name)
{
    const auto found = std::find_if(patterns.begin(), patterns.end(),
                                    [&](const PatternRow& pattern) { return pattern.sName == name; });
    return name.isEmpty() || found == patterns.end() ? nullptr : &*found;
}

const PatternRow* PatternOfNumber(const std::vector<PatternRow>& patterns, int id)
{
    const auto found = std::find_if(patterns.begin(), patterns.end(), [id](const PatternRow& pattern) {
        return pattern.iID == id && !pattern.sName.isEmpty();
    });
    return found == patterns.end() ? nullptr : &*found;
}

int PatternCount(const std::vector<PatternRow>& patterns)
{
    return static_cast<int>(std::count_if(patterns.begin(), patterns.end(),
                                          [](const PatternRow& pattern) { return !pattern.sName.isEmpty(); }));
}

bool IsFreePatternName(const std::vector<PatternRow>& patterns, const QString& name, qsizetype own)
{
    const QString wanted = name.trimmed();
    for (std::size_t i = 0; i < patterns.size(); ++i) {
        if (static_cast<qsizetype>(i) != own && patterns[i].sName.trimmed().compare(wanted, Qt::CaseInsensitive) == 0)
            return false;
    }
    return !wanted.isEmpty();
}

PatternNumbers::PatternNumbers(const std::vector<PatternRow>& before, const std::vector<PatternRow>& after)
{
    for (const PatternRow& pattern : before) {
        if (!pattern.sName.isEmpty() && !m_before.contains(pattern.iID))
            m_before.insert(pattern.iID, pattern.sName);
    }
    for (const PatternRow& pattern : after) {
        if (!pattern.sName.isEmpty() && !m_after.contains(pattern.sName))
            m_after.insert(pattern.sName, pattern.iID);
    }
}

bool PatternNumbers::translate(QString& list) const
{
    return KeepEntries(list, [this](QStringView entry) -> std::optional<QString> {
        const std::optional<qint16> number = NumberOf(entry);
        const auto name = number ? m_before.constFind(*number) : m_before.constEnd();
        const auto now = name == m_before.constEnd() ? m_after.constEnd() : m_after.constFind(*name);
        return now == m_after.constEnd() ? std::nullopt : std::optional(QString::number(*now));
    });
}
