#pragma once

#include "backends/icu/LocaleNames.h"
#include "platform/LocaleFormats.h"
#include "platform/UserTimeZone.h"

#include <memory>

namespace quillet {

/// The texts of a locale by ICU. Formatters are made once. They format local times: what time it is
/// in the user's zone is not for ICU to say, which has zone rules of its own, of another year.
class IcuLocaleFormats final : public LocaleFormats {
public:
    /// A change of the zone is followed.
    IcuLocaleFormats(const LocaleNames& locales, std::shared_ptr<const UserTimeZone> zone);
    /// In a zone that stays, by its name; an unknown one counts as UTC.
    IcuLocaleFormats(const LocaleNames& locales, const QString& timeZone);
    ~IcuLocaleFormats() override;
    IcuLocaleFormats(const IcuLocaleFormats&) = delete;
    IcuLocaleFormats& operator=(const IcuLocaleFormats&) = delete;

    [[nodiscard]] QString shortDate(Instant instant) const override;
    [[nodiscard]] QString longDate(Instant instant) const override;
    [[nodiscard]] QString shortTime(Instant instant) const override;
    [[nodiscard]] QString weekdayName(Instant instant) const override;
    [[nodiscard]] QString dateSpan(SpanUnit unit, Instant first, Instant last) const override;
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
