#pragma once

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "period/DateInspectorController.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <string>

namespace quillet::test {

/// A date inspector on a clock that stands at 15:00 UTC on 6 March 2024, a Wednesday.
class DateInspectorFixture : public testing::Test {
protected:
    void SetUp() override { useZone("UTC", "en_GB"); }

    /// Starts the program anew in another zone and locale; settings and clock stay. Where a former
    /// zone is named, the program remembers that its dates were stored in that one.
    void useZone(const char* zone, const char* locale, const char* formerZone = nullptr) {
        const QString localeName = QString::fromLatin1(locale);
        const QString zoneName = QString::fromLatin1(zone);
        controller.reset();
        gregorian = std::make_unique<IcuCalendarArithmetic>(localeName, zoneName,
                                                            CalendarSystem::Gregorian);
        current =
            std::make_unique<IcuCalendarArithmetic>(localeName, zoneName, CalendarSystem::OfLocale);
        formats =
            std::make_unique<IcuLocaleFormats>(LocaleNames{"en_US", "en_US", "en_US"}, zoneName);
        controller =
            std::make_unique<DateInspectorController>(DateInspectorController::Collaborators{
                settings, clock, *gregorian, *current, *formats});
        settings.setObject("isCalendarAccessGranted", true);
        if (formerZone != nullptr) {
            controller->moveDatesFrom(*ZoneRules::fromTimeZone(QTimeZone(formerZone)));
        }
        controller->awakeFromNib();
    }
    std::string day(Instant instant) const {
        const DateComponents fields = gregorian->components(instant);
        char text[32];
        (void)std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", fields.year,
                            fields.month, fields.day, fields.hour, fields.minute, fields.second);
        return text;
    }
    /// The published period, in local time.
    std::string period() const {
        return day(*dateForKey(settings, "filterStartDate")) + " - " +
               day(*dateForKey(settings, "filterEndDate"));
    }
    Instant local(int year, int month, int dayOfMonth) const {
        return gregorian->startOfDay(gregorian->instant({year, month, dayOfMonth, 12}));
    }
    void choose(PeriodKind kind, Instant anchor) {
        controller->setSelectedDate(anchor);
        settings.remove("quickDatePeriodPreviousValue");
        controller->choosePeriodKind(kind);
    }
    int triggerFlips() const {
        return static_cast<int>(settings.writes.count("datesChangedTrigger"));
    }

    test::MemorySettings settings;
    test::FakeClock clock{utc(2024, 3, 6, 15)};
    std::unique_ptr<IcuCalendarArithmetic> gregorian;
    std::unique_ptr<IcuCalendarArithmetic> current;
    std::unique_ptr<IcuLocaleFormats> formats;
    std::unique_ptr<DateInspectorController> controller;
};

} // namespace quillet::test
