#pragma once

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "export/TextReport.h"
#include "support/EventSamples.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <numeric>
#include <utility>

namespace quillet {

/// What a report is made of, with the period March 2024.
class TextReportFixture : public testing::Test {
protected:
    TextReportFixture() {
        content.periodStart = test::utc(2024, 3, 1);
        content.periodEnd = test::utc(2024, 3, 31, 23, 59, 59);
        useZone("UTC");
    }
    void useZone(const char* zone, const char* locale = "en_US") {
        const QString name = QString::fromLatin1(locale);
        calendar = std::make_unique<IcuCalendarArithmetic>(name, zone, CalendarSystem::Gregorian);
        formats = std::make_unique<IcuLocaleFormats>(LocaleNames{name, name, name}, zone);
        content.formats = formats.get();
        content.calendar = calendar.get();
    }
    void show(std::initializer_list<std::pair<const char*, qsizetype>> columns) {
        content.columns.clear();
        for (const auto& [identifier, length] : columns) {
            content.columns.push_back({.identifier = QString::fromLatin1(identifier),
                                       .title = QString::fromLatin1(identifier),
                                       .length = length});
        }
    }
    void add(Instant start, Instant end, EventDetails details) {
        if (!details.calendar) {
            details.calendar = test::calendarNamed("Work");
        }
        events.push_back(
            {start, end, Instant(), std::make_shared<const EventDetails>(std::move(details))});
        std::vector<std::size_t> rows(events.size());
        std::iota(rows.begin(), rows.end(), std::size_t{0});
        content.events = ExportedEvents(std::make_shared<const EventList>(events), rows);
    }
    /// On the fourth of March, from nine o'clock UTC.
    void add(int minutes, const QString& title = "Meeting") {
        const Instant start = test::utc(2024, 3, 4, 9);
        EventDetails details;
        details.title = title;
        add(start, start + std::chrono::minutes(minutes), std::move(details));
    }
    void useSingleRate(int rate) {
        content.billing.isMoneyOn = true;
        content.billing.singleRate = Decimal::fromInteger(rate);
        content.hourlyRate = Decimal::fromInteger(rate);
    }

    std::unique_ptr<IcuCalendarArithmetic> calendar;
    std::unique_ptr<IcuLocaleFormats> formats;
    EventList events;
    TextReportContent content;
};

} // namespace quillet
