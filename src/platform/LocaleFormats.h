#pragma once

#include "platform/Decimal.h"
#include "platform/Instant.h"

#include <QString>

namespace quillet {

/// In what a span of days is told.
enum class SpanUnit { Days, Month, Year };

/// The texts and rules of the user's locale, in the system time zone. Implementations are safe to
/// read from any thread.
class LocaleFormats {
public:
    virtual ~LocaleFormats() = default;

    /// The date alone, short style ("3/1/24").
    [[nodiscard]] virtual QString shortDate(Instant instant) const = 0;
    /// The date alone, long style ("March 1, 2024").
    [[nodiscard]] virtual QString longDate(Instant instant) const = 0;
    /// The time alone, short style ("9:30 AM").
    [[nodiscard]] virtual QString shortTime(Instant instant) const = 0;
    /// The full weekday name, pattern "EEEE".
    [[nodiscard]] virtual QString weekdayName(Instant instant) const = 0;
    /// The span between two instants, both counted, each part said once: the month ("March 2024")
    /// or year ("2024") of the first one, or the days ("Mar 4 – 10, 2024"; one alone in full style,
    /// "Friday, March 1, 2024").
    [[nodiscard]] virtual QString dateSpan(SpanUnit unit, Instant first, Instant last) const = 0;
    /// The month with its year, as a heading ("March 2024").
    [[nodiscard]] QString monthAndYear(Instant instant) const {
        return dateSpan(SpanUnit::Month, instant, instant);
    }
    /// Pattern "0.##;0.##": at most `maximumFractionDigits` decimals, half-even, the locale's
    /// separator, no grouping, and no minus sign on a negative number. Not-a-number as the locale
    /// writes it.
    [[nodiscard]] virtual QString number(const Decimal& value,
                                         int maximumFractionDigits = 2) const = 0;
    /// The currency style: symbol, grouping, the currency's decimals, half-even.
    [[nodiscard]] virtual QString currency(const Decimal& value) const = 0;
    /// Reads a whole text that number() may have written; not-a-number for anything else.
    [[nodiscard]] virtual Decimal parsedNumber(const QString& text) const = 0;
    [[nodiscard]] virtual QString decimalSeparator() const = 0;
    [[nodiscard]] virtual QString currencySymbol() const = 0;
};

} // namespace quillet
