#pragma once

#include "screens/ScreenSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

// Table Pattern: the arrangements of channels that a user has named.

// Fills the stored list with the user's patterns in the order of their numbers. Entries that name no channel read as
// empty panes. False when the table cannot be read to its end: the list is empty then.
bool GetMyPattern(Databases& databases, ScreenSet& set, const QString& user);
// Replaces the user's rows by those of the stored list that have a name. False when that fails: the old rows stand.
bool SaveMyPattern(Databases& databases, const ScreenSet& set, const QString& user);
// `countsAtExit` is asked at the close.
RecordFamily PatternFamily(Databases& databases, ScreenSet& set, std::function<bool()> countsAtExit);

// Drops the patterns without a name from a list and numbers the rest from 1; all are marked. Numbers that are kept
// elsewhere must be translated, see PatternNumbers. Without any left there is one element without a name, so that a
// save writes none.
void RedimPattern(std::vector<PatternRow>& patterns);

// Patterns of a list by name and by number, null when there is none. An empty name is none.
const PatternRow* PatternNamed(const std::vector<PatternRow>& patterns, const QString& name);
const PatternRow* PatternOfNumber(const std::vector<PatternRow>& patterns, int id);
// Number of patterns that have a name.
int PatternCount(const std::vector<PatternRow>& patterns);
// Whether a pattern may be called that: the name is not blank, and none but the one at `own` (from 0) has it already;
// capitals do not tell names apart.
bool IsFreePatternName(const std::vector<PatternRow>& patterns, const QString& name, qsizetype own = -1);

// Translates lists of pattern numbers after a list of patterns has become another one: a number stands for the name it
// had, and a pattern without that name is gone.
class PatternNumbers
{
public:
    PatternNumbers(const std::vector<PatternRow>& before, const std::vector<PatternRow>& after);
    // True when the list changed.
    bool translate(QString& list) const;
    bool hasName(const QString& name) const { return m_after.contains(name); }

private:
    QHash<int, QString> m_before;
    QHash<QString, int> m_after;
};
