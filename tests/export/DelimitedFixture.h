#pragma once

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnTable.h"
#include "export/DelimitedExport.h"
#include "support/EventSamples.h"
#include "support/ExpectedLog.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillet::test {

/// What the exports of separated values work on: March 2024 in UTC, at 100 dollars an hour.
class DelimitedFixture : public testing::Test {
protected:
    DelimitedFixture() {
        for (const char* key :
             {"isCSVHeader", "isCSVQuotesForTitle", "isCSVQuotesForNote", "isCSVQuotesForLocation",
              "isCSVQuotesForCalendar", "isSingleRate", "isDollarsOn"}) {
            settings.setObject(key, true);
        }
        settings.setObject("hourlyRate", 100);
        settings.setObject("timeTypeSelection", 1);
        settings.setObject("filterStartDate", QVariant::fromValue(utc(2024, 3, 1)));
        settings.setObject("filterEndDate", QVariant::fromValue(utc(2024, 3, 31, 23, 59, 59)));
        for (const EventColumn& column : eventColumns()) {
            column.title.writeIfAbsent(settings);
        }
        useLocale("en_US");
    }
    void useLocale(const char* locale) {
        const QString name = QString::fromLatin1(locale);
        formats = std::make_unique<IcuLocaleFormats>(LocaleNames{name, name, name}, "UTC");
        fields = std::make_unique<EventFields>(source, *formats, calendar, calendar);
    }
    /// Shows these columns alone, in the order in which the table holds them.
    void show(std::initializer_list<const char*> identifiers) {
        for (int position = 0; position < table.columnCount(); ++position) {
            table.columnAt(position).setHidden(true);
        }
        for (const char* identifier : identifiers) {
            table.column(identifier).setHidden(false);
        }
    }
    /// An event of the 4th, 9:00 to 10:30.
    void addEvent(EventDetails details) {
        if (!details.calendar) {
            details.calendar = calendarNamed("work");
        }
        details.eventIdentifier = "uid-1";
        events.push_back({utc(2024, 3, 4, 9), utc(2024, 3, 4, 10, 30), Instant(),
                          std::make_shared<const EventDetails>(std::move(details))});
        list.setContent(events);
    }
    void addEvent(const char* title, const char* notes = nullptr) {
        EventDetails details;
        details.title = QString::fromUtf8(title);
        details.notes = QString::fromUtf8(notes);
        addEvent(std::move(details));
    }
    [[nodiscard]] DelimitedExport::Collaborators collaborators() {
        return {settings, table, list, *fields, panel, progress};
    }
    [[nodiscard]] static QByteArray bytesOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    MemorySettings settings;
    ColumnTable table{settings};
    FakeSavePanel panel;
    FakeProgress progress;
    ListController<Event> list;
    EventList events;
    IcuCalendarArithmetic calendar{"en_US", "UTC", CalendarSystem::Gregorian};
    BillingSettingsSource source{settings, calendar};
    std::unique_ptr<IcuLocaleFormats> formats;
    std::unique_ptr<EventFields> fields;
};

} // namespace quillet::test
