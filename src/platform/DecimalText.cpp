#include "platform/Decimal.h"

#include "platform/DecimalOperations.h"

#include <algorithm>

namespace quillet {

namespace {

/// The parts of a number's text; digits as they stand, point left out.
struct NumberText {
    bool isNegative = false;
    QString digits;
    /// How many of the digits stand behind the point.
    int fractionDigits = 0;
    int exponent = 0;
};

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// Reads "e12" at the front of the text; false when it is not an exponent.
bool readExponent(QStringView text, int& exponent) {
    text = text.sliced(1);
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    if (text.isEmpty() || !std::ranges::all_of(text, isDigit)) {
        return false;
    }
    // Beyond four digits every exponent is as far out of range as the next.
    int value = 0;
    for (const QChar digit : text) {
        value = std::min(value * 10 + digit.digitValue(), 9999);
    }
    exponent = isNegative ? -value : value;
    return true;
}

bool read(QStringView text, NumberText& number) {
    number.isNegative = text.startsWith(u'-');
    if (number.isNegative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    bool hasPoint = false;
    qsizetype position = 0;
    for (; position < text.size(); ++position) {
        const QChar character = text[position];
        if (isDigit(character)) {
            number.digits.append(character);
            number.fractionDigits += hasPoint ? 1 : 0;
        } else if (character == u'.' && !hasPoint) {
            hasPoint = true;
        } else {
            break;
        }
    }
    if (number.digits.isEmpty()) {
        return false;
    }
    const QStringView rest = text.sliced(position);
    if (rest.isEmpty()) {
        return true;
    }
    return (rest.front() == u'e' || rest.front() == u'E') && readExponent(rest, number.exponent);
}

} // namespace

Decimal Decimal::fromString(QStringView text) {
    NumberText number;
    if (!read(text, number)) {
        return notANumber();
    }
    const auto firstSignificant =
        std::ranges::find_if_not(number.digits, [](QChar digit) { return digit == u'0'; });
    const QStringView digits =
        QStringView(number.digits).sliced(firstSignificant - number.digits.begin());
    // Rounding to 38 digits, half away from zero, depends on no digit behind the 39th.
    const QStringView used =
        digits.first(std::min<qsizetype>(digits.size(), DecimalOperations::maximumDigits + 1));
    DecimalOperations::Wide magnitude = 0;
    for (const QChar digit : used) {
        magnitude = magnitude * 10 + static_cast<unsigned>(digit.digitValue());
    }
    const qsizetype unused = digits.size() - used.size();
    return DecimalOperations::fromWide(number.isNegative, magnitude,
                                       number.exponent +
                                           static_cast<int>(unused - number.fractionDigits));
}

QString Decimal::toString() const {
    if (isNaN()) {
        return QStringLiteral("NaN");
    }
    QString digits;
    for (auto rest = DecimalOperations::coefficient(*this); rest != 0; rest /= 10) {
        digits.prepend(QChar(u'0' + static_cast<char16_t>(rest % 10)));
    }
    const int exponent = DecimalOperations::exponent(*this);
    if (exponent >= 0) {
        digits.append(QString(digits.isEmpty() ? 1 : exponent, u'0'));
    } else {
        digits = digits.rightJustified(1 - exponent, u'0');
        digits.insert(digits.size() + exponent, u'.');
    }
    return isNegative() ? u'-' + digits : digits;
}

} // namespace quillet
