#include "insight/FindingTexts.h"

#include "eventdata/EventFigures.h"
#include "texts/Localized.h"

#include <QCryptographicHash>

namespace quillet {

namespace {

using std::chrono::milliseconds;

/// By which keys that are kept name a rule; never changed.
const char* nameOf(FindingKind kind) {
    switch (kind) {
    case FindingKind::StoreProblem:
        return "store-problem";
    case FindingKind::SameEventInTwoCalendars:
        return "same-event";
    case FindingKind::SameTitleAtOnce:
        return "same-title";
    case FindingKind::Overlap:
        return "overlap";
    case FindingKind::ZeroLength:
        return "zero-length";
    case FindingKind::EndsBeforeItBegins:
        return "negative-length";
    case FindingKind::LongerThanWorkingDay:
        return "long";
    case FindingKind::ClippedByPeriod:
        return "clipped";
    case FindingKind::AllDay:
        return "all-day";
    case FindingKind::AcrossClockChange:
        return "clock-change";
    case FindingKind::CalendarWithoutRate:
        return "without-rate";
    case FindingKind::WeekendHours:
        return "weekend";
    case FindingKind::NightHours:
        return "night";
    case FindingKind::HolidayHours:
        return "holiday";
    case FindingKind::FormulaTitle:
        break;
    }
    return "formula";
}

/// A title, cut where it would make the sentence unreadable.
QString shortTitle(const QString& title) {
    constexpr qsizetype longest = 80;
    return title.size() <= longest ? title : title.first(longest) + QChar(0x2026);
}

/// Says what a finding saw.
class Sentence {
public:
    Sentence(const Finding& finding, const FindingsInput& input, const LocaleFormats& formats)
        : finding_(finding)
        , input_(input)
        , formats_(formats) {}

    [[nodiscard]] QString text() const {
        switch (finding_.kind) {
        case FindingKind::StoreProblem: {
            const StoreProblem& problem = input_.problems[finding_.problem];
            return QStringLiteral("%1: %2").arg(problem.subject, problem.reason);
        }
        case FindingKind::SameEventInTwoCalendars:
        case FindingKind::SameTitleAtOnce:
        case FindingKind::Overlap:
            return textOfTwo();
        case FindingKind::CalendarWithoutRate:
            return textOfCalendar();
        default:
            return textOfOne();
        }
    }

private:
    [[nodiscard]] const Event& event() const {
        return input_.insight.events[finding_.events.back()];
    }
    [[nodiscard]] QString title() const { return shortTitle(event().details->title); }
    /// A span in whole minutes, as a duration text.
    [[nodiscard]] QString duration(milliseconds span) const {
        return timeText(std::chrono::round<std::chrono::minutes>(span).count(), TimeUnit::Duration,
                        formats_);
    }
    /// What the event counts.
    [[nodiscard]] QString counted() const {
        return timeText(billableMinutes(event(), input_.insight.billing), TimeUnit::Duration,
                        formats_);
    }
    [[nodiscard]] QString textOfTwo() const {
        const EventDetails& earlier = *input_.insight.events[finding_.events.front()].details;
        if (finding_.kind == FindingKind::SameEventInTwoCalendars) {
            return localized("“%1” is in the calendars “%2” and “%3”")
                .arg(title(), shortTitle(earlier.calendar->title),
                     shortTitle(event().details->calendar->title));
        }
        if (finding_.kind == FindingKind::SameTitleAtOnce) {
            return localized("“%1” is there twice at once, for %2")
                .arg(title(), duration(finding_.time));
        }
        return localized("“%1” and “%2” overlap for %3")
            .arg(shortTitle(earlier.title), title(), duration(finding_.time));
    }
    [[nodiscard]] QString textOfCalendar() const {
        const QString calendar = shortTitle(event().details->calendar->title);
        return billableRate(event(), input_.insight.billing).isNaN()
                   ? localized("the calendar “%1” has no rate, others have one").arg(calendar)
                   : localized("the calendar “%1” has the rate 0, others have more").arg(calendar);
    }
    [[nodiscard]] QString textOfOne() const {
        switch (finding_.kind) {
        case FindingKind::ZeroLength:
            return localized("“%1” has no length").arg(title());
        case FindingKind::EndsBeforeItBegins:
            return localized("“%1” ends before it begins").arg(title());
        case FindingKind::LongerThanWorkingDay:
            return localized("“%1” lasts %2, longer than a working day of %3")
                .arg(title(), duration(event().endDate - event().startDate),
                     duration(input_.rules.workingDay));
        case FindingKind::ClippedByPeriod:
            return textOfClipped();
        case FindingKind::AllDay:
            return localized("“%1” lasts all day and counts %2").arg(title(), counted());
        case FindingKind::AcrossClockChange:
            return localized("the clock changes during “%1”; %2 count").arg(title(), counted());
        case FindingKind::FormulaTitle:
            return localized("a spreadsheet would take the title “%1” for a formula").arg(title());
        default:
            return textOfTime();
        }
    }
    [[nodiscard]] QString textOfClipped() const {
        const auto [start, end] = billedSpan(event(), input_.insight.billing);
        return localized("the period cuts “%1”: %2 of %3 count")
            .arg(title(), duration(end - start), duration(event().endDate - event().startDate));
    }
    [[nodiscard]] QString textOfTime() const {
        const QString time = duration(finding_.time);
        switch (finding_.kind) {
        case FindingKind::WeekendHours:
            return localized("“%1” has %2 on a weekend").arg(title(), time);
        case FindingKind::NightHours:
            return localized("“%1” has %2 at night").arg(title(), time);
        default:
            return localized("“%1” has %2 on a holiday").arg(title(), time);
        }
    }

    const Finding& finding_;
    const FindingsInput& input_;
    const LocaleFormats& formats_;
};

void addTo(QCryptographicHash& hash, const QString& text) {
    hash.addData(text.toUtf8());
    hash.addData(QByteArrayView("\0", 1));
}

void addTo(QCryptographicHash& hash, Instant instant) {
    addTo(hash, QString::number(instant.time_since_epoch().count()));
}

} // namespace

QString findingSentence(const Finding& finding, const FindingsInput& input,
                        const LocaleFormats& formats) {
    return Sentence(finding, input, formats).text();
}

QString findingKey(const Finding& finding, const FindingsInput& input) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const EventIndex index : finding.events) {
        const Event& event = input.insight.events[index];
        addTo(hash, event.details->calendar->calendarIdentifier);
        addTo(hash, event.details->eventIdentifier);
        addTo(hash, event.details->title);
        addTo(hash, event.occurrenceDate);
        addTo(hash, event.startDate);
        addTo(hash, event.endDate);
    }
    if (finding.kind == FindingKind::StoreProblem) {
        addTo(hash, input.problems[finding.problem].subject);
        addTo(hash, input.problems[finding.problem].reason);
    }
    return QStringLiteral("%1-%2").arg(QString::fromLatin1(nameOf(finding.kind)),
                                       QString::fromLatin1(hash.result().toHex()));
}

std::vector<Finding> withoutSetAside(std::vector<Finding> findings, const FindingsInput& input,
                                     const QSet<QString>& setAside) {
    if (!setAside.isEmpty()) {
        std::erase_if(findings, [&](const Finding& finding) {
            return setAside.contains(findingKey(finding, input));
        });
    }
    return findings;
}

} // namespace quillet
