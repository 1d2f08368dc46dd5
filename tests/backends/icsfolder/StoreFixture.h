#pragma once

#include "backends/icsfolder/IcsFolderStore.h"
#include "support/Fakes.h"
#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace quillet::test {

/// A store over a scratch folder in the zone of Berlin, with access granted.
class StoreFixture : public testing::Test {
protected:
    StoreFixture() {
        QDir(folder.path()).mkpath(QStringLiteral("root"));
        access.request([](bool, const std::optional<QString>&) {});
    }

    [[nodiscard]] QString rootPath() const { return folder.filePath(QStringLiteral("root")); }

    /// Writes a file below the root folder; folders come into being.
    void write(const QString& name, const QByteArray& content) const {
        const QString path = rootPath() + u'/' + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    /// A calendar file with these lines of one event.
    static QByteArray eventFile(const QByteArray& lines) {
        return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:one\r\n" + lines +
               "\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
    }

    /// At this hour UTC on days of March 2024.
    static std::vector<Instant> march(std::initializer_list<unsigned> days, int hour = 9) {
        std::vector<Instant> instants;
        for (const unsigned day : days) {
            instants.push_back(utc(2024, 3, day, hour));
        }
        return instants;
    }

    IcsFolderStore& open() {
        store = std::make_unique<IcsFolderStore>(rootPath(), access, zone,
                                                 folder.filePath(QStringLiteral("memory.json")));
        observation = store->observeChanges([this] { ++notices; });
        return *store;
    }

    [[nodiscard]] EventList eventsBetween(Instant from, Instant to) {
        if (!store) {
            open();
        }
        return store->events(store->calendars(), from, to);
    }

    /// A series from the 4th of March 2024 on.
    static inline const QByteArray fourDays =
        "SUMMARY:Daily\r\nDTSTART:20240304T090000Z\r\nDTEND:20240304T100000Z\r\n"
        "RRULE:FREQ=DAILY;COUNT=4";

    /// The starts of all events of 2020 to 2030.
    [[nodiscard]] std::vector<Instant> starts() {
        std::vector<Instant> instants;
        for (const Event& event : allEvents()) {
            instants.push_back(event.startDate);
        }
        return instants;
    }
    [[nodiscard]] EventList allEvents() { return eventsBetween(utc(2020, 1, 1), utc(2030, 1, 1)); }
    [[nodiscard]] QStringList titles() {
        QStringList found;
        for (const Event& event : allEvents()) {
            found.append(event.details->title);
        }
        return found;
    }

    QTemporaryDir folder;
    QTimeZone zone{"Europe/Berlin"};
    CalendarAccess access{folder.filePath(QStringLiteral("state")),
                          [](const CalendarAccess::Answer& answer) { answer(true); }};
    std::unique_ptr<IcsFolderStore> store;
    Observation observation;
    int notices = 0;
};

} // namespace quillet::test
