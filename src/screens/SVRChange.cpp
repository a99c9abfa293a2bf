#include "screens/SVRChange.h"

#include "app/log/Module_Log.h"
#include "screens/StartStore.h"
#include "store/TableRows.h"
#include "support/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String kSource("Form_Initial - CheckDefaultStartAfterSVRChange");
constexpr qint16 kSequenceAll = 0; // iSEQMode: every channel in turn; 1: by recorder; 2: by pattern
constexpr qint16 kSequenceNVR = 1;
constexpr qint16 kSequencePattern = 2;
constexpr qint16 kFixedDisplay = 0; // iDS_DisplayMode; 1: a sequence

// What a repair goes by.
struct Facts
{
    const LiveChannels* live; // null: the recorders are as they were
    const PatternNumbers& numbers;
    const QString& user;
};

// Surfaces (user, number from 0) whose sequence has something to show. Where the table could not be read each may have.
struct Content
{
    bool known = false;
    QSet<std::pair<QString, int>> surfaces;
    bool has(const QString& user, int surface) const { return !known || surfaces.contains({user, surface}); }
};

// Calls `work` with each row of a table. A table that fails costs one log line; a file that fails ends the repair.
template <class Work>
bool ForEachRow(Databases& databases, const QString& statement, const QVariantList& values, Work&& work)
{
    bool done = false;
    SaveRow(kSource, [&] {
        OpenStatement(databases, statement, LockType::Optimistic, values);
        Recordset& rows = *databases.DBRec;
        for (; !rows.eof(); rows.moveNext())
            SaveRow(kSource, [&] { work(rows); });
        rows.close();
        done = true;
    });
    return done;
}
template <class Work>
bool ForEachRow(Databases& databases, QLatin1String table, Work&& work)
{
    return ForEachRow(databases, u"Select * From "_s + table, {}, std::forward<Work>(work));
}

// Repairs the lists of one kind of sequence in their table.
Content RepairSequences(Databases& databases, const SequenceTable& table, const Facts& facts)
{
    Content content;
    content.known = ForEachRow(databases, table.name, [&](Recordset& rows) {
        const QString owner = TextField(rows.value(u"UserName"_s));
        QString list = TextField(rows.value(QString(table.listName)));
        bool changed = false;
        if (table.mode == SequenceByPattern)
            changed = owner == facts.user && facts.numbers.translate(list);
        else if (facts.live)
            changed = KeepEntries(list, table.mode == SequenceByChannel ? LiveChannelEntries(*facts.live)
                                                                        : LiveRecorderEntries(*facts.live));
        if (HasContent(list, BoolField(rows.value(u"DisplayAll"_s))))
            content.surfaces.insert({owner, Int16Field(rows.value(u"FullscreenID"_s))});
        if (changed) {
            rows.setValue(QString(table.listName), list);
            rows.update();
        }
    });
    return content;
}

// A sequence that has become none falls back. True when it does.
bool FallBack(qint16& mode, qint16 sequence, const QString& list, qint16 instead)
{
    if (mode != sequence || IsSequence(list))
        return false;
    mode = instead;
    return true;
}

bool FallBack(std::vector<qint16>& modes, FullScreenMode sequence, const QString& user, const Content& content)
{
    bool changed = false;
    for (std::size_t surface = 0; surface < modes.size(); ++surface) {
        if (modes[surface] == sequence && !content.has(user, static_cast<int>(surface))) {
            modes[surface] = KeepExitLayout;
            changed = true;
        }
    }
    return changed;
}

template <class Row>
bool RepairWall(Row& wall, QString& panes, bool own, const Facts& facts)
{
    bool changed = facts.live && DropGonePanes(panes, *facts.live);
    if (!own)
        return changed;
    changed = facts.numbers.translate(wall.sSEQPatternList) || changed;
    if (!wall.sDS_Pattern.isEmpty() && !facts.numbers.hasName(wall.sDS_Pattern)) {
        wall.sDS_Pattern.clear();
        changed = true;
    }
    return FallBack(wall.iDS_DisplayMode, 1, wall.sSEQPatternList, kFixedDisplay) || changed;
}

void RepairWalls(ScreenSet& set, const Facts& facts)
{
    for (VideoWallRow& wall : set.wallsEdit) {
        QString panes = ToList(wall.aChannel);
        if (!RepairWall(wall, panes, true, facts))
            continue;
        if (!panes.isEmpty())
            wall.aChannel = PanesOf(panes, static_cast<qsizetype>(wall.aChannel.size()));
        wall.bChanged = true;
    }
}

// Rows of walls that have no edit copy: of other users, and of walls that the station has no monitor for now.
void RepairWallRows(Databases& databases, const ScreenSet& set, const Facts& facts)
{
    const auto edited = static_cast<qsizetype>(set.wallsEdit.size());
    ForEachRow(databases, "VideoWall"_L1, [&](Recordset& rows) {
        const bool own = TextField(rows.value(u"sLoginUser"_s)) == facts.user;
        const qint16 number = Int16Field(rows.value(u"VideoWallIndex"_s));
        if (own && number >= 1 && number <= edited)
            return;
        VideoWallTableRow wall;
        wall.sSEQPatternList = TextField(rows.value(u"sSEQPatternList"_s));
        wall.sDS_Pattern = TextField(rows.value(u"sDS_Pattern"_s));
        wall.iDS_DisplayMode = Int16Field(rows.value(u"iDS_DisplayMode"_s));
        wall.Channel = TextField(rows.value(u"Channel"_s));
        if (!RepairWall(wall, wall.Channel, own, facts))
            return;
        rows.setValue(u"sSEQPatternList"_s, wall.sSEQPatternList);
        rows.setValue(u"sDS_Pattern"_s, wall.sDS_Pattern);
        rows.setValue(u"iDS_DisplayMode"_s, wall.iDS_DisplayMode);
        rows.setValue(u"Channel"_s, wall.Channel);
        rows.update();
    });
}

// One of the three sets of lists that a start has: 0 channels, 1 patterns, 2 recorders.
Content CheckDefaultStartAfterSVRChange(Databases& databases, ScreenSet& set, int which, const Facts& facts)
{
    DefaultStartRow& start = set.startEdit;
    bool changed = false;
    FullScreenMode mode = SequenceByChannel;
    if (which == 0 && facts.live) {
        changed = DropGonePanes(start.MVChannel, *facts.live);
    } else if (which == 1) {
        mode = SequenceByPattern;
        if (!start.sStartPatternName.isEmpty() && !facts.numbers.hasName(start.sStartPatternName)) {
            start.sStartPatternName.clear();
            changed = true;
        }
        changed = facts.numbers.translate(start.sSEQPatternList) || changed;
        changed = FallBack(start.iSEQMode, kSequencePattern, start.sSEQPatternList, kSequenceAll) || changed;
    } else if (which == 2 && facts.live) {
        mode = SequenceByNVR;
        changed = KeepEntries(start.sSEQSVRList, LiveRecorderEntries(*facts.live));
        changed = FallBack(start.iSEQMode, kSequenceNVR, start.sSEQSVRList, kSequenceAll) || changed;
    }
    Content content = RepairSequences(databases, SequenceTableOf(mode), facts);
    changed = FallBack(start.aFullScreenMode, mode, facts.user, content) || changed;
    start.bChanged = start.bChanged || changed;
    return content;
}

// "mark:mode" of each surface: modes of sequences that have become none fall back. True when any does.
bool FallBackInText(QString& surfaces, const QString& owner, const Content& byChannel, const Content& byNVR)
{
    QStringList entries = surfaces.split(u',');
    bool changed = false;
    for (int surface = 0; surface < entries.size(); ++surface) {
        const qsizetype colon = entries[surface].indexOf(u':');
        const std::optional<qint16> mode =
            colon < 0 ? std::nullopt : NumberOf(QStringView(entries[surface]).mid(colon + 1));
        const bool empty = (mode == SequenceByChannel && !byChannel.has(owner, surface)) ||
                           (mode == SequenceByNVR && !byNVR.has(owner, surface));
        if (empty) {
            entries[surface] = entries[surface].left(colon) + u":0"_s;
            changed = true;
        }
    }
    if (changed)
        surfaces = entries.join(u',');
    return changed;
}

void RepairStartsOfOthers(Databases& databases, const Facts& facts, const Content& byChannel, const Content& byNVR)
{
    ForEachRow(databases, "DefaultStart"_L1, [&](Recordset& rows) {
        const QString owner = TextField(rows.value(u"sOwner"_s));
        if (owner == facts.user)
            return;
        QString panes = TextField(rows.value(u"MVChannel"_s));
        QString recorders = TextField(rows.value(u"sSEQSVRList"_s));
        QString surfaces = TextField(rows.value(u"sForm_FullScreen"_s));
        qint16 mode = Int16Field(rows.value(u"iSEQMode"_s));
        if (DropGonePanes(panes, *facts.live))
            rows.setValue(u"MVChannel"_s, panes);
        if (KeepEntries(recorders, LiveRecorderEntries(*facts.live)))
            rows.setValue(u"sSEQSVRList"_s, recorders);
        if (FallBack(mode, kSequenceNVR, recorders, kSequenceAll))
            rows.setValue(u"iSEQMode"_s, mode);
        if (FallBackInText(surfaces, owner, byChannel, byNVR))
            rows.setValue(u"sForm_FullScreen"_s, surfaces);
        rows.update();
    });
}

void RepairPatternsOfOthers(Databases& databases, const Facts& facts)
{
    ForEachRow(databases, u"Select * From Pattern Where sOwner<>?"_s, {facts.user}, [&](Recordset& rows) {
        const int panes = rows.fieldIndex(u"sCHSequence"_s);
        QString list = TextField(rows.value(panes));
        if (DropGonePanes(list, *facts.live)) {
            rows.setValue(panes, list);
            rows.update();
        }
    });
}

} // namespace

bool CheckPatternAfterSVRChange(std::vector<PatternRow>& patterns, const LiveChannels& live)
{
    bool changed = false;
    for (PatternRow& pattern : patterns) {
        changed = DropGonePanes(pattern.sCHSequence, live) || changed;
        if (!ShowsNothing(pattern.sCHSequence))
            continue;
        pattern.iSplit = kUsualSplit;
        pattern.sCHSequence.clear();
        pattern.sOwner.clear();
        pattern.sName.clear();
        pattern.bChanged = changed = true;
    }
    if (changed)
        RedimPattern(patterns);
    return changed;
}

void RepairAfterSVRChange(Databases& databases, ScreenSet& set, const RecorderSet& recorders, const QString& user)
{
    const LiveChannels live(recorders);
    const QString owner = user.isNull() ? u""_s : user;
    const std::vector<PatternRow> before = set.patternsEdit;
    Trapped("Form_Initial - CheckPatternAfterSVRChange", [&] { CheckPatternAfterSVRChange(set.patternsEdit, live); });
    const PatternNumbers numbers(before, set.patternsEdit);
    const Facts facts{&live, numbers, owner};
    AsOneStep(databases, kSource, [&]() -> qint16 {
        const Content byChannel = CheckDefaultStartAfterSVRChange(databases, set, 0, facts);
        CheckDefaultStartAfterSVRChange(databases, set, 1, facts);
        const Content byNVR = CheckDefaultStartAfterSVRChange(databases, set, 2, facts);
        RepairWalls(set, facts);
        RepairWallRows(databases, set, facts);
        RepairStartsOfOthers(databases, facts, byChannel, byNVR);
        RepairPatternsOfOthers(databases, facts);
        return 1;
    });
    set.repairedFor = live.channels;
}

void RepairAfterChannelGone(Databases& databases, ScreenSet& set, const RecorderSet& recorders, const QString& user)
{
    if ((set.repairedFor & ~LiveChannels(recorders).channels).any())
        RepairAfterSVRChange(databases, set, recorders, user);
}

void RepairPatternNumbers(Databases& databases, ScreenSet& set, const std::vector<PatternRow>& before,
                          const QString& user)
{
    const QString owner = user.isNull() ? u""_s : user;
    const PatternNumbers numbers(before, set.patternsEdit);
    const Facts facts{nullptr, numbers, owner};
    AsOneStep(databases, kSource, [&]() -> qint16 {
        CheckDefaultStartAfterSVRChange(databases, set, 1, facts);
        RepairWalls(set, facts);
        RepairWallRows(databases, set, facts);
        return 1;
    });
}
