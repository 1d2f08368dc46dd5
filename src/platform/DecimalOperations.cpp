#include "platform/DecimalOperations.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quillet {

namespace {

using Coefficient = DecimalOperations::Coefficient;
using Wide = DecimalOperations::Wide;

constexpr int maximumDigits = DecimalOperations::maximumDigits;
constexpr int minimumExponent = -128;
constexpr int maximumExponent = 127;
constexpr int widestShift = 115;

constexpr auto powersOfTen = [] {
    std::array<Coefficient, maximumDigits + 1> powers{};
    powers[0] = 1;
    for (std::size_t index = 1; index < powers.size(); ++index) {
        powers[index] = powers[index - 1] * 10;
    }
    return powers;
}();

Wide shifted(Coefficient value, int digits) {
    Wide result = value;
    while (digits > 0) {
        const int step = std::min(digits, maximumDigits);
        result *= DecimalOperations::powerOfTen(step);
        digits -= step;
    }
    return result;
}

/// Whether a magnitude cut to `kept` must grow by one, given what was cut and half of its unit.
bool roundsUp(Coefficient kept, Coefficient dropped, Coefficient half, Rounding rounding) {
    switch (rounding) {
    case Rounding::HalfAwayFromZero:
        return dropped >= half;
    case Rounding::HalfEven:
        return dropped > half || (dropped == half && kept % 2 == 1);
    case Rounding::TowardZero:
        break;
    }
    return false;
}

} // namespace

DecimalOperations::Coefficient DecimalOperations::powerOfTen(int exponent) {
    return powersOfTen[static_cast<std::size_t>(exponent)];
}

int DecimalOperations::digitCount(Coefficient value) {
    return static_cast<int>(std::ranges::upper_bound(powersOfTen, value) - powersOfTen.begin());
}

DecimalOperations::Coefficient DecimalOperations::withoutLastDigits(Coefficient value, int digits,
                                                                    Rounding rounding) {
    if (digits > maximumDigits) {
        return 0;
    }
    const Coefficient unit = powerOfTen(digits);
    const Coefficient kept = value / unit;
    return kept + (roundsUp(kept, value % unit, unit / 2, rounding) ? 1 : 0);
}

Decimal DecimalOperations::fromParts(bool isNegative, Coefficient coefficient, int exponent) {
    if (exponent < minimumExponent) {
        coefficient =
            withoutLastDigits(coefficient, minimumExponent - exponent, Rounding::HalfAwayFromZero);
        exponent = minimumExponent;
    }
    if (coefficient == 0) {
        return {};
    }
    while (exponent < maximumExponent && coefficient % 10 == 0) {
        coefficient /= 10;
        ++exponent;
    }
    const int excess = exponent - maximumExponent;
    if (excess > 0) {
        if (excess > maximumDigits - digitCount(coefficient)) {
            return Decimal::notANumber();
        }
        coefficient *= powerOfTen(excess);
        exponent = maximumExponent;
    }
    Decimal result;
    result.coefficient_ = coefficient;
    result.exponent_ = static_cast<std::int16_t>(exponent);
    result.isNegative_ = isNegative;
    return result;
}

Decimal DecimalOperations::fromWide(bool isNegative, Wide magnitude, int exponent) {
    static const Wide bound = powerOfTen(maximumDigits);
    const Wide tenTimesBound = bound * 10;
    // All but one of the surplus digits are cut; the last one decides the rounding.
    while (magnitude >= tenTimesBound) {
        magnitude /= 10;
        ++exponent;
    }
    Coefficient coefficient = 0;
    if (magnitude >= bound) {
        const Wide rounded = (magnitude + 5) / 10;
        coefficient = rounded.convert_to<Coefficient>();
        ++exponent;
        if (coefficient == powerOfTen(maximumDigits)) {
            coefficient /= 10;
            ++exponent;
        }
    } else {
        coefficient = magnitude.convert_to<Coefficient>();
    }
    return fromParts(isNegative, coefficient, exponent);
}

/// Adds two magnitudes in units of the right operand's exponent, with the operands' signs.
template <typename Magnitude>
Decimal DecimalOperations::signedSum(const Decimal& left, const Decimal& right,
                                     const Magnitude& leftMagnitude,
                                     const Magnitude& rightMagnitude,
                                     Decimal (*make)(bool, Magnitude, int)) {
    if (left.isNegative_ == right.isNegative_) {
        return make(left.isNegative_, leftMagnitude + rightMagnitude, right.exponent_);
    }
    return leftMagnitude >= rightMagnitude
               ? make(left.isNegative_, leftMagnitude - rightMagnitude, right.exponent_)
               : make(right.isNegative_, rightMagnitude - leftMagnitude, right.exponent_);
}

Decimal DecimalOperations::sum(const Decimal& left, const Decimal& right) {
    if (left.exponent_ < right.exponent_) {
        return sum(right, left);
    }
    if (left.coefficient_ == 0) {
        return right;
    }
    const int shift = left.exponent_ - right.exponent_;
    if (right.coefficient_ == 0 || shift > widestShift) {
        return left;
    }
    // Sums of everyday amounts stay below 10^38 and need no wide arithmetic.
    constexpr Coefficient narrow = std::numeric_limits<std::uint64_t>::max();
    constexpr int narrowShift = 18;
    if (shift <= narrowShift && left.coefficient_ <= narrow && right.coefficient_ <= narrow) {
        return signedSum(left, right, left.coefficient_ * powerOfTen(shift), right.coefficient_,
                         fromParts);
    }
    return signedSum(left, right, shifted(left.coefficient_, shift), Wide(right.coefficient_),
                     fromWide);
}

Decimal DecimalOperations::product(const Decimal& left, const Decimal& right) {
    const bool isNegative = left.isNegative_ != right.isNegative_;
    const int exponent = left.exponent_ + right.exponent_;
    constexpr Coefficient narrow = std::numeric_limits<std::uint32_t>::max();
    if (left.coefficient_ <= narrow && right.coefficient_ <= narrow) {
        return fromParts(isNegative, left.coefficient_ * right.coefficient_, exponent);
    }
    return fromWide(isNegative, Wide(left.coefficient_) * right.coefficient_, exponent);
}

Decimal DecimalOperations::quotient(const Decimal& left, const Decimal& right) {
    // A quotient of so many digits has at least 39 of them, whatever the operands.
    const int shift = maximumDigits + 1 + digitCount(right.coefficient_);
    return fromWide(left.isNegative_ != right.isNegative_,
                    shifted(left.coefficient_, shift) / right.coefficient_,
                    left.exponent_ - right.exponent_ - shift);
}

std::strong_ordering DecimalOperations::orderOfMagnitudes(const Decimal& left,
                                                          const Decimal& right) {
    if (left.coefficient_ == 0 || right.coefficient_ == 0) {
        return left.coefficient_ <=> right.coefficient_;
    }
    const int leftTop = digitCount(left.coefficient_) + left.exponent_;
    const int rightTop = digitCount(right.coefficient_) + right.exponent_;
    if (leftTop != rightTop) {
        return leftTop <=> rightTop;
    }
    const int shift = left.exponent_ - right.exponent_;
    return shifted(left.coefficient_, std::max(shift, 0))
               .compare(shifted(right.coefficient_, std::max(-shift, 0))) <=> 0;
}

} // namespace quillet
