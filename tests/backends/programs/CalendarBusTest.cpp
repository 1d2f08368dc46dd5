#include "backends/programs/CalendarBus.h"

#include "ScratchDesktop.h"
#include "support/PrivateBus.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QTimer>

namespace quillet {

using namespace std::chrono_literals;

/// What KDE's calendar programs offer on the bus.
class KdeCalendar : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.calendar.Calendar")

public:
    QStringList calls;

public Q_SLOTS:
    void showIncidenceByUid(const QString& uid, const QDateTime& day, const QString& token) {
        calls << uid << day.toString(Qt::ISODate) << token << message().signature();
    }
};

namespace {

const QString gnome = QStringLiteral("org.gnome.Calendar");
const QString evolution = QStringLiteral("org.gnome.Evolution");
const QDateTime start(QDate(2024, 3, 6), QTime(10, 0));

/// Counts the turns that the window's event loop takes while something is waited for.
class Heartbeat {
public:
    Heartbeat() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { ++beats; });
        timer_.start(10ms);
        elapsed.start();
    }
    int beats = 0;
    QElapsedTimer elapsed;

private:
    QTimer timer_;
};

class CalendarBusTest : public testing::Test {
protected:
    CalendarBusTest() { qputenv("PATH", QFile::encodeName(desktop.path("bin")) + ":" + path_); }
    ~CalendarBusTest() override { qputenv("PATH", path_); }

    /// A program that writes down each of its arguments and then goes on with those commands.
    void installGnomeCalendar(const QString& commands) {
        desktop.addExecutable("gnome-calendar");
        desktop.write("bin/gnome-calendar", "#!/bin/sh\nprintf '%s\\n' \"$@\" >>" +
                                                desktop.path("arguments") + "\n" + commands + "\n");
        ASSERT_TRUE(other.registerService(gnome));
    }
    static EventPlace placeIn(const QString& serviceCalendar,
                              const std::optional<QDateTime>& day = {}) {
        return {.serviceCalendar = serviceCalendar, .file = {}, .start = day};
    }
    QStringList arguments() {
        QFile file(desktop.path("arguments"));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

    test::ScratchDesktop desktop;
    test::PrivateBus daemon;
    QDBusConnection other = daemon.connection();
    /// So patient that a busy machine still gives the heart its beats.
    SessionCalendarBus bus{daemon.connection(), 1200ms};

private:
    QByteArray path_ = qgetenv("PATH");
};

} // namespace

TEST_F(CalendarBusTest, TheWindowLivesWhileAProgramStarts) {
    SessionCalendarBus patient(daemon.connection(), 10s);
    EXPECT_FALSE(patient.isRunning(evolution));
    Heartbeat heart;
    QTimer::singleShot(1s, [this] { other.registerService(evolution); });
    EXPECT_TRUE(patient.waitUntilRunning(evolution));
    EXPECT_GE(heart.beats, 10);
    EXPECT_LT(heart.elapsed.elapsed(), 3000) << "no longer than the program takes";
    EXPECT_TRUE(patient.isRunning(evolution));
    heart.elapsed.restart();
    EXPECT_TRUE(patient.waitUntilRunning(evolution));
    EXPECT_LT(heart.elapsed.elapsed(), 200);
}

TEST_F(CalendarBusTest, AProgramThatNeverComesIsWaitedForWithALiveWindowAndNotForEver) {
    Heartbeat heart;
    EXPECT_FALSE(bus.waitUntilRunning(evolution));
    EXPECT_GE(heart.beats, 10);
    EXPECT_GE(heart.elapsed.elapsed(), 1190);
    EXPECT_LT(heart.elapsed.elapsed(), 3000);
}

TEST_F(CalendarBusTest, AServiceThatStartsAndSaysNothingIsWaitedForWithALiveWindow) {
    daemon.addService(gnome, "/bin/sleep 60");
    Heartbeat heart;
    EXPECT_FALSE(bus.showInGnomeCalendar(placeIn("source", start), "uid"));
    EXPECT_GE(heart.beats, 10);
    EXPECT_LT(heart.elapsed.elapsed(), 3000);
}

TEST_F(CalendarBusTest, GnomeCalendarIsToldTheDayAndThenTheEvent) {
    installGnomeCalendar("exit 0");
    const auto shown = bus.showInGnomeCalendar(placeIn("source 1", start), "a \"b\"%20$(d)");
    ASSERT_TRUE(shown) << qPrintable(shown.error());
    EXPECT_EQ(arguments(),
              (QStringList{"--date", "03/06/2024 10:00", "--uuid", "source 1:a \"b\"%20$(d)"}));
}

TEST_F(CalendarBusTest, GnomeCalendarKnowsAnOccurrenceByItsOwnNameAlone) {
    installGnomeCalendar("exit 0");
    EventPlace place = placeIn("source");
    place.occurrence = "20240306T100000";
    ASSERT_TRUE(bus.showInGnomeCalendar(place, "uid"));
    place.isException = true;
    ASSERT_TRUE(bus.showInGnomeCalendar(place, "uid"));
    EXPECT_EQ(arguments(), (QStringList{"--uuid", "source:uid:20240306T100000", "--uuid",
                                        "source:uid:20240306T100000"}));
}

TEST_F(CalendarBusTest, WhatGnomeCalendarMissesIsTheReason) {
    EXPECT_TRUE(bus.showInGnomeCalendar(placeIn("s"), "u").error().contains(gnome))
        << "nobody has the name";
    installGnomeCalendar("exit 3");
    EXPECT_EQ(bus.showInGnomeCalendar(placeIn("s", start), "u").error(),
              QStringLiteral("gnome-calendar ended with 3"));
    EXPECT_EQ(arguments(), (QStringList{"--date", "03/06/2024 10:00"})) << "and no more is tried";
    installGnomeCalendar("exec sleep 60");
    Heartbeat heart;
    EXPECT_EQ(bus.showInGnomeCalendar(placeIn("s"), "u").error(),
              QStringLiteral("gnome-calendar does not answer"));
    EXPECT_GE(heart.beats, 10);
    EXPECT_LT(heart.elapsed.elapsed(), 3000);
    qputenv("PATH", "/nonexistent");
    EXPECT_FALSE(bus.showInGnomeCalendar(placeIn("s"), "u").error().isEmpty());
}

TEST_F(CalendarBusTest, KdeProgramsGetTheEventInTheFormThatTheyDeclare) {
    KdeCalendar calendar;
    ASSERT_TRUE(other.registerService("org.kde.korganizer"));
    ASSERT_TRUE(other.registerObject("/Calendar", &calendar, QDBusConnection::ExportAllSlots));
    const auto shown = bus.showInKdeCalendar("org.kde.korganizer", "a'b", start);
    ASSERT_TRUE(shown) << qPrintable(shown.error());
    EXPECT_EQ(calendar.calls, (QStringList{"a'b", "2024-03-06T10:00:00", "", "s((iii)(iiii)i)s"}));
    EXPECT_FALSE(bus.showInKdeCalendar("org.kde.kalendar", "a'b", start)) << "not installed";
}

TEST_F(CalendarBusTest, ABusThatEndsWhileAProgramIsWaitedForEndsNothingElse) {
    QTimer::singleShot(50ms, [this] { daemon.end(); });
    EXPECT_FALSE(bus.waitUntilRunning(evolution));
    EXPECT_FALSE(bus.waitUntilRunning(evolution));
    EXPECT_FALSE(bus.showInGnomeCalendar(placeIn("s"), "u"));
}

TEST(NoCalendarBusTest, WithoutASessionBusNothingIsShownAndTheReasonSaid) {
    SessionCalendarBus bus;
    const auto gnomeResult = bus.showInGnomeCalendar({}, "b");
    ASSERT_FALSE(gnomeResult);
    EXPECT_EQ(gnomeResult.error(), QStringLiteral("there is no session bus"));
    EXPECT_FALSE(bus.showInKdeCalendar("org.kde.korganizer", "b", {}));
    EXPECT_FALSE(bus.isRunning(evolution));
    EXPECT_FALSE(bus.waitUntilRunning(evolution));
}

TEST(NoCalendarBusTest, DatesAreWrittenAsTheProgramReadsThemInEnglish) {
    EXPECT_EQ(gnomeCalendarDate(QDateTime(QDate(2024, 3, 6), QTime(9, 5))),
              QStringLiteral("03/06/2024 09:05"));
}

} // namespace quillet

#include "CalendarBusTest.moc"
