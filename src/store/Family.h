#pragma once

#include "store/RecordFamily.h"
#include "store/TableRows.h"

#include <QHash>
#include <algorithm>
#include <utility>

// What a family states: its facts, its generations, how it is written and its rows. MakeFamily makes the rest of it.
struct FamilyFacts
{
    FamilyOrder order;
    int page;             // 0 to 10
    int caption;          // number of the message that names its records
    QStringList tables;   // that it is read from and written to
    QLatin1String source; // of its save's log lines
};

// Calls `work` with each modification flag of a record, or of what it is made of (a range, channels).
template <class Record, class Work>
void ForEachMark(Record& record, Work&& work)
{
    if constexpr (requires { record.bChanged; }) {
        work(record.bChanged);
    } else if constexpr (requires { record.channels; }) {
        for (auto& channel : record.channels)
            ForEachMark(channel, work);
    } else {
        for (auto& element : record)
            ForEachMark(element, work);
    }
}

// The two copies of a family, one record or a range of them; flags are members bChanged.
template <class Records>
struct Generations
{
    Records& stored;
    Records& edit;

    bool isMarked() const
    {
        bool marked = false;
        ForEachMark(edit, [&](bool flag) { marked = marked || flag; });
        return marked;
    }
    // Edit to stored, whose flags are cleared; the edit copy keeps its own. Gives what was stored before.
    Records commit() const
    {
        Records before = std::exchange(stored, edit);
        ForEachMark(stored, [](bool& flag) { flag = false; });
        return before;
    }
    void putBack(Records&& before) const { stored = std::move(before); }
    void clearMarks() const
    {
        ForEachMark(edit, [](bool& flag) { flag = false; });
    }
    void revert() const { edit = stored; }
};

// A family over `generations` (see Generations). `write` writes the stored copy, which is the edit one by then: 1 or 0;
// the edit copy still carries its flags. `compare` gives the differences with a list to append to, see Compare.
template <class Copies, class Write, class Differ>
RecordFamily MakeFamily(Databases& databases, const FamilyFacts& facts, Copies generations, Write write, Differ compare)
{
    const auto wasRead = [&databases, tables = facts.tables] {
        return std::none_of(tables.begin(), tables.end(),
                            [&](const QString& table) { return databases.unread.contains(table); });
    };
    RecordFamily family{facts.order, facts.page, wasRead, {}, {}, {}, {}, {}};
    family.isMarked = [generations] { return generations.isMarked(); };
    family.differences = [order = facts.order, caption = facts.caption, compare] {
        std::vector<Difference> list;
        compare(list);
        for (Difference& difference : list) {
            difference.family = order;
            difference.caption = difference.caption ? difference.caption : caption;
        }
        return list;
    };
    family.commit = [generations] {
        generations.commit();
        generations.clearMarks();
    };
    family.save = [&databases, source = facts.source, wasRead, generations, write] {
        if (!wasRead()) {
            LogTrap(source, QStringLiteral("What could not be read is not written over"));
            return false;
        }
        auto before = generations.commit();
        if (AsOneStep(databases, source, write) == 0) {
            generations.putBack(std::move(before));
            return false;
        }
        generations.clearMarks();
        return true;
    };
    family.revert = [generations] { generations.revert(); };
    return family;
}

// A row of a family as its columns see it.
template <class Row>
struct FamilyRow
{
    QString key;  // tells rows of one copy apart; the same in both copies
    QString name; // what the operator calls the record
    Row row;
    bool first = true; // the first row of its record: fields of the whole record are looked at in this one only
};

// The records of a range as rows, keyed by their place (from 1).
template <class Records, class Name>
auto RowsByPlace(const Records& records, Name&& name)
{
    std::vector<FamilyRow<typename Records::value_type>> rows;
    for (const auto& record : records)
        rows.push_back({QString::number(rows.size() + 1), name(record), record});
    return rows;
}

// Appends the fields in which the rows of two copies differ, in the order of rows and columns; a row that one copy
// lacks is compared with a fresh one.
template <class Row, std::size_t N>
void Compare(std::vector<Difference>& list, const std::vector<FamilyRow<Row>>& before,
             const std::vector<FamilyRow<Row>>& after, const std::array<Column<Row>, N>& columns)
{
    const auto differ = [&](const Row& old, const Row& fresh, const FamilyRow<Row>& named) {
        for (const Column<Row>& column : columns) {
            if (!column.put || column.info.use == FieldUse::ReadOnly || (column.info.shared && !named.first))
                continue;
            QVariant was = column.write(old);
            QVariant is = column.write(fresh);
            if (was != is)
                list.push_back({{},
                                named.name.isEmpty() ? named.key : named.name,
                                QLatin1String(column.info.name),
                                std::move(was),
                                std::move(is),
                                column.info.caption});
        }
    };
    QHash<QString, const FamilyRow<Row>*> gone;
    for (const FamilyRow<Row>& row : before)
        gone.insert(row.key, &row);
    const Row none{};
    for (const FamilyRow<Row>& row : after) {
        const FamilyRow<Row>* old = gone.take(row.key);
        differ(old ? old->row : none, row.row, row);
    }
    for (const FamilyRow<Row>& row : before) {
        if (gone.contains(row.key))
            differ(row.row, none, row);
    }
}
