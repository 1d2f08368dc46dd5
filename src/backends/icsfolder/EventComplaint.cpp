#include "backends/icsfolder/EventComplaint.h"

#include "texts/Localized.h"

#include <QDate>

#include <algorithm>

namespace quillet {

namespace {

constexpr qsizetype longestShown = 60;

QString reasonFor(const EventComplaint& complaint) {
    using Kind = EventComplaint::Kind;
    switch (complaint.kind) {
    case Kind::Start:
        return localized("the start “%1” cannot be read; the event is left out");
    case Kind::End:
        return localized("the end “%1” cannot be read and does not count");
    case Kind::EndBeforeStart:
        return localized("the end “%1” is before the start; no time is counted to it");
    case Kind::Length:
        return localized("the length “%1” cannot be read and does not count");
    case Kind::NegativeLength:
        return localized("the length “%1” is below zero and counts as none");
    case Kind::TooLong:
        return localized("the length “%1” is over a hundred years and is cut to that");
    case Kind::RecurrenceId:
        return localized("which occurrence it replaces cannot be read (“%1”); the series is shown "
                         "without this change");
    case Kind::ExceptionDate:
        return localized("the left-out date “%1” cannot be read; what is on it is shown");
    case Kind::ExtraDate:
        return localized("the additional date “%1” cannot be read and is left out");
    case Kind::Rule:
        return localized("the repetition “%1” cannot be followed; only the first event is shown");
    case Kind::ExceptionRule:
        return localized("the exceptions “%1” cannot be followed; what they leave out is shown");
    case Kind::UncertainZone:
        return localized("the time zone is not certain; it was read as “%1”, which the calendar "
                         "names elsewhere");
    case Kind::TooManyRepetitions:
        return localized("the repetitions are too many to count; only the first event is shown");
    }
    return {};
}

QString placeOf(const EventComplaint& complaint, const QString& title,
                std::optional<LocalSeconds> start) {
    QString place = title.isEmpty() ? localized("event without a title")
                                    : QStringLiteral("“%1”").arg(title.left(longestShown));
    if (start) {
        const auto days = std::chrono::floor<std::chrono::days>(start->time_since_epoch());
        place = localized("%1 of %2")
                    .arg(place, QDate(1970, 1, 1).addDays(days.count()).toString(Qt::ISODate));
    }
    return complaint.line == 0
               ? place
               : localized("%1, line %2").arg(place, QString::number(complaint.line));
}

} // namespace

QString shownValue(std::string_view text) {
    // Cut before it is decoded: a value may be as long as a file.
    constexpr std::size_t longestBytes = 4 * longestShown;
    const QString decoded = QString::fromUtf8(text.substr(0, longestBytes)).simplified();
    return decoded.size() > longestShown ? decoded.left(longestShown - 1) + u'…' : decoded;
}

QString complaintText(const EventComplaint& complaint, const QString& title,
                      std::optional<LocalSeconds> start) {
    QString reason = reasonFor(complaint);
    if (reason.contains(QStringLiteral("%1"))) {
        reason = reason.arg(complaint.value);
    }
    return localized("%1: %2. Please correct it in your calendar program.")
        .arg(placeOf(complaint, title, start), reason);
}

} // namespace quillet
