#include "backends/programs/CalendarPrograms.h"

#include "ScratchDesktop.h"

#include <QTimeZone>

namespace quillet {

namespace {

class FakeBus final : public CalendarBus {
public:
    [[nodiscard]] bool isRunning(const QString& service) const override {
        return isEvolutionRunning && service == u"org.gnome.Evolution";
    }
    [[nodiscard]] bool waitUntilRunning(const QString& service) const override {
        if (duringWait) {
            duringWait();
        }
        return doesEvolutionAnswer && service == u"org.gnome.Evolution";
    }
    std::expected<void, QString> showInGnomeCalendar(const EventPlace& place,
                                                     const QString& uid) override {
        calls.append("gnome " + place.serviceCalendar + ' ' + uid + ' ' +
                     (place.start ? place.start->toString(Qt::ISODate) : QString()) +
                     place.occurrence);
        return gnomeAnswer;
    }
    std::expected<void, QString> showInKdeCalendar(const QString& service, const QString& uid,
                                                   const std::optional<QDateTime>&) override {
        calls.append("kde " + service + ' ' + uid);
        return kdeAnswer;
    }

    /// What the user does while a program starts.
    std::function<void()> duringWait;
    bool isEvolutionRunning = true;
    bool doesEvolutionAnswer = true;
    QStringList calls;
    std::expected<void, QString> gnomeAnswer;
    std::expected<void, QString> kdeAnswer;
};

class FakePortal final : public DesktopPortal {
public:
    std::expected<void, QString> composeEmail(const QString&, const QString&) override {
        return {};
    }
    std::expected<void, QString> openAddress(const QString& address) override {
        opened.append(address);
        return {};
    }
    std::expected<void, QString> openFile(const QString& path) override {
        opened.append(path);
        return {};
    }

    QStringList opened;
};

const QString type = QStringLiteral("text/calendar");

class CalendarProgramsTest : public testing::Test {
protected:
    std::expected<void, QString> show(const QString& uid = "a \"b\"%20&c\n'$(d)") {
        if (!programs) {
            programs.emplace(CalendarPrograms::Collaborators{
                .applications = applications,
                .bus = bus,
                .alerts = alerts,
                .findEvent = [this](const EventRequest&) { return place; },
                .portal = sandbox});
        }
        return programs->show({"calendar", uid});
    }
    void installEvolution() {
        desktop.install("org.gnome.Evolution.desktop", "evolution %U",
                        "text/calendar;x-scheme-handler/calendar");
    }
    void installGnomeCalendar() {
        desktop.install("org.gnome.Calendar.desktop", "gnome-calendar %U", type);
    }
    void index(const QString& ids) {
        desktop.write("system/applications/mimeinfo.cache", "[MIME Cache]\ntext/calendar=" + ids);
    }
    void choose(const QString& id) {
        desktop.write("config/mimeapps.list", "[Default Applications]\ntext/calendar=" + id);
    }

    test::ScratchDesktop desktop;
    test::FakeTaskLauncher launcher;
    test::FakeAlerts alerts;
    FakeBus bus;
    FakePortal portal;
    DesktopPortal* sandbox = nullptr;
    Applications applications = test::ScratchDesktop::applications(launcher);
    EventPlace place{.serviceCalendar = "source 1",
                     .file = {},
                     .start = QDateTime(QDate(2024, 3, 6), QTime(10, 0), Qt::UTC)};
    std::optional<CalendarPrograms> programs;
};

} // namespace

TEST_F(CalendarProgramsTest, EvolutionShowsTheDayAndThenTheEventByTheirAddresses) {
    installEvolution();
    ASSERT_TRUE(show());
    EXPECT_EQ(desktop.started(1).value(0),
              (test::Started{desktop.path("bin/evolution"),
                             {"calendar:///?startdate=20240306",
                              "calendar:///?source-uid=source%201&comp-uid="
                              "a%20%22b%22%2520%26c%0A%27%24%28d%29"}}));
    EXPECT_TRUE(bus.calls.isEmpty());
}

TEST_F(CalendarProgramsTest, AnEvolutionThatDoesNotRunIsStartedBeforeItGetsTheAddress) {
    installEvolution();
    bus.isEvolutionRunning = false;
    ASSERT_TRUE(show("uid"));
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched[0].second, (QStringList{"-c", "calendar"}));
    EXPECT_EQ(desktop.started(1).value(0).arguments,
              (QStringList{"calendar:///?startdate=20240306",
                           "calendar:///?source-uid=source%201&comp-uid=uid"}));
    bus.doesEvolutionAnswer = false;
    EXPECT_EQ(show("uid").error(), QStringLiteral("Evolution does not answer"));
    EXPECT_EQ(launcher.launched.size(), 2);
    EXPECT_EQ(desktop.started(1).size(), 1);
}

TEST_F(CalendarProgramsTest, EvolutionIsNamedAnExceptionOfASeriesButNoOccurrenceOfTheRule) {
    installEvolution();
    place.start.reset();
    place.occurrence = "2024 03&06";
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(1).last().arguments,
              QStringList{"calendar:///?source-uid=source%201&comp-uid=uid"})
        << "it would find nothing";
    place.isException = true;
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(2).last().arguments,
              QStringList{"calendar:///?source-uid=source%201&comp-uid=uid"
                          "&comp-rid=2024%2003%2606"});
}

TEST_F(CalendarProgramsTest, AnEvolutionThatTakesOneAddressGetsThatOfTheEvent) {
    desktop.install("org.gnome.Evolution.desktop", "evolution %u", type);
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(1).front().arguments,
              QStringList{"calendar:///?source-uid=source%201&comp-uid=uid"});
}

TEST_F(CalendarProgramsTest, GnomeCalendarIsToldTheDayAsWell) {
    installEvolution();
    installGnomeCalendar();
    choose("org.gnome.Calendar.desktop");
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(bus.calls, QStringList{"gnome source 1 uid 2024-03-06T10:00:00Z"});
    EXPECT_TRUE(desktop.hasStartedNothing());
}

TEST_F(CalendarProgramsTest, TheUsersChoiceDecidesAmongProgramsThatCanShowOneEvent) {
    installEvolution();
    installGnomeCalendar();
    desktop.install("import.desktop", "import %u", type);
    index("import.desktop;org.gnome.Calendar.desktop;org.gnome.Evolution.desktop;");
    choose("org.gnome.Evolution.desktop");
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(1).front().program, desktop.path("bin/evolution"));
    EXPECT_TRUE(bus.calls.isEmpty());
    // One that could only import the event again is not asked.
    choose("import.desktop");
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(bus.calls.size(), 1);
    EXPECT_EQ(desktop.started(1).size(), 1);
}

TEST_F(CalendarProgramsTest, AProgramThatFailsLeavesItToTheNext) {
    installEvolution();
    installGnomeCalendar();
    index("org.gnome.Calendar.desktop;org.gnome.Evolution.desktop;");
    bus.gnomeAnswer = std::unexpected(QStringLiteral("no service"));
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(bus.calls.size(), 1);
    EXPECT_EQ(desktop.started(1).front().program, desktop.path("bin/evolution"));
    bus.isEvolutionRunning = false;
    launcher.answer = std::unexpected(QStringLiteral("no memory"));
    EXPECT_TRUE(show("uid").error().contains("cannot be run"));
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(CalendarProgramsTest, KdeProgramsAreAskedByTheirNamesAndAfterThoseOfTheService) {
    desktop.install("org.kde.korganizer.desktop", "korganizer %U", type);
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(bus.calls, QStringList{"kde org.kde.korganizer uid"});
    desktop.install("org.kde.merkuro.calendar.desktop", "merkuro-calendar %u", type);
    choose("org.kde.merkuro.calendar.desktop");
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(bus.calls.last(), QStringLiteral("kde org.kde.merkuro.calendar uid"));
    installGnomeCalendar();
    index("org.kde.korganizer.desktop;org.gnome.Calendar.desktop;");
    ASSERT_TRUE(show("uid"));
    EXPECT_TRUE(bus.calls.last().startsWith("gnome"));
}

TEST_F(CalendarProgramsTest, AKdeProgramThatDoesNotAnswerIsAtLeastStarted) {
    desktop.install("org.kde.kalendar.desktop", "kalendar %u", type);
    bus.kdeAnswer = std::unexpected(QStringLiteral("no such name"));
    ASSERT_TRUE(show("uid"));
    ASSERT_EQ(launcher.launched.size(), 1);
    EXPECT_EQ(launcher.launched.front().first, desktop.path("bin/kalendar"));
    EXPECT_EQ(launcher.launched.front().second, QStringList());
}

TEST_F(CalendarProgramsTest, AnEventOfAFileIsOpenedAsThatFile) {
    installGnomeCalendar();
    place = {.serviceCalendar = {}, .file = "/calendars/my work/it's 100%.ics", .start = {}};
    ASSERT_TRUE(show());
    EXPECT_EQ(desktop.started(1).front(), (test::Started{desktop.path("bin/gnome-calendar"),
                                                         {"/calendars/my work/it's 100%.ics"}}));
    EXPECT_TRUE(bus.calls.isEmpty());
}

TEST_F(CalendarProgramsTest, ThisProgramIsNeverAskedToOpenItsOwnFile) {
    desktop.install("org.example.This.desktop", "this %u", type);
    choose("org.example.This.desktop");
    place = {.serviceCalendar = {}, .file = "/a.ics", .start = {}};
    EXPECT_FALSE(show());
    EXPECT_TRUE(desktop.hasStartedNothing());
    installEvolution();
    ASSERT_TRUE(show());
    EXPECT_EQ(desktop.started(1).front().program, desktop.path("bin/evolution"));
}

TEST_F(CalendarProgramsTest, WithoutAnyCalendarProgramTheUserIsToldOnce) {
    EXPECT_EQ(show("uid").error(), QStringLiteral("no calendar program"));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown.front().messageText, QStringLiteral("No calendar program is set up"));
    place = {.serviceCalendar = {}, .file = "/a.ics", .start = {}};
    EXPECT_EQ(show("uid").error(), QStringLiteral("no calendar program"));
    EXPECT_EQ(alerts.shown.size(), 2U);
}

TEST_F(CalendarProgramsTest, ProgramsThatCouldOnlyImportTheEventAgainAreNone) {
    desktop.install("import.desktop", "import %u", type);
    EXPECT_EQ(show("uid").error(), QStringLiteral("no calendar program"));
    EXPECT_EQ(alerts.shown.size(), 1U);
    EXPECT_TRUE(desktop.hasStartedNothing());
}

TEST_F(CalendarProgramsTest, AnEventThatIsInNoPlaceIsNoMatterForTheUser) {
    installEvolution();
    place = {};
    EXPECT_FALSE(show());
    EXPECT_TRUE(desktop.hasStartedNothing());
    EXPECT_TRUE(alerts.shown.empty());
}

TEST_F(CalendarProgramsTest, InASandboxThePortalOpensAddressesAndFiles) {
    installEvolution();
    sandbox = &portal;
    ASSERT_TRUE(show("uid"));
    place = {.serviceCalendar = {}, .file = "/a b.ics", .start = {}};
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(portal.opened,
              (QStringList{"calendar:///?source-uid=source%201&comp-uid=uid", "/a b.ics"}));
    EXPECT_TRUE(desktop.hasStartedNothing());
}

TEST_F(CalendarProgramsTest, WhileAProgramStartsOnlyTheLastOfTheOtherWishesIsKept) {
    installEvolution();
    bus.isEvolutionRunning = false;
    bus.duringWait = [this] {
        bus.isEvolutionRunning = true;
        EXPECT_TRUE(show("impatient"));
        EXPECT_TRUE(show("another"));
        EXPECT_TRUE(show("last"));
        EXPECT_TRUE(desktop.hasStartedNothing()) << "nothing opens before Evolution runs";
    };
    ASSERT_TRUE(show("first"));
    QStringList opened;
    for (const test::Started& started : desktop.started(2)) {
        opened.append(started.arguments.last().section("comp-uid=", 1));
    }
    opened.sort();
    EXPECT_EQ(opened, (QStringList{"first", "last"}));
}

TEST_F(CalendarProgramsTest, TheSameEventAskedForTwiceWhileAProgramStartsIsOpenedOnce) {
    installEvolution();
    bus.isEvolutionRunning = false;
    bus.duringWait = [this] {
        bus.isEvolutionRunning = true;
        EXPECT_TRUE(show("other"));
        EXPECT_TRUE(show("uid"));
    };
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(1).size(), 1);
    ASSERT_TRUE(show("uid"));
    EXPECT_EQ(desktop.started(2).size(), 2) << "and again once it has been shown";
}

} // namespace quillet
