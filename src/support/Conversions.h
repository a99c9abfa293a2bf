#pragma once

#include <QString>
#include <QVariant>
#include <stdexcept>

// Conversions that never wrap silently: a value that is null, not a number, or does not fit throws ConversionError.
class ConversionError : public std::runtime_error
{
public:
    explicit ConversionError(const QString& what)
        : std::runtime_error(what.toStdString())
    {
    }
};

// Texts of a device's reply or of a list column: surrounding blanks are allowed, a fraction is rounded half to even.
qint16 ToInt16(QStringView text);
qint32 ToInt32(QStringView text);
double ToReal(QStringView text);

// Values of a table's row.
qint16 Int16Field(const QVariant& value);
qint32 Int32Field(const QVariant& value);
double RealField(const QVariant& value);
bool BoolField(const QVariant& value);    // any number but 0 is true
QString TextField(const QVariant& value); // null reads as the empty text

// Element `index` (from 0) of a list; throws ConversionError ("Subscript out of range") outside of it.
template <class List>
decltype(auto) At(List&& list, qsizetype index)
{
    if (index < 0 || index >= static_cast<qsizetype>(std::size(list)))
        throw ConversionError(QStringLiteral("Subscript out of range"));
    return std::forward<List>(list)[static_cast<typename std::decay_t<List>::size_type>(index)];
}
