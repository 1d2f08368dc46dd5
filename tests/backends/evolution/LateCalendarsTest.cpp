#include "backends/combined/CalendarMemory.h"
#include "backends/evolution/ServiceFixture.h"

namespace quillet::test {

namespace {

const QByteArray meeting = "UID:meeting\r\nDTSTART:20240301T090000Z\r\nDTEND:20240301T100000Z\r\n"
                           "SUMMARY:Meeting";
const QByteArray party = "UID:party\r\nDTSTART:20240302T190000Z\r\nDTEND:20240302T220000Z\r\n"
                         "SUMMARY:Party";

/// The service comes to the bus a moment before the calendars of its accounts do.
class LateCalendarsTest : public ServiceFixture {
protected:
    void remember(const QString& uid, const QString& title) const {
        CalendarMemory(folder.filePath(QStringLiteral("state/desktop-calendars.json")))
            .keep({std::make_shared<const StoreCalendar>(
                StoreCalendar{calendarIdentifierFor(uid), title, {}})});
    }
};

TEST_F(LateCalendarsTest, stayListedUntilTheServiceHasThemAfterItsStart) {
    remember("late", "Late");
    ESource* present = addCalendar(QStringLiteral("Present"), "present");
    addEvent(present, meeting);
    limits.settling = std::chrono::hours(1);
    open();
    ASSERT_TRUE(waitForTitles({"Meeting"}));
    EXPECT_TRUE(waitForCalendars({"Present", "Late"}));

    addEvent(addCalendar(QStringLiteral("Late"), "late"), party);
    ASSERT_TRUE(waitForTitles({"Meeting", "Party"}));
    EXPECT_TRUE(waitForCalendars({"Late", "Present"}));
}

TEST_F(LateCalendarsTest, doNotKeepThoseThatTheUserRemoves) {
    remember("never", "Late");
    ESource* present = addCalendar(QStringLiteral("Present"));
    limits.settling = std::chrono::hours(1);
    open();
    ASSERT_TRUE(waitForCalendars({"Present", "Late"}));
    remove(present);
    EXPECT_TRUE(waitForCalendars({"Late"}));
}

TEST_F(LateCalendarsTest, areForgottenWhenTheyDoNotCome) {
    remember("gone", "Gone");
    addCalendar(QStringLiteral("Present"));
    limits.settling = std::chrono::milliseconds(100);
    open();
    ASSERT_TRUE(waitForCalendars({"Present"}));
    store.reset();
    open();
    EXPECT_EQ(calendarTitles(), QStringList({"Present"}));
}

} // namespace

} // namespace quillet::test
