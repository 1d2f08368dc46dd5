#pragma once

#include <QMetaType>
#include <QString>

#include <compare>
#include <cstdint>

namespace quillet {

/// How a digit that is exactly halfway is resolved.
enum class Rounding {
    HalfAwayFromZero, ///< 0.5 becomes 1, -0.5 becomes -1.
    HalfEven,         ///< 0.5 becomes 0, 1.5 becomes 2.
    TowardZero,       ///< The fraction is dropped.
};

/// A base-10 number of up to 38 significant digits, or not a number.
///
/// Value: sign × coefficient × 10^exponent, coefficient below 10^38, exponent in [-128, 127].
/// Every operation is computed exactly and then rounded once, half away from zero, to 38 digits.
/// Not-a-number comes out of division by zero, of overflow, of unreadable text and of any
/// operation on not-a-number. Too small a result becomes 0. There is one zero, without a sign.
/// Values are kept without trailing zeros in the coefficient: equal numbers have equal members.
class Decimal {
public:
    /// Zero.
    constexpr Decimal() = default;
    /// Exact.
    [[nodiscard]] static Decimal fromInteger(std::int64_t value);
    /// The decimal that the double's shortest round-trip text spells (0.1 is exactly 0.1).
    /// Not-a-number for NaN and infinities.
    [[nodiscard]] static Decimal fromDouble(double value);
    /// Reads an optional sign, digits with an optional "." between or beside them, and an optional
    /// exponent ("1e3"). Anything else, the empty text and surrounding blanks included, is
    /// not-a-number. More than 38 digits are rounded half away from zero.
    [[nodiscard]] static Decimal fromString(QStringView text);
    [[nodiscard]] static Decimal notANumber();

    [[nodiscard]] constexpr bool isNaN() const { return isNotANumber_; }
    [[nodiscard]] constexpr bool isZero() const { return !isNotANumber_ && coefficient_ == 0; }
    [[nodiscard]] constexpr bool isNegative() const { return isNegative_; }

    /// Plain text without an exponent: "-1234.5", "0"; "NaN" for not-a-number.
    [[nodiscard]] QString toString() const;
    /// The nearest double; NaN for not-a-number.
    [[nodiscard]] double toDouble() const;
    /// The whole part, fraction dropped; 0 for not-a-number, saturated at the type's bounds.
    [[nodiscard]] std::int64_t toInteger() const;

    /// Rounded to `scale` digits behind the point (negative: before it).
    [[nodiscard]] Decimal rounded(int scale, Rounding rounding) const;
    [[nodiscard]] Decimal absolute() const;
    [[nodiscard]] Decimal operator-() const;

    friend Decimal operator+(const Decimal& left, const Decimal& right);
    friend Decimal operator-(const Decimal& left, const Decimal& right);
    friend Decimal operator*(const Decimal& left, const Decimal& right);
    friend Decimal operator/(const Decimal& left, const Decimal& right);
    Decimal& operator+=(const Decimal& other) { return *this = *this + other; }

    /// Numeric order; not-a-number equals nothing, itself included, and is unordered.
    friend std::partial_ordering operator<=>(const Decimal& left, const Decimal& right);
    friend bool operator==(const Decimal& left, const Decimal& right);

private:
    // 128 bits hold 38 digits. A typedef: only a declaration can bear the extension mark.
    __extension__ typedef unsigned __int128 Coefficient; // NOLINT(modernize-use-using)

    Coefficient coefficient_ = 0;
    std::int16_t exponent_ = 0;
    bool isNegative_ = false;
    bool isNotANumber_ = false;

    friend struct DecimalOperations;
};

} // namespace quillet

Q_DECLARE_METATYPE(quillet::Decimal)
