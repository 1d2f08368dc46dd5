#include "backends/icsfolder/StoreFixture.h"

namespace quillet::test {

namespace {

constexpr int patientMilliseconds = 20'000;

/// A root folder that gives way to a file and comes back.
class RootOutOfReachTest : public StoreFixture {
protected:
    RootOutOfReachTest() {
        write(QStringLiteral("work.ics"),
              eventFile("SUMMARY:Lunch\r\nDTSTART:20240304T110000Z\r\nDTEND:20240304T120000Z"));
    }

    void takeAway() const {
        ASSERT_TRUE(QDir().rename(rootPath(), keptPath()));
        QFile file(rootPath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void bringBack() const {
        ASSERT_TRUE(QFile::remove(rootPath()));
        ASSERT_TRUE(QDir().rename(keptPath(), rootPath()));
    }
    [[nodiscard]] QString keptPath() const { return folder.filePath(QStringLiteral("kept")); }
    [[nodiscard]] QStringList identifiers() const {
        QStringList found;
        for (const auto& calendar : store->calendars()) {
            found.append(calendar->calendarIdentifier);
        }
        return found;
    }
    [[nodiscard]] bool waitForLunch() {
        return waitUntil([this] { return titles() == QStringList({"Lunch"}); },
                         patientMilliseconds);
    }
};

TEST_F(RootOutOfReachTest, listsTheCalendarsOfTheLastRunUntilTheRootIsBack) {
    open();
    ASSERT_TRUE(waitForLunch());
    const QStringList known = identifiers();
    ASSERT_EQ(known.size(), 1);
    store.reset();
    takeAway();
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_EQ(identifiers(), known);
    EXPECT_EQ(store->calendars().front()->title, QStringLiteral("work"));
    EXPECT_TRUE(titles().isEmpty());
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems().front().subject, rootPath());
    notices = 0;
    bringBack();
    ASSERT_TRUE(waitForLunch());
    EXPECT_EQ(identifiers(), known);
    EXPECT_TRUE(waitUntil([this] { return notices > 0; }));
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(RootOutOfReachTest, keepsEverythingWhenTheRootGoesAwayMeanwhile) {
    open();
    ASSERT_TRUE(waitForLunch());
    takeAway();
    EXPECT_TRUE(waitUntil([this] { return !store->problems().empty(); }, patientMilliseconds));
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_EQ(titles(), QStringList({"Lunch"}));
    bringBack();
    EXPECT_TRUE(waitUntil([this] { return store->problems().empty(); }, patientMilliseconds));
    EXPECT_EQ(titles(), QStringList({"Lunch"}));
}

TEST_F(RootOutOfReachTest, forgetsCalendarsThatWereRemovedFromTheRoot) {
    open();
    ASSERT_TRUE(waitForLunch());
    ASSERT_TRUE(QFile::remove(rootPath() + QStringLiteral("/work.ics")));
    ASSERT_TRUE(waitUntil([this] { return identifiers().isEmpty(); }, patientMilliseconds));
    store.reset();
    takeAway();
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Restricted);
}

TEST_F(RootOutOfReachTest, makesARootAnewThatTheUserDeleted) {
    open();
    ASSERT_TRUE(waitForLunch());
    store.reset();
    ASSERT_TRUE(QDir(rootPath()).removeRecursively());
    open();
    EXPECT_EQ(store->authorizationStatus(), AuthorizationStatus::Authorized);
    EXPECT_TRUE(identifiers().isEmpty());
    EXPECT_TRUE(store->problems().empty());
}

} // namespace

} // namespace quillet::test
