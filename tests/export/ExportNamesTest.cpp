#include "export/ExportNames.h"

#include "platform/Decimal.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// A locale whose long dates have all that a file name must not have.
class SlashedDates final : public LocaleFormats {
public:
    [[nodiscard]] QString longDate(Instant instant) const override {
        return QStringLiteral("Mar/%1, 2024, A/D").arg(instant == test::utc(2024, 3, 1) ? 1 : 31);
    }
    [[nodiscard]] QString shortDate(Instant /*instant*/) const override { return {}; }
    [[nodiscard]] QString shortTime(Instant /*instant*/) const override { return {}; }
    [[nodiscard]] QString weekdayName(Instant /*instant*/) const override { return {}; }
    [[nodiscard]] QString dateSpan(SpanUnit /*unit*/, Instant /*first*/,
                                   Instant /*last*/) const override {
        return {};
    }
    [[nodiscard]] QString number(const Decimal& /*value*/, int /*digits*/) const override {
        return {};
    }
    [[nodiscard]] QString currency(const Decimal& /*value*/) const override { return {}; }
    [[nodiscard]] Decimal parsedNumber(const QString& /*text*/) const override { return {}; }
    [[nodiscard]] QString decimalSeparator() const override { return {}; }
    [[nodiscard]] QString currencySymbol() const override { return {}; }
};

} // namespace

TEST(ExportNames, InFilesEverySlashIsABlankAndEveryCommaGoes) {
    const SlashedDates formats;
    EXPECT_EQ(formatFileNameDate(formats, test::utc(2024, 3, 1)), "Mar 1 2024 A D");
}

TEST(ExportNames, InMailsDatesAreAsTheLocaleWritesThem) {
    const SlashedDates formats;
    EXPECT_EQ(formatEmailNameDate(formats, test::utc(2024, 3, 1)), "Mar/1, 2024, A/D");
}

TEST(ExportNames, APeriodIsItsStartAndItsEnd) {
    const SlashedDates formats;
    test::MemorySettings settings;
    settings.setObject("filterStartDate", QVariant::fromValue(test::utc(2024, 3, 1)));
    settings.setObject("filterEndDate", QVariant::fromValue(test::utc(2024, 3, 31, 23, 59, 59)));
    EXPECT_EQ(periodName(settings, formats, formatFileNameDate),
              "Mar 1 2024 A D - Mar 31 2024 A D");
    settings.setObject("filterStartDate", "no date");
    EXPECT_EQ(periodName(settings, formats, formatFileNameDate), "(null) - Mar 31 2024 A D");
}

} // namespace quillet
