#pragma once

#include "platform/Decimal.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <compare>

namespace quillet {

/// What the operators and the text conversion of Decimal are made of; for platform/ alone.
struct DecimalOperations {
    using Coefficient = Decimal::Coefficient;
    /// Holds a coefficient moved by up to 115 digits, and the product of any two.
    using Wide = boost::multiprecision::number<
        boost::multiprecision::cpp_int_backend<512, 512, boost::multiprecision::unsigned_magnitude,
                                               boost::multiprecision::unchecked, void>>;

    static constexpr int maximumDigits = 38;

    /// 10^exponent for 0 <= exponent <= 38.
    static Coefficient powerOfTen(int exponent);
    /// 0 for 0.
    static int digitCount(Coefficient value);
    /// The value without its last digits (0 or more), rounded.
    static Coefficient withoutLastDigits(Coefficient value, int digits, Rounding rounding);

    /// coefficient × 10^exponent, normalised; rounded where the exponent is too small,
    /// not-a-number where it is too large.
    static Decimal fromParts(bool isNegative, Coefficient coefficient, int exponent);
    /// The same for a magnitude of any length, rounded half away from zero to 38 digits. It may
    /// stand for a number that goes on behind its last digit, if it has 39 digits or more then.
    static Decimal fromWide(bool isNegative, Wide magnitude, int exponent);

    static Decimal sum(const Decimal& left, const Decimal& right);
    static Decimal product(const Decimal& left, const Decimal& right);
    /// The right operand is not zero.
    static Decimal quotient(const Decimal& left, const Decimal& right);
    static std::strong_ordering orderOfMagnitudes(const Decimal& left, const Decimal& right);

    template <typename Magnitude>
    static Decimal signedSum(const Decimal& left, const Decimal& right,
                             const Magnitude& leftMagnitude, const Magnitude& rightMagnitude,
                             Decimal (*make)(bool, Magnitude, int));

    static Coefficient coefficient(const Decimal& value) { return value.coefficient_; }
    static int exponent(const Decimal& value) { return value.exponent_; }
};

} // namespace quillet
