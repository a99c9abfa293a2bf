#pragma once

#include "look/tables/StatusRoles.h"
#include "support/Conversions.h"

#include <QAbstractTableModel>
#include <functional>
#include <optional>
#include <vector>

// One column of a list: how it stands in the table and what it says of a record. A record is a number: a slot, a
// channel or a place in an array, whatever the list counts.
struct TableColumn
{
    enum class Kind
    {
        Text,
        Figures, // addresses and times, in the figures face
        Number,  // at the right edge
        State,   // a dot before the words, see `status`
        Check,
        Open,  // an icon; a click opens the record
        Remove // an icon; a click removes the record
    };
    using Value = std::function<QVariant(int record)>;
    using Words = std::function<QString(int record)>;

    int head = 0;                        // message number; 0 for none or `headText`
    std::function<QString()> headText{}; // a head that is no message
    int width = 0;                       // px at first; 0 takes the room that the others leave
    Kind kind = Kind::Text;
    Value text{};  // what is shown, filtered and sorted by
    Value sort{};  // what rows are sorted by, where it is not the text
    Words words{}; // tool tip and words for assistive technology, where the text does not say all
    Words icon{};  // name of an icon, empty for none; Open and Remove have theirs
    std::function<Status(int record)> status{};
    std::function<int(int record)> progress{}; // percent, negative for none
    // The state of a check, nothing where the record has none; and what a click asks for, false when it is refused.
    std::function<std::optional<bool>(int record)> checked{};
    std::function<bool(int record, bool on)> check{};
};

// What a member, or a function, of the records in an array says.
template <class Records, class What>
TableColumn::Value Of(const Records& records, What what)
{
    return [&records, what](int record) { return QVariant(std::invoke(what, At(records, record))); };
}

// A list: columns that describe themselves, and the records that stand in its rows. A DeskTable shows it.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int kRecordRole = Qt::UserRole;   // the record of the row
    static constexpr int kSortRole = Qt::UserRole + 1; // what the column is sorted by
    static constexpr int kIconRole = Qt::UserRole + 2; // name of the cell's icon; empty for none

    using QAbstractTableModel::QAbstractTableModel;
    const std::vector<TableColumn>& columns() const { return m_columns; }
    int rowOf(int record) const; // -1: in no row
    void retranslate();          // after the language has changed

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override; // Qt::CheckStateRole
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    void setColumns(std::vector<TableColumn> columns); // once, in the constructor
    void setRecords(std::vector<int> records);         // all rows anew
    void setRecordCount(int count);                    // the same, for the records 0 to count - 1
    void addRecord(int record);                        // one more row, at the end
    void recordChanged(int record);                    // nothing for one in no row
    void rowsChanged(int first, int last);
    void allChanged() { rowsChanged(0, rowCount() - 1); }
    // A row that is not enabled is shown greyed and cannot be selected.
    virtual bool enabled(int) const { return true; }

private:
    QVariant words(const TableColumn& column, int record) const;
    QString iconName(const TableColumn& column, int record) const;

    std::vector<TableColumn> m_columns;
    std::vector<int> m_records; // by row
};
