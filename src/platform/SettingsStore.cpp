#include "platform/SettingsStore.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace quillet {

namespace {

/// The number at the beginning of a text, blanks before it skipped; empty when there is none.
QString leadingNumber(const QString& text) {
    static const QRegularExpression pattern(
        QStringLiteral(R"(^\s*([+-]?(?:[0-9]+(?:\.[0-9]*)?|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))"));
    return pattern.match(text).captured(1);
}

bool isText(const QVariant& value) {
    return value.typeId() == QMetaType::QString;
}

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isDecimal(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<Decimal>();
}

qint64 wholePart(double value) {
    // 2^63 as a double; the first value that no longer fits.
    constexpr double bound = 9223372036854775808.0;
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= bound) {
        return std::numeric_limits<qint64>::max();
    }
    return value < -bound ? std::numeric_limits<qint64>::min() : static_cast<qint64>(value);
}

} // namespace

bool boolFromValue(const QVariant& value) {
    if (isText(value)) {
        static const QRegularExpression pattern(QStringLiteral("^\\s*[+-]?0*[1-9YyTt]"));
        return pattern.match(value.toString()).hasMatch();
    }
    return doubleFromValue(value) != 0.0;
}

qint64 integerFromValue(const QVariant& value) {
    if (isText(value)) {
        static const QRegularExpression pattern(QStringLiteral("^\\s*([+-]?[0-9]+)"));
        return Decimal::fromString(pattern.match(value.toString()).captured(1)).toInteger();
    }
    if (isDecimal(value)) {
        return value.value<Decimal>().toInteger();
    }
    if (value.typeId() == QMetaType::Double) {
        return wholePart(value.toDouble());
    }
    return isNumber(value) ? value.toLongLong() : 0;
}

double doubleFromValue(const QVariant& value) {
    if (isText(value)) {
        return leadingNumber(value.toString()).toDouble();
    }
    if (isDecimal(value)) {
        return value.value<Decimal>().toDouble();
    }
    return isNumber(value) ? value.toDouble() : 0.0;
}

Decimal decimalFromValue(const QVariant& value) {
    if (isDecimal(value)) {
        return value.value<Decimal>();
    }
    if (isText(value)) {
        return Decimal::fromString(leadingNumber(value.toString()));
    }
    if (value.typeId() == QMetaType::Double) {
        return Decimal::fromDouble(value.toDouble());
    }
    return isNumber(value) ? Decimal::fromInteger(value.toLongLong()) : Decimal::notANumber();
}

QString stringFromValue(const QVariant& value) {
    if (isText(value)) {
        return value.toString();
    }
    if (value.typeId() == QMetaType::Bool) {
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    }
    return isNumber(value) || isDecimal(value) ? decimalFromValue(value).toString() : QString();
}

std::optional<Instant> dateFromValue(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Instant>()) {
        return value.value<Instant>();
    }
    return std::nullopt;
}

void flipBool(SettingsStore& settings, const QString& key) {
    settings.setObject(key, !boolForKey(settings, key));
}

} // namespace quillet
