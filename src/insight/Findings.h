#pragma once

#include "insight/Amounts.h"
#include "platform/EventStore.h"

#include <QSet>
#include <QString>

#include <chrono>
#include <span>
#include <vector>

namespace quillet {

/// What is worth a look before the report goes out, one kind for each rule. None of them guesses:
/// each says what it saw.
enum class FindingKind {
    /// What a store could not read or follow: a calendar, a file, a zone, a repetition.
    StoreProblem,
    /// One entry in two calendars: the same identifier and occurrence, at the same time.
    SameEventInTwoCalendars,
    /// Two events of one title at once.
    SameTitleAtOnce,
    /// Two events at once in calendars that are billed, all-day ones with all-day ones alone.
    Overlap,
    ZeroLength,
    EndsBeforeItBegins,
    /// A timed event longer than the working day.
    LongerThanWorkingDay,
    /// A part of the event lies outside the period.
    ClippedByPeriod,
    /// An all-day event counts for as many hours as the settings say.
    AllDay,
    /// The clock changes while the event lasts.
    AcrossClockChange,
    /// Money is on, and the calendar has no rate or the rate 0 while another one has more.
    CalendarWithoutRate,
    WeekendHours,
    NightHours,
    /// Hours on a day that the calendar of holidays marks.
    HolidayHours,
    /// A title that a spreadsheet would take for a formula.
    FormulaTitle,
};

inline size_t qHash(FindingKind kind, size_t seed = 0) {
    return ::qHash(static_cast<int>(kind), seed);
}

/// What the user sets about the rules; hours are local times of day.
struct FindingRules {
    /// Timed events that last longer are found.
    std::chrono::minutes workingDay{600};
    /// From here until midnight, and from midnight until the next, is night.
    std::chrono::minutes nightStart{22 * 60};
    std::chrono::minutes nightEnd{6 * 60};
    /// Rules that are not wanted.
    QSet<FindingKind> switchedOff;
};

struct Finding {
    FindingKind kind = FindingKind::StoreProblem;
    /// The events that it is about, the one that was seen last at the end; none for what a store
    /// could not read.
    std::vector<EventIndex> events;
    /// How long events last together, or how much of one falls on the weekend, the holiday or the
    /// night; 0 for other kinds.
    std::chrono::milliseconds time{0};
    /// Which of FindingsInput::problems it is, for what a store could not read.
    std::size_t problem = 0;
};

struct FindingsInput {
    InsightInput insight;
    const FindingRules& rules;
    /// Of the calendar of holidays, around the period; ticked or not.
    std::span<const Event> holidays;
    /// What the stores tell of themselves.
    std::span<const StoreProblem> problems;
};

/// Everything worth a look, kind by kind in the order of FindingKind, and in order of time.
[[nodiscard]] std::vector<Finding> findingsOf(const FindingsInput& input);

/// Whether a spreadsheet would take the text for a formula: it begins with "=", "+", "-" or "@",
/// with a tab or a line break.
[[nodiscard]] bool looksLikeFormula(QStringView text);

} // namespace quillet
