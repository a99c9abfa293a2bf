#pragma once

#include "platform/RowInsert.h"
#include "support/Conversions.h"

#include <QVariant>
#include <type_traits>

// A table is described once, by a constexpr list that binds column names, types and defaults to the members of its
// record. The template database, the reads, the writes and the tests' round trips all come from that list.

enum class FieldType
{
    Text,
    Bool,
    Int16,
    Int32,
    Real
};

enum class FieldUse
{
    ReadWrite,
    WriteOnly, // siblings read it; the desk never does
    ReadOnly,  // the desk never writes it
    ByHand     // key or conditional field: its procedure reads and writes it itself
};

struct FieldInfo
{
    const char* name;
    FieldType type;
    const char* defaultSql; // literal of the table's default
    FieldUse use = FieldUse::ReadWrite;
    int caption = 0;     // number of the message that names the field, 0 for none
    bool shared = false; // of a record that has several rows: the same in each of them
};

// A value as a variant: numbers of 32 bits and less as int, never a null text.
class VariantSink final : public CellSink
{
public:
    void text(const QString& cell) override { value = cell.isNull() ? QVariant(QLatin1String("")) : QVariant(cell); }
    void integer(qint64 cell) override { value = static_cast<int>(cell); }
    void real(double cell) override { value = cell; }
    QVariant value;
};

// One column over rows of type Row. `read` throws ConversionError for a value that does not fit.
template <class Row>
struct Column
{
    using RowType = Row;
    FieldInfo info;
    void (*read)(Row&, const QVariant&);
    void (*put)(const Row&, CellSink&);

    QVariant write(const Row& row) const
    {
        VariantSink sink;
        put(row, sink);
        return sink.value;
    }

    constexpr Column with(FieldUse use) const
    {
        Column copy = *this;
        copy.info.use = use;
        return copy;
    }
    constexpr Column named(int caption) const
    {
        Column copy = *this;
        copy.info.caption = caption;
        return copy;
    }
    constexpr Column sharedByRows() const
    {
        Column copy = *this;
        copy.info.shared = true;
        return copy;
    }
    constexpr Column withDefault(const char* sql) const
    {
        Column copy = *this;
        copy.info.defaultSql = sql;
        return copy;
    }
};

namespace table_detail {

template <class T>
constexpr FieldType TypeOf()
{
    if constexpr (std::is_same_v<T, QString>)
        return FieldType::Text;
    else if constexpr (std::is_same_v<T, bool>)
        return FieldType::Bool;
    else if constexpr (std::is_same_v<T, qint16>)
        return FieldType::Int16;
    else if constexpr (std::is_same_v<T, qint32>)
        return FieldType::Int32;
    else
        return FieldType::Real;
}

template <class T>
constexpr const char* DefaultOf()
{
    return std::is_same_v<T, QString> ? "''" : "0";
}

template <class T>
T FromVariant(const QVariant& value)
{
    if constexpr (std::is_same_v<T, QString>)
        return TextField(value);
    else if constexpr (std::is_same_v<T, bool>)
        return BoolField(value);
    else if constexpr (std::is_same_v<T, qint16>)
        return Int16Field(value);
    else if constexpr (std::is_same_v<T, qint32>)
        return Int32Field(value);
    else
        return RealField(value);
}

template <class T>
void Put(CellSink& sink, const T& value)
{
    if constexpr (std::is_same_v<T, QString>)
        sink.text(value);
    else if constexpr (std::is_floating_point_v<T>)
        sink.real(static_cast<double>(value));
    else
        sink.integer(static_cast<qint64>(value));
}

template <class M>
struct MemberOf;
template <class C, class T>
struct MemberOf<T C::*>
{
    using Class = C;
    using Type = T;
};

} // namespace table_detail

// A plain member: Field<&UserRecord::sUser>("sUser"). The member's type decides the column's. Row is named where the
// member is one of its base.
template <auto Member, class Row = typename table_detail::MemberOf<decltype(Member)>::Class>
constexpr auto Field(const char* name)
{
    using M = table_detail::MemberOf<decltype(Member)>;
    using T = typename M::Type;
    return Column<Row>{{name, table_detail::TypeOf<T>(), table_detail::DefaultOf<T>()},
                       [](Row& row, const QVariant& value) { row.*Member = table_detail::FromVariant<T>(value); },
                       [](const Row& row, CellSink& sink) { table_detail::Put(sink, row.*Member); }};
}

// Element `Index` (from 0) of an array member.
template <auto Member, std::size_t Index>
constexpr auto Element(const char* name)
{
    using M = table_detail::MemberOf<decltype(Member)>;
    using Row = typename M::Class;
    using T = typename M::Type::value_type;
    return Column<Row>{
        {name, table_detail::TypeOf<T>(), table_detail::DefaultOf<T>()},
        [](Row& row, const QVariant& value) { (row.*Member)[Index] = table_detail::FromVariant<T>(value); },
        [](const Row& row, CellSink& sink) { table_detail::Put(sink, (row.*Member)[Index]); }};
}
