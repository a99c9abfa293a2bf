#include "app/shell/TableModel.h"

#include "app/language/Languages.h"
#include "app/shell/Messages.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;
using Kind = TableColumn::Kind;

void TableModel::setColumns(std::vector<TableColumn> columns)
{
    m_columns = std::move(columns);
}

void TableModel::setRecords(std::vector<int> records)
{
    beginResetModel();
    m_records = std::move(records);
    endResetModel();
}

void TableModel::setRecordCount(int count)
{
    std::vector<int> records(static_cast<std::size_t>(std::max(0, count)));
    std::iota(records.begin(), records.end(), 0);
    setRecords(std::move(records));
}

void TableModel::addRecord(int record)
{
    beginInsertRows({}, rowCount(), rowCount());
    m_records.push_back(record);
    endInsertRows();
}

int TableModel::rowOf(int record) const
{
    const auto found = std::ranges::find(m_records, record);
    return found == m_records.end() ? -1 : static_cast<int>(found - m_records.begin());
}

void TableModel::recordChanged(int record)
{
    if (const int row = rowOf(record); row >= 0)
        rowsChanged(row, row);
}

void TableModel::rowsChanged(int first, int last)
{
    if (first <= last)
        emit dataChanged(index(first, 0), index(last, columnCount() - 1));
}

void TableModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    allChanged();
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant TableModel::words(const TableColumn& column, int record) const
{
    if (column.words)
        return column.words(record);
    switch (column.kind) {
    case Kind::Open:
        return GetLangString(Message::kEdit);
    case Kind::Remove:
        return GetLangString(Message::kDelete);
    case Kind::State: // the words, should the column be too narrow for them
        return column.text(record);
    default:
        return {};
    }
}

QString TableModel::iconName(const TableColumn& column, int record) const
{
    if (column.icon)
        return column.icon(record);
    if (column.kind == Kind::Open)
        return u"edit"_s;
    return column.kind == Kind::Remove && !words(column, record).toString().isEmpty() ? u"delete"_s : QString();
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!hasIndex(index.row(), index.column()))
        return {};
    const TableColumn& column = At(m_columns, index.column());
    const int record = At(m_records, index.row());
    switch (role) {
    case Qt::DisplayRole:
        return column.text ? column.text(record) : QVariant();
    case kSortRole:
        if (column.sort)
            return column.sort(record);
        if (column.text)
            return column.text(record);
        return column.checked && column.checked(record).value_or(false);
    case kRecordRole:
        return record;
    case kIconRole:
        return iconName(column, record);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return words(column, record);
    case Qt::CheckStateRole: {
        const std::optional<bool> on = column.checked ? column.checked(record) : std::nullopt;
        return on ? QVariant(*on ? Qt::Checked : Qt::Unchecked) : QVariant();
    }
    case kStatusRole:
        return column.status ? QVariant(static_cast<int>(column.status(record))) : QVariant();
    case kProgressRole: {
        const int percent = column.progress ? column.progress(record) : -1;
        return percent < 0 ? QVariant() : QVariant(percent);
    }
    case Qt::TextAlignmentRole:
        return headerData(index.column(), Qt::Horizontal, role);
    default:
        return {};
    }
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    if (!At(m_columns, index.column()).check(At(m_records, index.row()), value.toInt() == Qt::Checked))
        return false;
    rowsChanged(index.row(), index.row());
    return true;
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const
{
    if (!hasIndex(index.row(), index.column()) || !enabled(At(m_records, index.row())))
        return Qt::NoItemFlags;
    const TableColumn& column = At(m_columns, index.column());
    const bool checkable = column.check && column.checked(At(m_records, index.row()));
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | (checkable ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const TableColumn& column = At(m_columns, section);
    if (role == Qt::TextAlignmentRole && column.kind == Kind::Number)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignRight);
    if (role != Qt::DisplayRole)
        return {};
    if (column.headText)
        return column.headText();
    return column.head != 0 ? QVariant(GetLangString(column.head)) : QVariant();
}
