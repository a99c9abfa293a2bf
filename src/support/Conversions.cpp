#include "support/Conversions.h"

#include <QMetaType>
#include <cmath>
#include <limits>

namespace {

[[noreturn]] void Mismatch(QStringView text)
{
    throw ConversionError(QStringLiteral("Type mismatch: '%1'").arg(text.left(64)));
}

template <class Int>
Int Narrow(double value)
{
    const double rounded = std::nearbyint(value);
    if (rounded < std::numeric_limits<Int>::min() || rounded > std::numeric_limits<Int>::max())
        throw ConversionError(QStringLiteral("Overflow: %1").arg(value));
    return static_cast<Int>(rounded);
}

template <class Int>
Int FromText(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    bool ok = false;
    const qlonglong whole = trimmed.toLongLong(&ok);
    if (ok) {
        if (whole < std::numeric_limits<Int>::min() || whole > std::numeric_limits<Int>::max())
            throw ConversionError(QStringLiteral("Overflow: %1").arg(whole));
        return static_cast<Int>(whole);
    }
    return Narrow<Int>(ToReal(trimmed));
}

template <class Int>
Int FromField(const QVariant& value)
{
    if (value.isNull())
        throw ConversionError(QStringLiteral("Invalid use of Null"));
    switch (value.metaType().id()) {
    case QMetaType::LongLong:
    case QMetaType::Int: {
        const qlonglong whole = value.toLongLong();
        if (whole < std::numeric_limits<Int>::min() || whole > std::numeric_limits<Int>::max())
            throw ConversionError(QStringLiteral("Overflow: %1").arg(whole));
        return static_cast<Int>(whole);
    }
    case QMetaType::Bool:
        return value.toBool() ? Int(-1) : Int(0);
    case QMetaType::Double:
        return Narrow<Int>(value.toDouble());
    default:
        return FromText<Int>(value.toString());
    }
}

} // namespace

qint16 ToInt16(QStringView text)
{
    return FromText<qint16>(text);
}
qint32 ToInt32(QStringView text)
{
    return FromText<qint32>(text);
}

double ToReal(QStringView text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        Mismatch(text);
    return value;
}

qint16 Int16Field(const QVariant& value)
{
    return FromField<qint16>(value);
}
qint32 Int32Field(const QVariant& value)
{
    return FromField<qint32>(value);
}

double RealField(const QVariant& value)
{
    if (value.isNull())
        throw ConversionError(QStringLiteral("Invalid use of Null"));
    return value.metaType().id() == QMetaType::QString ? ToReal(value.toString()) : value.toDouble();
}

bool BoolField(const QVariant& value)
{
    return FromField<qint32>(value) != 0;
}

QString TextField(const QVariant& value)
{
    return value.toString();
}
