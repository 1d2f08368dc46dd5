#pragma once

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventdata/EventFigures.h"
#include "eventdata/EventTotals.h"
#include "insight/Amounts.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace quillet::test {

/// Events, settings, calendar and formats of one place.
struct Place {
    explicit Place(const QString& zone = QStringLiteral("UTC"),
                   const QString& locale = QStringLiteral("en_US"))
        : ownCalendar(std::make_shared<const IcuCalendarArithmetic>(locale, zone,
                                                                    CalendarSystem::Gregorian))
        , ownFormats(
              std::make_shared<const IcuLocaleFormats>(LocaleNames{locale, locale, locale}, zone)) {
        billing.isMoneyOn = true;
        billing.isMoneyFromHours = true;
        billing.singleRate = Decimal::fromInteger(100);
    }
    [[nodiscard]] InsightInput input() const {
        return {.events = events, .billing = billing, .calendar = calendar};
    }
    /// A local time.
    [[nodiscard]] Instant at(int year, int month, int day, int hour = 0, int minute = 0) const {
        return calendar.instant({year, month, day, hour, minute, 0, 1});
    }
    /// Both days belong to the period.
    void setPeriod(Instant firstDay, Instant lastDay) {
        billing.periodStart = calendar.startOfDay(firstDay);
        billing.periodEnd = calendar.startOfDay(lastDay) + std::chrono::hours(24);
    }
    void setRate(const char* calendarIdentifier, const Decimal& rate) {
        billing.isSingleRate = false;
        billing.calendarRates.insert(QString::fromLatin1(calendarIdentifier), rate);
    }
    void add(Instant start, int minutes, const char* calendarIdentifier = "work",
             const char* title = "Meeting") {
        events.push_back(timedEvent(start, start + std::chrono::minutes(minutes),
                                    QString::fromLatin1(calendarIdentifier),
                                    QString::fromUtf8(title)));
    }
    void addAllDay(Instant firstDay, int days, const char* calendarIdentifier = "work") {
        events.push_back(allDayEvent(firstDay, calendar.add(firstDay, {.days = days}),
                                     QString::fromLatin1(calendarIdentifier)));
    }
    [[nodiscard]] EventTotals totals() const {
        EventTotals totals(billing);
        for (const Event& event : events) {
            totals.add(event);
        }
        return totals;
    }

    std::shared_ptr<const IcuCalendarArithmetic> ownCalendar;
    std::shared_ptr<const IcuLocaleFormats> ownFormats;
    const CalendarArithmetic& calendar = *ownCalendar;
    const LocaleFormats& formats = *ownFormats;
    BillingSettings billing;
    EventList events;
};

/// The texts of numbers, so that a failure tells them.
[[nodiscard]] inline std::string textOf(const Decimal& value) {
    return value.toString().toStdString();
}

[[nodiscard]] inline std::string textOf(const std::optional<Decimal>& value) {
    return value ? textOf(*value) : "none";
}

/// March 2024 with any events in and around it, timed and all-day, in four calendars of which one
/// may lack a rate, with any settings.
[[nodiscard]] inline Place anyMonth() {
    const auto zone =
        *rc::gen::element<std::string>("UTC", "Europe/Berlin", "America/New_York", "Asia/Kolkata");
    Place place(QString::fromStdString(zone));
    place.setPeriod(place.at(2024, 3, 1), place.at(2024, 3, 31));
    place.billing.isMoneyOn = *rc::gen::arbitrary<bool>();
    place.billing.isMoneyFromHours = *rc::gen::arbitrary<bool>();
    place.billing.allDayHours = *rc::gen::inRange(0, 25);
    const Decimal hundred = Decimal::fromInteger(100);
    for (const char* each : {"work", "home", "clients"}) {
        place.setRate(each, Decimal::fromInteger(*rc::gen::inRange(0, 20'000)) / hundred);
    }
    place.billing.isSingleRate = *rc::gen::arbitrary<bool>();
    const int count = *rc::gen::inRange(0, 12);
    for (int number = 0; number < count; ++number) {
        const auto calendar = *rc::gen::element<std::string>("work", "home", "clients");
        const Instant start =
            place.at(2024, 2, 25) + std::chrono::seconds(*rc::gen::inRange(0, 40 * 86'400));
        const auto length = std::chrono::seconds(*rc::gen::element(
            0, 60, 2700, 5400, 30'000, 86'400, 300'000, *rc::gen::inRange(-9000, 900'000)));
        const auto title = *rc::gen::element<std::string>("Plan", "Call", "");
        if (*rc::gen::arbitrary<bool>()) {
            place.events.push_back(timedEvent(start, start + length,
                                              QString::fromStdString(calendar),
                                              QString::fromStdString(title)));
        } else {
            place.addAllDay(place.calendar.startOfDay(start), *rc::gen::inRange(1, 9),
                            calendar.c_str());
        }
    }
    return place;
}

} // namespace quillet::test
