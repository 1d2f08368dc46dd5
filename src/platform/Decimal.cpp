#include "platform/Decimal.h"

#include "platform/DecimalOperations.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

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

Decimal Decimal::fromInteger(std::int64_t value) {
    const auto magnitude = value < 0 ? std::uint64_t{0} - static_cast<std::uint64_t>(value)
                                     : static_cast<std::uint64_t>(value);
    return DecimalOperations::fromParts(value < 0, magnitude, 0);
}

Decimal Decimal::fromDouble(double value) {
    if (!std::isfinite(value)) {
        return notANumber();
    }
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    return fromString(QString::fromLatin1(text.data(), written.ptr - text.data()));
}

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

Decimal Decimal::notANumber() {
    Decimal result;
    result.isNotANumber_ = true;
    return result;
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

double Decimal::toDouble() const {
    if (isNotANumber_) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    const QByteArray text = toString().toLatin1();
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::int64_t Decimal::toInteger() const {
    const Decimal whole = rounded(0, Rounding::TowardZero);
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    if (isNotANumber_ || whole.coefficient_ == 0) {
        return 0;
    }
    if (whole.exponent_ > 18 ||
        DecimalOperations::digitCount(whole.coefficient_) + whole.exponent_ > 19 ||
        whole.coefficient_ * DecimalOperations::powerOfTen(whole.exponent_) >
            static_cast<DecimalOperations::Coefficient>(largest)) {
        return isNegative_ ? std::numeric_limits<std::int64_t>::min() : largest;
    }
    const auto magnitude = static_cast<std::int64_t>(
        whole.coefficient_ * DecimalOperations::powerOfTen(whole.exponent_));
    return isNegative_ ? -magnitude : magnitude;
}

Decimal Decimal::rounded(int scale, Rounding rounding) const {
    const int dropped = -scale - exponent_;
    if (isNotANumber_ || dropped <= 0) {
        return *this;
    }
    return DecimalOperations::fromParts(
        isNegative_, DecimalOperations::withoutLastDigits(coefficient_, dropped, rounding), -scale);
}

Decimal Decimal::absolute() const {
    Decimal result = *this;
    result.isNegative_ = false;
    return result;
}

Decimal Decimal::operator-() const {
    Decimal result = *this;
    result.isNegative_ = !isNegative_ && coefficient_ != 0;
    return result;
}

Decimal operator+(const Decimal& left, const Decimal& right) {
    return left.isNaN() || right.isNaN() ? Decimal::notANumber()
                                         : DecimalOperations::sum(left, right);
}

Decimal operator-(const Decimal& left, const Decimal& right) {
    return left + -right;
}

Decimal operator*(const Decimal& left, const Decimal& right) {
    return left.isNaN() || right.isNaN() ? Decimal::notANumber()
                                         : DecimalOperations::product(left, right);
}

Decimal operator/(const Decimal& left, const Decimal& right) {
    return left.isNaN() || right.isNaN() || right.isZero()
               ? Decimal::notANumber()
               : DecimalOperations::quotient(left, right);
}

std::partial_ordering operator<=>(const Decimal& left, const Decimal& right) {
    if (left.isNaN() || right.isNaN()) {
        return std::partial_ordering::unordered;
    }
    if (left.isNegative_ != right.isNegative_) {
        return left.isNegative_ ? std::partial_ordering::less : std::partial_ordering::greater;
    }
    return left.isNegative_ ? DecimalOperations::orderOfMagnitudes(right, left)
                            : DecimalOperations::orderOfMagnitudes(left, right);
}

bool operator==(const Decimal& left, const Decimal& right) {
    return (left <=> right) == std::partial_ordering::equivalent;
}

} // namespace quillet
