#include "platform/Decimal.h"

#include "platform/DecimalOperations.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quillet {

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

Decimal Decimal::notANumber() {
    Decimal result;
    result.isNotANumber_ = true;
    return result;
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
