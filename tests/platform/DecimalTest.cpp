#include "platform/Decimal.h"

#include <boost/multiprecision/cpp_int.hpp>
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <limits>

namespace quillet {

namespace {

using boost::multiprecision::cpp_int;
using boost::multiprecision::cpp_rational;

Decimal decimal(const char* text) {
    return Decimal::fromString(QString::fromLatin1(text));
}

std::string text(const Decimal& value) {
    return value.toString().toStdString();
}

cpp_rational powerOfTen(int exponent) {
    const cpp_int power =
        boost::multiprecision::pow(cpp_int(10), static_cast<unsigned>(std::abs(exponent)));
    return exponent >= 0 ? cpp_rational(power) : cpp_rational(cpp_int(1), power);
}

/// The exact value of a plain decimal text.
cpp_rational exact(const Decimal& value) {
    std::string digits = text(value);
    const bool isNegative = digits.front() == '-';
    digits.erase(0, isNegative ? 1 : 0);
    int fractionDigits = 0;
    if (const auto point = digits.find('.'); point != std::string::npos) {
        fractionDigits = static_cast<int>(digits.size() - point - 1);
        digits.erase(point, 1);
    }
    // The big integer reads a leading zero as the mark of an octal number.
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    const cpp_rational magnitude = cpp_rational(cpp_int(digits)) * powerOfTen(-fractionDigits);
    return isNegative ? cpp_rational(-magnitude) : magnitude;
}

/// floor(value × 10^scale + 1/2) / 10^scale for a value that is not negative.
cpp_rational roundedHalfUp(const cpp_rational& value, int scale) {
    const cpp_rational units = value * powerOfTen(scale) + cpp_rational(1, 2);
    return cpp_rational(cpp_int(numerator(units) / denominator(units))) * powerOfTen(-scale);
}

/// The model: an exact value rounded half away from zero to 38 significant digits.
cpp_rational toPrecision(const cpp_rational& value) {
    if (value == 0) {
        return value;
    }
    const cpp_rational magnitude = abs(value);
    int scale = 128;
    while (magnitude * powerOfTen(scale) >= powerOfTen(38)) {
        --scale;
    }
    const cpp_rational rounded = roundedHalfUp(magnitude, scale);
    return value < 0 ? cpp_rational(-rounded) : rounded;
}

rc::Gen<Decimal> anyDecimal() {
    return rc::gen::map(
        rc::gen::tuple(rc::gen::arbitrary<bool>(),
                       rc::gen::container<std::string>(rc::gen::inRange('0', char('9' + 1))),
                       rc::gen::inRange(-40, 20)),
        [](const std::tuple<bool, std::string, int>& parts) {
            const auto& [isNegative, digits, exponent] = parts;
            // Longer ones would leave the range of exponents when multiplied.
            constexpr std::size_t longest = 45;
            const std::string written = (isNegative ? "-" : "") +
                                        (digits.empty() ? "7" : digits.substr(0, longest)) + "e" +
                                        std::to_string(exponent);
            return Decimal::fromString(QString::fromStdString(written));
        });
}

} // namespace

TEST(DecimalTest, ReadsAndWritesPlainText) {
    EXPECT_EQ(text(decimal("0")), "0");
    EXPECT_EQ(text(decimal("-0")), "0");
    EXPECT_EQ(text(decimal("0.00")), "0");
    EXPECT_EQ(text(decimal("100.50")), "100.5");
    EXPECT_EQ(text(decimal("+7")), "7");
    EXPECT_EQ(text(decimal(".5")), "0.5");
    EXPECT_EQ(text(decimal("5.")), "5");
    EXPECT_EQ(text(decimal("-1234.5")), "-1234.5");
    EXPECT_EQ(text(decimal("1e3")), "1000");
    EXPECT_EQ(text(decimal("12E-4")), "0.0012");
}

TEST(DecimalTest, TextThatIsNoNumberIsNotANumber) {
    for (const char* wrong :
         {"", " ", "abc", "1,5", "1.2.3", "1e", "1e+", "--1", " 1", "1 ", ".", "NaN", "0x10"}) {
        EXPECT_TRUE(decimal(wrong).isNaN()) << wrong;
    }
    EXPECT_EQ(text(Decimal::notANumber()), "NaN");
}

TEST(DecimalTest, KeepsThirtyEightDigitsAndRoundsTheNextAwayFromZero) {
    EXPECT_EQ(text(decimal("12345678901234567890123456789012345678")),
              "12345678901234567890123456789012345678");
    EXPECT_EQ(text(decimal("123456789012345678901234567890123456785")),
              "123456789012345678901234567890123456790");
    EXPECT_EQ(text(decimal("-999999999999999999999999999999999999995")),
              "-1000000000000000000000000000000000000000");
    EXPECT_EQ(text(decimal("123456789012345678901234567890123456784999")),
              "123456789012345678901234567890123456780000");
}

TEST(DecimalTest, ADoubleIsTheDecimalOfItsShortestText) {
    EXPECT_EQ(text(Decimal::fromDouble(0.1)), "0.1");
    EXPECT_EQ(text(Decimal::fromDouble(1e22)), "10000000000000000000000");
    EXPECT_EQ(text(Decimal::fromDouble(-0.0)), "0");
    EXPECT_EQ(text(Decimal::fromDouble(5e-324)), "0");
    EXPECT_TRUE(Decimal::fromDouble(1e300).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(std::numeric_limits<double>::quiet_NaN()).isNaN());
    EXPECT_TRUE(Decimal::fromDouble(std::numeric_limits<double>::infinity()).isNaN());
}

TEST(DecimalTest, DividesToFullPrecision) {
    EXPECT_EQ(text(decimal("1") / decimal("3")), "0.33333333333333333333333333333333333333");
    EXPECT_EQ(text(decimal("2") / decimal("3")), "0.66666666666666666666666666666666666667");
    EXPECT_EQ(text(decimal("50") / decimal("60")), "0.83333333333333333333333333333333333333");
    EXPECT_EQ(text(decimal("100") / decimal("60")), "1.6666666666666666666666666666666666667");
    EXPECT_TRUE((decimal("1") / decimal("0")).isNaN());
    EXPECT_TRUE((decimal("0") / decimal("0")).isNaN());
}

TEST(DecimalTest, WhatDoesNotFitIsNotANumberOrZero) {
    EXPECT_TRUE((decimal("1e127") * decimal("1e127")).isNaN());
    EXPECT_EQ(text(decimal("1e-100") * decimal("1e-100")), "0");
    EXPECT_EQ(decimal("1e164") / decimal("1e164"), decimal("1"));
    EXPECT_TRUE(decimal("1e165").isNaN());
    EXPECT_TRUE(decimal("1e999999999999").isNaN());
    EXPECT_EQ(text(decimal("1e-999999999999")), "0");
}

TEST(DecimalTest, NotANumberSpreadsAndEqualsNothing) {
    const Decimal nan = Decimal::notANumber();
    EXPECT_TRUE((nan + decimal("1")).isNaN());
    EXPECT_TRUE((decimal("1") * nan).isNaN());
    EXPECT_TRUE((decimal("1") - nan).isNaN());
    EXPECT_TRUE((-nan).isNaN());
    EXPECT_TRUE(nan.rounded(2, Rounding::HalfEven).isNaN());
    EXPECT_FALSE(nan == nan);
    EXPECT_FALSE(nan < decimal("1"));
    EXPECT_FALSE(nan > decimal("1"));
    EXPECT_EQ(nan.toInteger(), 0);
}

TEST(DecimalTest, RoundsAsTold) {
    EXPECT_EQ(text(decimal("0.125").rounded(2, Rounding::HalfEven)), "0.12");
    EXPECT_EQ(text(decimal("0.135").rounded(2, Rounding::HalfEven)), "0.14");
    EXPECT_EQ(text(decimal("0.125").rounded(2, Rounding::HalfAwayFromZero)), "0.13");
    EXPECT_EQ(text(decimal("-1.5").rounded(0, Rounding::HalfAwayFromZero)), "-2");
    EXPECT_EQ(text(decimal("-2.5").rounded(0, Rounding::HalfEven)), "-2");
    EXPECT_EQ(text(decimal("1.999").rounded(0, Rounding::TowardZero)), "1");
    EXPECT_EQ(text(decimal("1450").rounded(-2, Rounding::HalfEven)), "1400");
    EXPECT_EQ(text(decimal("0.5").rounded(-60, Rounding::HalfAwayFromZero)), "0");
    EXPECT_EQ(text(decimal("9.999").rounded(2, Rounding::HalfEven)), "10");
}

TEST(DecimalTest, TheWholePartIsSaturated) {
    EXPECT_EQ(decimal("-7.9").toInteger(), -7);
    EXPECT_EQ(decimal("9223372036854775807").toInteger(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(decimal("9223372036854775808").toInteger(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(decimal("1e30").toInteger(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(decimal("-1e30").toInteger(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(text(Decimal::fromInteger(std::numeric_limits<std::int64_t>::min())),
              "-9223372036854775808");
}

TEST(DecimalTest, OrdersByValue) {
    EXPECT_LT(decimal("-1"), decimal("0.001"));
    EXPECT_LT(decimal("9.99"), decimal("10"));
    EXPECT_GT(decimal("-1"), decimal("-1.5"));
    EXPECT_EQ(decimal("1.0"), decimal("1"));
    EXPECT_LT(decimal("0"), decimal("1e-100"));
    EXPECT_GT(decimal("1e100"), decimal("123"));
}

TEST(DecimalTest, SumsDifferencesAndProductsAreTheExactOnesRoundedOnce) {
    EXPECT_TRUE(rc::check("against exact rationals", [] {
        const Decimal left = *anyDecimal();
        const Decimal right = *anyDecimal();
        RC_ASSERT(exact(left + right) == toPrecision(exact(left) + exact(right)));
        RC_ASSERT(exact(left - right) == toPrecision(exact(left) - exact(right)));
        RC_ASSERT(exact(left * right) == toPrecision(exact(left) * exact(right)));
    }));
}

TEST(DecimalTest, QuotientsAreTheExactOnesRoundedOnce) {
    EXPECT_TRUE(rc::check("against exact rationals", [] {
        const Decimal left = *anyDecimal();
        const Decimal right = *anyDecimal();
        RC_PRE(!right.isZero());
        RC_ASSERT(exact(left / right) == toPrecision(exact(left) / exact(right)));
    }));
}

TEST(DecimalTest, OrderAgreesWithExactRationals) {
    EXPECT_TRUE(rc::check("against exact rationals", [] {
        const Decimal left = *anyDecimal();
        const Decimal right = *rc::gen::oneOf(anyDecimal(), rc::gen::just(left));
        RC_ASSERT((left < right) == (exact(left) < exact(right)));
        RC_ASSERT((left == right) == (exact(left) == exact(right)));
    }));
}

TEST(DecimalTest, TextRoundTrips) {
    EXPECT_TRUE(rc::check("text read back", [] {
        const Decimal value = *anyDecimal();
        RC_ASSERT(Decimal::fromString(value.toString()) == value);
    }));
}

TEST(DecimalTest, RoundingAgreesWithExactRationals) {
    EXPECT_TRUE(rc::check("half away from zero", [] {
        const Decimal value = (*anyDecimal()).absolute();
        const int scale = *rc::gen::inRange(-3, 12);
        RC_ASSERT(exact(value.rounded(scale, Rounding::HalfAwayFromZero)) ==
                  toPrecision(roundedHalfUp(exact(value), scale)));
    }));
}

} // namespace quillet
