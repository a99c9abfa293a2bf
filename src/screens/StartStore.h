#pragma once

#include "screens/ScreenSet.h"
#include "store/Databases.h"
#include "store/RecordFamily.h"

#include <array>

// Table DefaultStart: how the station starts for a user; and the tables of the sequences on full-screen surfaces.

// A row of the defaults for that many monitors.
DefaultStartRow FirstStart(const QString& user, int monitors);
// The row with its list as the table holds it.
DefaultStartTableRow TableRowOf(const DefaultStartRow& start);

// Fills the stored copy for `iMonitorCount` monitors and adds the user's row where there is none. After a layout that
// had to be repaired nothing but the live viewer starts, and the record is marked. False when the table cannot be read:
// the copy holds the defaults then.
bool GetDefaultStart(Databases& databases, ScreenSet& set, const QString& user);
// Writes the stored copy into the user's row. False when that fails.
bool SaveDefaultStart(Databases& databases, const ScreenSet& set, const QString& user);
// Values that no start has go back to their defaults; something starts at all.
void CheckDefaultStartValue(DefaultStartRow& start);

RecordFamily DefaultStartFamily(Databases& databases, ScreenSet& set);

// A table of sequences, by the mode that shows it.
struct SequenceTable
{
    FullScreenMode mode;
    QLatin1String name;
    QLatin1String listName; // its column
    QString FullscreenSEQRow::*list;
};
inline constexpr std::array kSequenceTables{SequenceTable{SequenceByChannel, QLatin1String("FullscreenSEQByChannel"),
                                                          QLatin1String("ChannelList"), &FullscreenSEQRow::ChannelList},
                                            SequenceTable{SequenceByNVR, QLatin1String("FullscreenSEQByNVR"),
                                                          QLatin1String("NVRList"), &FullscreenSEQRow::NVRList},
                                            SequenceTable{SequenceByPattern, QLatin1String("FullscreenSEQPattern"),
                                                          QLatin1String("PatternList"),
                                                          &FullscreenSEQRow::PatternList}};
// Throws ConversionError for a mode without a table.
const SequenceTable& SequenceTableOf(int mode);

// The sequence of a user's surface (from 0) for a mode that has one. Without a row `row` holds the defaults, its ID -1
// telling that. False when the table cannot be read.
bool GetMyFullscreenSEQ(Databases& databases, int mode, const QString& user, int surface, FullscreenSEQRow& row);
// Writes the row of its user and surface at once: sequences have no edit copy. False when that fails.
bool SaveFullscreenSEQ(Databases& databases, int mode, const FullscreenSEQRow& row);

// Whether a sequence has something to show: two entries in its list, or all there is.
bool HasContent(const QString& list, bool displayAll);
// The same for the row in the table.
bool CheckFSSEQContent(Databases& databases, int mode, const QString& user, int surface);
