#pragma once

#include "backends/evolution/EvolutionStore.h"
#include "backends/evolution/Glib.h"
#include "backends/evolution/SourceDescription.h"
#include "support/Fakes.h"
#include "support/WaitUntil.h"

#include <libecal/libecal.h>

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <optional>

namespace quillet::test {

/// The real service in a scratch home, and a store over it with access granted. Floating times are
/// those of Berlin.
class ServiceFixture : public testing::Test {
protected:
    ServiceFixture();
    ~ServiceFixture() override;

    /// A local calendar of the service. The service chooses its identifier when none is given.
    ESource* addCalendar(const QString& title, const QByteArray& uid = {});
    ESource* addCalendar(const QString& title, const QByteArray& uid, const char* backend,
                         const std::function<void(ESource*)>& describe);
    /// A calendar that is there already.
    ESource* sourceNamed(const QString& uid);
    /// Gives up what the fixture holds of the service and would share with the store. Sources that
    /// it added are to be looked for again after meetService().
    void leaveService();
    void meetService();
    void commit(ESource* source) const;
    void remove(ESource* source);
    /// A connection to the calendar other than the store's.
    ECalClient* clientOf(ESource* source);
    /// Puts an event into the calendar that consists of these lines.
    void addEvent(ESource* source, const QByteArray& lines);
    void changeEvent(ESource* source, const QByteArray& lines, ECalObjModType what);
    void removeEvent(ESource* source, const char* uid, const char* recurrenceId,
                     ECalObjModType what);

    /// Puts a file behind a local calendar that is not there yet; the service reads it when it
    /// opens the calendar.
    static void writeCalendarFile(const QString& uid, const QByteArray& content);
    /// A file of so many events of one minute, one after the other, from the start of 2021.
    static void writeManyEvents(const QString& uid, int count);

    /// The processes of the service.
    [[nodiscard]] static std::optional<pid_t> processOf(const QByteArray& busName);
    [[nodiscard]] static std::optional<pid_t> factory();
    [[nodiscard]] static std::optional<pid_t> registryProcess();
    /// The one that holds the calendar's events.
    [[nodiscard]] pid_t holderOf(ESource* source);

    EvolutionStore& open();
    [[nodiscard]] QStringList calendarTitles() const;
    /// Of every event between two instants, by default of 2020 to 2030.
    [[nodiscard]] EventList events(Instant from = utc(2020, 1, 1), Instant to = utc(2030, 1, 1));
    [[nodiscard]] QStringList titles();
    [[nodiscard]] std::vector<Instant> starts();
    /// Until the store shows just these titles; false when it does not in time.
    [[nodiscard]] bool waitForTitles(const QStringList& expected, int milliseconds = 10000);
    [[nodiscard]] bool waitForCalendars(const QStringList& expected, int milliseconds = 10000);
    [[nodiscard]] QString problemOf(const QString& subject) const;

    QTemporaryDir folder;
    CalendarAccess access{folder.filePath(QStringLiteral("state")),
                          [](const CalendarAccess::Answer& answer) { answer(true); }};
    ServiceLimits limits;
    std::unique_ptr<EvolutionStore> store;
    Observation observation;
    int notices = 0;

private:
    ObjectPointer<ESourceRegistry> registry_;
    std::vector<ObjectPointer<ESource>> sources_;
    std::vector<std::pair<ESource*, ObjectPointer<ECalClient>>> clients_;
};

} // namespace quillet::test
