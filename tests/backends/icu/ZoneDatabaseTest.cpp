#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"

#include "support/Fakes.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quillet {

namespace {

using test::utc;

QDateTime inZone(const QTimeZone& zone, Instant instant) {
    return QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), zone);
}

Instant toInstant(const QDateTime& time) {
    return Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));
}

DateComponents fieldsOf(const QDateTime& local) {
    return {.year = local.date().year(),
            .month = local.date().month(),
            .day = local.date().day(),
            .hour = local.time().hour(),
            .minute = local.time().minute(),
            .second = local.time().second(),
            .weekday = local.date().dayOfWeek() % 7 + 1};
}

const LocaleNames german{"de_DE", "de_DE", "de_DE"};

/// A calendar and formats in one zone.
struct Zoned {
    explicit Zoned(const QTimeZone& timeZone)
        : zone(std::make_shared<UserTimeZone>(timeZone)) {}

    std::shared_ptr<UserTimeZone> zone;
    IcuCalendarArithmetic calendar{"de_DE", zone, CalendarSystem::Gregorian};
    IcuLocaleFormats formats{german, zone};
};

void expectAgreement(const QTimeZone& zone, Instant instant) {
    const Zoned program(zone);
    const QDateTime local = inZone(zone, instant);
    SCOPED_TRACE(local.toString(Qt::ISODate).toStdString() + ' ' + zone.id().toStdString());
    EXPECT_EQ(program.calendar.components(instant), fieldsOf(local));
    EXPECT_EQ(program.formats.shortTime(instant), local.toString(QStringLiteral("HH:mm")));
    EXPECT_EQ(program.formats.shortDate(instant), local.toString(QStringLiteral("dd.MM.yy")));
    EXPECT_EQ(program.calendar.startOfDay(instant), toInstant(local.date().startOfDay(zone)));
}

} // namespace

TEST(ZoneDatabaseTest, CountriesThatChangedTheirRulesLatelyHaveTheNewOnes) {
    struct Case {
        const char* zone;
        Instant instant;
        const char* shown;
    };
    for (const auto& [zone, instant, shown] :
         {Case{"America/Mexico_City", utc(2024, 6, 3, 15), "09:00"},
          Case{"America/Ciudad_Juarez", utc(2024, 6, 3, 15), "09:00"},
          Case{"Africa/Cairo", utc(2024, 6, 3, 6), "09:00"},
          Case{"Asia/Almaty", utc(2024, 6, 3, 4), "09:00"},
          Case{"America/Nuuk", utc(2024, 6, 3, 10), "09:00"},
          Case{"America/Nuuk", utc(2024, 1, 3, 11), "09:00"},
          Case{"America/Asuncion", utc(2025, 6, 3, 12), "09:00"}}) {
        const IcuLocaleFormats formats(german, zone);
        EXPECT_EQ(formats.shortTime(instant), QString::fromLatin1(shown)) << zone;
        const IcuCalendarArithmetic calendar("de_DE", zone, CalendarSystem::Gregorian);
        EXPECT_EQ(calendar.components(instant).hour, 9) << zone;
        expectAgreement(QTimeZone(zone), instant);
    }
}

TEST(ZoneDatabaseTest, EveryZoneOfTheSystemIsTheSystems) {
    const QList<QByteArray> names = QTimeZone::availableTimeZoneIds();
    ASSERT_GT(names.size(), 300);
    for (const QByteArray& name : names) {
        const QTimeZone zone(name);
        const Zoned program(zone);
        for (int year = 1975; year < 2060; year += year < 2020 ? 9 : 1) {
            for (int month = 1; month <= 12; month += 3) {
                const Instant instant = utc(year, month, 1 + (year + month) % 27, month, 29);
                const QDateTime local = inZone(zone, instant);
                ASSERT_EQ(program.calendar.components(instant), fieldsOf(local))
                    << name.toStdString() << ' ' << year << '-' << month;
                ASSERT_EQ(program.formats.shortTime(instant),
                          local.toString(QStringLiteral("HH:mm")))
                    << name.toStdString() << ' ' << year << '-' << month;
            }
        }
    }
}

TEST(ZoneDatabaseTest, DaysBeginWhereTheSystemHasThemBegin) {
    for (const char* name : {"America/Mexico_City", "Africa/Cairo", "America/Asuncion",
                             "America/Nuuk", "America/Havana", "Asia/Beirut", "Pacific/Apia"}) {
        const QTimeZone zone(name);
        const Zoned program(zone);
        for (QDate day(2009, 1, 1); day < QDate(2030, 1, 1); day = day.addDays(1)) {
            const QDateTime afternoon(day, QTime(15, 0), zone);
            // A zone may leave out a whole date.
            if (inZone(zone, toInstant(afternoon)).date() != day) {
                continue;
            }
            const Instant start = program.calendar.startOfDay(toInstant(afternoon));
            ASSERT_EQ(inZone(zone, start).date(), day) << name;
            ASSERT_LT(inZone(zone, start - std::chrono::seconds(1)).date(), day)
                << name << ' ' << day.toString(Qt::ISODate).toStdString();
        }
    }
}

TEST(ZoneDatabaseTest, AZoneThatOnlyTheSystemKnowsIsFollowed) {
    const QTimeZone zone(7620);
    ASSERT_TRUE(zone.isValid());
    expectAgreement(zone, utc(2024, 3, 1, 23, 30));
    const Zoned program(zone);
    EXPECT_EQ(program.formats.shortTime(utc(2024, 3, 1, 23, 30)), QStringLiteral("01:37"));
}

TEST(ZoneDatabaseTest, AChangeOfTheZoneReachesWhoeverHasIt) {
    const Zoned program(QTimeZone("Europe/Berlin"));
    const ZoneRules& former = program.zone->rules();
    program.zone->change(QTimeZone("America/New_York"));
    EXPECT_EQ(program.formats.shortTime(utc(2024, 3, 1, 12)), QStringLiteral("07:00"));
    EXPECT_EQ(program.calendar.startOfDay(utc(2024, 3, 1, 12)), utc(2024, 3, 1, 5));
    EXPECT_EQ(former.offsetAt(std::chrono::sys_days(std::chrono::year(2024) / 3 / 1)),
              std::chrono::hours(1));
}

TEST(ZoneDatabaseTest, NoSourceAsksAnotherSetOfZoneRules) {
    // ICU, the C++ library and libical bring tables of their own, of another year than the
    // system's, and in a country that changed its rules since, hours would be billed wrongly.
    const QRegularExpression other(QStringLiteral(
        "createTimeZone\\b|createDefault\\b|detectHostTimeZone|adoptTimeZone|adoptDefault|ucal_"
        "open|"
        "zoned_time|locate_zone|current_zone|get_tzdb|icaltimezone_get_builtin|"
        "icaltimezone_convert_time|icaltime_as_timet_with_zone|i_cal_timezone_get_builtin|"
        "e_cal_util_get_system_timezone"));
    int sources = 0;
    QDirIterator files(QStringLiteral(QUILLET_SOURCES), {"*.cpp", "*.h"}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        ++sources;
        const auto found = other.match(QString::fromUtf8(file.readAll()));
        EXPECT_FALSE(found.hasMatch())
            << file.fileName().toStdString() << " has " << found.captured().toStdString();
    }
    EXPECT_GT(sources, 100);
}

} // namespace quillet
