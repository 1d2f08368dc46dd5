#pragma once

#include "backends/icu/LocaleNames.h"
#include "platform/LocaleFormats.h"

#include <memory>

namespace quillet {

/// The texts of a locale by ICU. Formatters are made once.
class IcuLocaleFormats final : public LocaleFormats {
public:
    /// An unknown zone name counts as UTC.
    IcuLocaleFormats(const LocaleNames& locales, const QString& timeZone);
    ~IcuLocaleFormats() override;
    IcuLocaleFormats(const IcuLocaleFormats&) = delete;
    IcuLocaleFormats& operator=(const IcuLocaleFormats&) = delete;

    [[nodiscard]] QString shortDate(Instant instant) const override;
    [[nodiscard]] QString longDate(Instant instant) const override;
    [[nodiscard]] QString shortTime(Instant instant) const override;
    [[nodiscard]] QString weekdayName(Instant instant) const override;
    [[nodiscard]] QString monthAndYear(Instant instant) const override;
    [[nodiscard]] QString number(const Decimal& value, int maximumFractionDigits) const override;
    [[nodiscard]] QString currency(const Decimal& value) const override;
    [[nodiscard]] Decimal parsedNumber(const QString& text) const override;
    [[nodiscard]] QString decimalSeparator() const override;
    [[nodiscard]] QString currencySymbol() const override;

private:
    struct Formatters;
    std::unique_ptr<Formatters> formatters_;
};

} // namespace quillet
