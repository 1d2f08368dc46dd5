#include "backends/icsfolder/ZoneNames.h"

#include "StoreFixture.h"

#include <QDateTime>

namespace quillet {

namespace {

using test::utc;

/// Hours ahead of universal time in January and in July, or that the name means nothing.
std::string hoursOf(const QTimeZone& zone) {
    if (!zone.isValid()) {
        return "nothing";
    }
    const auto hours = [&](int month) {
        const QDateTime time(QDate(2024, month, 1), QTime(12, 0), Qt::UTC);
        return QString::number(zone.offsetFromUtc(time) / 3600.0).toStdString();
    };
    return hours(1) + ' ' + hours(7);
}

struct Name {
    const char* written;
    const char* hours;
};

} // namespace

TEST(ZoneNamesTest, DisplayNamesAreReadByTheirPlaces) {
    for (const auto& [written, hours] : {
             Name{"(UTC+01:00) Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna", "1 2"},
             Name{"(UTC+01:00) Amsterdam\\, Berlin\\, Bern\\, Rome\\, Stockholm\\, Vienna", "1 2"},
             Name{"(GMT+01:00) Amsterdam / Berlin / Bern / Rome / Stockholm / Vienna", "1 2"},
             Name{"(GMT+01.00) Amsterdam / Berlin / Bern / Rome / Stockholm / Vienna", "1 2"},
             Name{"(UTC+01:00) Belgrade, Bratislava, Budapest, Ljubljana, Prague", "1 2"},
             Name{"(UTC+01:00) Brussels, Copenhagen, Madrid, Paris", "1 2"},
             Name{"(UTC+01:00) West Central Africa", "1 1"},
             Name{"(UTC+00:00) Dublin, Edinburgh, Lisbon, London", "0 1"},
             Name{"(UTC) Dublin, Edinburgh, Lisbon, London", "0 1"},
             Name{"(GMT) Greenwich Mean Time : Dublin, Edinburgh, Lisbon, London", "0 1"},
             Name{"(UTC+00:00) Monrovia, Reykjavik", "0 0"},
             Name{"(UTC) Coordinated Universal Time", "0 0"},
             Name{"(UTC-02:00) Coordinated Universal Time-02", "-2 -2"},
             Name{"(UTC+02:00) Athens, Bucharest", "2 3"},
             Name{"(UTC+02:00) Helsinki, Kyiv, Riga, Sofia, Tallinn, Vilnius", "2 3"},
             Name{"(UTC+03:00) Moscow, St. Petersburg", "3 3"},
             Name{"(UTC+04:00) Abu Dhabi, Muscat", "4 4"},
             Name{"(UTC+05:30) Chennai, Kolkata, Mumbai, New Delhi", "5.5 5.5"},
             Name{"(UTC+08:00) Beijing, Chongqing, Hong Kong, Urumqi", "8 8"},
             Name{"(UTC+09:00) Osaka, Sapporo, Tokyo", "9 9"},
             Name{"(UTC+10:00) Canberra, Melbourne, Sydney", "11 10"},
             Name{"(UTC+12:00) Auckland, Wellington", "13 12"},
             Name{"(UTC-05:00) Eastern Time (US & Canada)", "-5 -4"},
             Name{"(UTC-05.00) Eastern Time (US and Canada)", "-5 -4"},
             Name{"(UTC-06:00) Central Time (US & Canada)", "-6 -5"},
             Name{"(UTC-07:00) Mountain Time (US & Canada)", "-7 -6"},
             Name{"(UTC-08:00) Pacific Time (US & Canada)", "-8 -7"},
             Name{"(UTC-08:00) Pacific Time (US & Canada); Tijuana", "-8 -7"},
             Name{"(UTC-04:00) Atlantic Time (Canada)", "-4 -3"},
             Name{"(UTC-07:00) Arizona", "-7 -7"},
             Name{"(UTC-06:00) Guadalajara, Mexico City, Monterrey", "-6 -6"},
             Name{"(UTC-05:00) Bogota, Lima, Quito, Rio Branco", "-5 -5"},
             Name{"(UTC-04:00) Georgetown, La Paz, Manaus, San Juan", "-4 -4"},
             Name{"(UTC-03:00) Brasilia", "-3 -3"},
             Name{"(UTC-03:00) City of Buenos Aires", "-3 -3"},
             Name{"(UTC-03:30) Newfoundland", "-3.5 -2.5"},
             Name{"(UTC-09:00) Alaska", "-9 -8"},
             Name{"(UTC-10:00) Hawaii", "-10 -10"},
         }) {
        EXPECT_EQ(hoursOf(zoneNamed(QByteArray(written))), hours) << written;
    }
}

TEST(ZoneNamesTest, ThePlacesAndTheOffsetMustAgree) {
    for (const char* name : {"(UTC+01:00) Tokyo", "(UTC-05:00) Pacific Time (US & Canada)",
                             "(UTC+01:00) Nowhere, Neverland", "(UTC+25:00) Berlin"}) {
        EXPECT_FALSE(zoneNamed(name).isValid()) << name;
    }
}

TEST(ZoneNamesTest, OffsetsAreZonesWhoseClocksNeverChange) {
    for (const auto& [written, hours] :
         {Name{"GMT+0100", "1 1"}, Name{"UTC+1", "1 1"}, Name{"+01:00", "1 1"},
          Name{"-0330", "-3.5 -3.5"}, Name{"GMT+01.00", "1 1"}, Name{"UTC-11", "-11 -11"},
          Name{"(UTC+05:45)", "5.75 5.75"}, Name{"GMT +2", "2 2"}, Name{"gmt", "0 0"},
          Name{"UTC+00:00", "0 0"}}) {
        EXPECT_EQ(hoursOf(zoneNamed(QByteArray(written))), hours) << written;
    }
    for (const char* name : {"GMT+", "+", "+1:2", "UTC+15", "GMT+01:00:00", "1", "+12345"}) {
        EXPECT_FALSE(zoneNamed(QByteArray(name)).isValid()) << name;
    }
}

TEST(ZoneNamesTest, TwoOffsetsAreTheZoneThatHasBoth) {
    for (const auto& [written, hours] :
         {Name{"GMT -0500 (Standard) / GMT -0400 (Daylight)", "-5 -4"},
          Name{"GMT -0800 (Standard) / GMT -0700 (Daylight)", "-8 -7"},
          Name{"GMT +0100 (Standard) / GMT +0200 (Daylight)", "1 2"},
          Name{"GMT +0900 (Standard) / GMT +1200 (Daylight)", "nothing"}}) {
        EXPECT_EQ(hoursOf(zoneNamed(QByteArray(written))), hours) << written;
    }
}

TEST(ZoneNamesTest, NamesInOtherSignsAndLettersAreKnown) {
    for (const auto& [written, hours] :
         {Name{"US-Eastern", "-5 -4"}, Name{"US-Pacific", "-8 -7"}, Name{"W. Europe", "1 2"},
          Name{"W. Europe Daylight Time", "1 2"}, Name{"w. europe standard time", "1 2"},
          Name{"EUROPE/BERLIN", "1 2"}, Name{"asia/calcutta", "5.5 5.5"},
          Name{"us/eastern", "-5 -4"}, Name{"America/New York", "-5 -4"},
          Name{"Eastern Daylight Time", "-5 -4"}, Name{"GMT Standard Time", "0 1"},
          Name{"/vendor/America/Argentina/Buenos_Aires", "-3 -3"}}) {
        EXPECT_EQ(hoursOf(zoneNamed(QByteArray(written))), hours) << written;
    }
}

TEST(ZoneNamesTest, NamesThatMayMeanSeveralZonesMeanNoneByThemselves) {
    for (const char* name : {"CEST", "PST", "BST", "IST", "Berlin", "", "   ", "\\", "()", "/",
                             "////", "(UTC", "UTC)+01:00("}) {
        EXPECT_FALSE(zoneNamed(QByteArray(name)).isValid()) << name;
    }
    EXPECT_FALSE(zoneNamed(QByteArray(100'000, '/')).isValid());
}

TEST(ZoneNamesTest, WhatElseTheFileSaysTellsWhichOneIsMeant) {
    const QTimeZone berlin("Europe/Berlin");
    const QTimeZone vienna("Europe/Vienna");
    const QTimeZone london("Europe/London");
    const QTimeZone manila("Asia/Manila");
    const QTimeZone losAngeles("America/Los_Angeles");
    EXPECT_EQ(zoneNamed("CEST", {london, berlin}), berlin);
    EXPECT_EQ(zoneNamed("BST", {berlin, london}), london);
    EXPECT_EQ(zoneNamed("PST", {losAngeles}), losAngeles);
    EXPECT_EQ(zoneNamed("PST", {manila}), manila);
    EXPECT_EQ(zoneNamed("Berlin", {vienna}), vienna);
    EXPECT_FALSE(zoneNamed("Berlin", {london}).isValid());
    EXPECT_FALSE(zoneNamed("CEST", {losAngeles}).isValid());
    EXPECT_FALSE(zoneNamed("CEST", QList<QTimeZone>()).isValid());
}

class ZoneNamesInFilesTest : public test::StoreFixture {};

TEST_F(ZoneNamesInFilesTest, displayNamesStandForTheirZones) {
    zone = QTimeZone("Asia/Tokyo");
    for (const char* name : {"\"(UTC+01:00) Amsterdam, Berlin, Bern, Rome, Stockholm, Vienna\"",
                             "(UTC+01.00) Amsterdam / Berlin / Bern", "W. Europe",
                             "\"(UTC+01:00) Amsterdam\\, Berlin\"", "europe/berlin"}) {
        store.reset();
        write(QStringLiteral("a.ics"),
              eventFile("DTSTART;TZID=" + QByteArray(name) + ":20240701T120000"));
        EXPECT_EQ(starts(), std::vector<Instant>({utc(2024, 7, 1, 10)})) << name;
        EXPECT_TRUE(store->problems().empty()) << name;
    }
}

TEST_F(ZoneNamesInFilesTest, anUncertainNameIsReadByWhatTheFileSaysElsewhereAndTold) {
    zone = QTimeZone("Asia/Tokyo");
    write(QStringLiteral("a.ics"),
          "BEGIN:VCALENDAR\r\nX-WR-TIMEZONE:Europe/Berlin\r\nBEGIN:VEVENT\r\nUID:one\r\n"
          "SUMMARY:Visit\r\nDTSTART;TZID=CEST:20240701T120000\r\n"
          "DTEND;TZID=CEST:20240701T130000\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    EXPECT_EQ(starts(), std::vector<Instant>({utc(2024, 7, 1, 10)}));
    ASSERT_EQ(store->problems().size(), 1U);
    const StoreProblem problem = store->problems().front();
    EXPECT_EQ(problem.subject, QStringLiteral("a.ics"));
    for (const char* part : {"Visit", "2024-07-01", "CEST", "Europe/Berlin"}) {
        EXPECT_TRUE(problem.reason.contains(QString::fromLatin1(part)))
            << part << " in " << problem.reason.toStdString();
    }
}

TEST_F(ZoneNamesInFilesTest, anUncertainNameThatTheFileContradictsIsUnknown) {
    zone = QTimeZone("Asia/Tokyo");
    write(QStringLiteral("a.ics"),
          "BEGIN:VCALENDAR\r\nX-WR-TIMEZONE:America/New_York\r\nBEGIN:VEVENT\r\nUID:one\r\n"
          "DTSTART;TZID=CEST:20240701T120000\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    EXPECT_EQ(starts(), std::vector<Instant>({utc(2024, 7, 1, 3)}));
    ASSERT_EQ(store->problems().size(), 1U);
    EXPECT_EQ(store->problems().front().reason,
              QStringLiteral("unknown time zone “CEST”, taken as local time"));
}

} // namespace quillet
