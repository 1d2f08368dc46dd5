#include "insight/Findings.h"

#include "insight/FindingTexts.h"
#include "insight/InsightFixture.h"

namespace quillet {

namespace {

using test::Place;
using test::utc;

/// A month without anything to find, to which a test adds what it looks for.
struct Checked : Place {
    explicit Checked(const QString& zone = QStringLiteral("UTC"))
        : Place(zone) {
        setPeriod(at(2024, 3, 1), at(2024, 3, 31));
    }
    [[nodiscard]] FindingsInput findingsInput() const {
        return {.insight = input(), .rules = rules, .holidays = holidays, .problems = problems};
    }
    [[nodiscard]] std::vector<Finding> findings() const { return findingsOf(findingsInput()); }
    [[nodiscard]] QString sentence(const Finding& finding) const {
        return findingSentence(finding, findingsInput(), formats);
    }
    /// The sentences of one kind, a line each.
    [[nodiscard]] std::string sentences(FindingKind kind) const {
        QStringList found;
        for (const Finding& finding : findings()) {
            if (finding.kind == kind) {
                found.append(sentence(finding));
            }
        }
        return found.join(u'\n').toStdString();
    }

    FindingRules rules;
    EventList holidays;
    std::vector<StoreProblem> problems;
};

} // namespace

TEST(FindingsTest, ThereIsNothingToFindInAPlainWeek) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 60, "work", "Plan");
    place.add(utc(2024, 3, 4, 10), 60, "work", "Call");
    place.add(utc(2024, 3, 5, 9), 600, "work", "Plan");
    EXPECT_TRUE(place.findings().empty());
    place.events.clear();
    EXPECT_TRUE(place.findings().empty());
}

TEST(FindingsTest, EventsThatOverlapAreNamedWithHowLong) {
    Checked place;
    place.add(utc(2024, 3, 4, 11), 60, "home", "Call");
    place.add(utc(2024, 3, 4, 9), 150, "work", "Plan");
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].kind, FindingKind::Overlap);
    EXPECT_EQ(place.sentence(findings[0]), "“Plan” and “Call” overlap for 0h 30m");
    EXPECT_EQ(findings[0].events, (std::vector<EventIndex>{1, 0}));
}

TEST(FindingsTest, OverlapsWithACalendarThatIsNotBilledAreNone) {
    Checked place;
    place.setRate("work", Decimal::fromInteger(10));
    place.setRate("home", Decimal());
    place.add(utc(2024, 3, 4, 9), 60, "work", "Plan");
    place.add(utc(2024, 3, 4, 9), 60, "home", "Call");
    EXPECT_EQ(place.sentences(FindingKind::Overlap), "");
    place.billing.isMoneyOn = false;
    EXPECT_EQ(place.sentences(FindingKind::Overlap), "“Plan” and “Call” overlap for 1h");
}

TEST(FindingsTest, ALongEventIsPairedWithEachThatBeginsMeanwhile) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 480, "work", "All");
    place.add(utc(2024, 3, 4, 9, 30), 10, "work", "One");
    place.add(utc(2024, 3, 4, 11), 10, "work", "Two");
    place.addAllDay(utc(2024, 3, 4), 1);
    EXPECT_EQ(place.sentences(FindingKind::Overlap),
              "“All” and “One” overlap for 0h 10m\n“All” and “Two” overlap for 0h 10m");
}

TEST(FindingsTest, OneEntryInTwoCalendarsIsSaidOnce) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 60, "work", "Plan");
    place.add(utc(2024, 3, 4, 9), 60, "home", "Plan");
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].kind, FindingKind::SameEventInTwoCalendars);
    EXPECT_EQ(place.sentence(findings[0]), "“Plan” is in the calendars “work” and “home”");
}

TEST(FindingsTest, OneTitleTwiceAtOnceIsSaidOnce) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 60, "work", "Plan");
    place.add(utc(2024, 3, 4, 9, 30), 60, "work", "Plan");
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].kind, FindingKind::SameTitleAtOnce);
    EXPECT_EQ(place.sentence(findings[0]), "“Plan” is there twice at once, for 0h 30m");
}

TEST(FindingsTest, LengthsAreLookedAt) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 0, "work", "Nothing");
    place.add(utc(2024, 3, 5, 9), -30, "work", "Back");
    place.add(utc(2024, 3, 6, 9), 601, "work", "Long");
    EXPECT_EQ(place.sentences(FindingKind::ZeroLength), "“Nothing” has no length");
    EXPECT_EQ(place.sentences(FindingKind::EndsBeforeItBegins), "“Back” ends before it begins");
    EXPECT_EQ(place.sentences(FindingKind::LongerThanWorkingDay),
              "“Long” lasts 10h 1m, longer than a working day of 10h");
    place.rules.switchedOff = {FindingKind::LongerThanWorkingDay, FindingKind::ZeroLength};
    EXPECT_EQ(place.findings().size(), 1);
}

TEST(FindingsTest, WhatThePeriodCutsAndWhatLastsAllDayIsSaidWithWhatCounts) {
    Checked place;
    place.billing.allDayHours = 8;
    place.addAllDay(utc(2024, 2, 29), 2);
    EXPECT_EQ(place.sentences(FindingKind::ClippedByPeriod),
              "the period cuts “Away”: 24h of 48h count");
    EXPECT_EQ(place.sentences(FindingKind::AllDay), "“Away” lasts all day and counts 8h");
}

TEST(FindingsTest, AClockChangeIsSeenOnlyByWhatLastsThroughIt) {
    Checked place("Europe/Berlin");
    place.add(place.at(2024, 3, 31, 0, 30), 60, "work", "Before");
    place.add(place.at(2024, 3, 31, 1, 30), 60, "work", "Through");
    place.add(place.at(2024, 3, 31, 9), 60, "work", "After");
    EXPECT_EQ(place.sentences(FindingKind::AcrossClockChange),
              "the clock changes during “Through”; 1h count");
}

TEST(FindingsTest, ACalendarWithoutARateIsSaidWhereOthersHaveOne) {
    Checked place;
    place.setRate("work", Decimal::fromInteger(10));
    place.setRate("home", Decimal());
    place.add(utc(2024, 3, 4, 9), 60, "home", "a");
    place.add(utc(2024, 3, 4, 10), 60, "club", "b");
    EXPECT_EQ(place.sentences(FindingKind::CalendarWithoutRate), "") << "no other has one";
    place.add(utc(2024, 3, 4, 11), 60, "work", "c");
    place.add(utc(2024, 3, 4, 12), 60, "home", "d");
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(place.sentence(findings[0]), "the calendar “club” has no rate, others have one");
    EXPECT_EQ(place.sentence(findings[1]), "the calendar “home” has the rate 0, others have more");
    EXPECT_EQ(findings[1].events, (std::vector<EventIndex>{0, 3}));
}

TEST(FindingsTest, WeekendsNightsAndHolidaysAreSaidWithTheirHours) {
    Checked place;
    place.add(utc(2024, 3, 1, 23), 180, "work", "Late");
    place.add(utc(2024, 3, 4, 5, 30), 60, "work", "Early");
    place.add(utc(2024, 3, 5, 12), 60, "work", "Noon");
    place.holidays = {test::allDayEvent(utc(2024, 3, 5), utc(2024, 3, 6), "off")};
    place.addAllDay(utc(2024, 3, 5), 1, "off");
    EXPECT_EQ(place.sentences(FindingKind::WeekendHours), "“Late” has 2h on a weekend");
    EXPECT_EQ(place.sentences(FindingKind::NightHours),
              "“Late” has 3h at night\n“Early” has 0h 30m at night");
    EXPECT_EQ(place.sentences(FindingKind::HolidayHours), "“Noon” has 1h on a holiday")
        << "the calendar of holidays itself is left alone";
}

TEST(FindingsTest, WhatTheStoresTellComesFirst) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 0);
    place.problems = {{.subject = "work.ics", .reason = "ends in the middle"}};
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(place.sentence(findings[0]), "work.ics: ends in the middle");
    EXPECT_TRUE(findings[0].events.empty());
}

TEST(FindingsTest, FormulasAreKnownByTheirFirstCharacter) {
    for (const QString text : {"=1+1", "+49 30", "-5", "@SUM(A1)", "\tx", "\rx"}) {
        EXPECT_TRUE(looksLikeFormula(text)) << text.toStdString();
    }
    for (const QString text : {"", "a=1", " =1", "1-2"}) {
        EXPECT_FALSE(looksLikeFormula(text)) << text.toStdString();
    }
    Checked place;
    place.add(utc(2024, 3, 4, 9), 60, "work", "=A1");
    EXPECT_EQ(place.sentences(FindingKind::FormulaTitle),
              "a spreadsheet would take the title “=A1” for a formula");
}

TEST(FindingsTest, WhatIsSetAsideComesBackWhenTheEventChanges) {
    Checked place;
    place.add(utc(2024, 3, 4, 9), 0, "work", "Nothing");
    const auto findings = place.findings();
    ASSERT_EQ(findings.size(), 1);
    const QSet<QString> setAside{findingKey(findings[0], place.findingsInput())};
    EXPECT_TRUE(withoutSetAside(findings, place.findingsInput(), setAside).empty());
    EXPECT_TRUE(setAside.values().front().startsWith("zero-length-"));
    place.events[0].startDate += std::chrono::minutes(15);
    place.events[0].endDate = place.events[0].startDate;
    EXPECT_EQ(withoutSetAside(place.findings(), place.findingsInput(), setAside).size(), 1);
}

TEST(FindingsTest, BearsWhatNobodyKeepsInACalendar) {
    Checked place;
    place.add(utc(1990, 1, 1), 40 * 366 * 24 * 60, "work", "forty years");
    for (int number = 0; number < 10'000; ++number) {
        place.add(utc(2024, 3, 4, 9), 60, QByteArray::number(number).constData(), "at once");
    }
    auto details = std::make_shared<EventDetails>(*place.events.front().details);
    details->title = QString(1 << 20, u'=');
    place.events.front().details = details;
    const auto findings = place.findings();
    EXPECT_EQ(std::ranges::count(findings, FindingKind::SameEventInTwoCalendars, &Finding::kind),
              9'999);
    EXPECT_EQ(std::ranges::count(findings, FindingKind::Overlap, &Finding::kind), 1);
    EXPECT_LT(place.sentence(findings.back()).size(), 200) << "no title is told in a megabyte";
}

} // namespace quillet
