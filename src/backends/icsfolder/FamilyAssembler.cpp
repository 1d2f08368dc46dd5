#include "backends/icsfolder/FamilyAssembler.h"

#include <QHash>

#include <algorithm>

namespace quillet {

using std::chrono::sys_seconds;

namespace {

void addExtras(Series& series, const RawEvent& master) {
    for (const RawEvent::Extra& extra : master.extras) {
        const LocalSeconds start = inZoneOf(master, extra.start);
        std::optional<EventLength> length = extra.length;
        if (extra.end) {
            const auto exact = extra.end->instant() - extra.start.instant();
            length = EventLength{std::chrono::days(0), std::max(exact, std::chrono::seconds(0))};
        }
        series.extras.push_back({start, length});
    }
}

void exclude(Exclusions& exclusions, const RawTime& time, const RawEvent& master) {
    if (time.kind == RawTime::Kind::Date || master.isAllDay()) {
        exclusions.days.push_back(std::chrono::floor<std::chrono::days>(inZoneOf(master, time)));
    } else if (time.kind == RawTime::Kind::Floating) {
        exclusions.instants.push_back(master.start->zone->toInstant(time.local));
    } else {
        exclusions.instants.push_back(time.instant());
    }
}

/// Whether no rule goes on to that time.
bool isBehindEnd(const std::vector<RecurrenceRule>& rules, LocalSeconds time) {
    return !rules.empty() && std::ranges::all_of(rules, [&](const RecurrenceRule& rule) {
        return rule.until && *rule.until < time;
    });
}

/// Exceptions that were made before the series was last changed, and that it no longer has.
void dropWhatIsOver(EventFamily& family, const RawEvent& master, const Series& series) {
    std::erase_if(family.exceptions, [&](const RawEvent* exception) {
        const LocalSeconds original = inZoneOf(master, *exception->recurrenceId);
        const auto isOriginal = [&](const Series::ExtraOccurrence& extra) {
            return extra.start == original;
        };
        const bool isOver = series.excluded.contain(original, series.zone->toInstant(original)) ||
                            (isBehindEnd(series.rules, original) && original != series.start &&
                             std::ranges::none_of(series.extras, isOriginal));
        return isOver && exception->version < master.version;
    });
}

} // namespace

QString identifierFor(const RawEvent& event) {
    return QStringLiteral("unnamed-%1-%2")
        .arg(event.start->instant().time_since_epoch().count())
        .arg(qHash(event.title, 0));
}

void FamilyAssembler::add(EventFamily& family) {
    family.keepWhatHolds();
    replaced_.clear();
    for (const RawEvent* master : family.masters) {
        addMaster(*master, family);
    }
    for (const RawEvent* exception : family.exceptions) {
        addException(*exception, family);
    }
}

void FamilyAssembler::addMaster(const RawEvent& master, EventFamily& family) {
    if (master.isCancelled) {
        return;
    }
    const bool recurs = !master.rules.empty() || !master.extras.empty();
    if (recurs || !master.exceptions.empty()) {
        addSeries(master, family);
        return;
    }
    const auto replaced = replacedBy(family, master);
    if (!replaced || !replaced->contain(master.start->local, master.start->instant())) {
        file_.events.push_back(eventFrom(master, sys_seconds(), {}));
    }
}

void FamilyAssembler::addSeries(const RawEvent& master, EventFamily& family) {
    auto series = std::make_shared<Series>();
    const bool recurs = !master.rules.empty() || !master.extras.empty();
    series->details =
        detailsFrom(master, recurs ? namesInSeries(*master.start) : OccurrenceNamesPointer());
    series->zone = master.start->zone;
    series->start = master.start->local;
    series->length = master.length();
    addRules(*series, master);
    addExtras(*series, master);
    for (const RawTime& exception : master.exceptions) {
        exclude(series->excluded, exception, master);
    }
    if (isBehindEnd(master.rules, series->start)) {
        // Programs delete a series by ending it before its start.
        series->excluded.instants.push_back(series->zone->toInstant(series->start));
    }
    series->excluded.sort();
    if (family.masters.size() == 1) {
        dropWhatIsOver(family, master, *series);
    }
    series->replaced = replacedBy(family, master);
    addVariations(*series, master, family);
    file_.series.push_back(std::move(series));
}

void FamilyAssembler::addException(const RawEvent& exception, const EventFamily& family) {
    if (!exception.isCancelled) {
        file_.events.push_back(eventFrom(exception, family.originalOf(exception),
                                         nameOfException(exception.recurrenceText)));
    }
}

void FamilyAssembler::addRules(Series& series, const RawEvent& master) {
    const auto addBounded = [&](const std::vector<RecurrenceRule>& rules,
                                std::vector<RecurrenceRule>& target) {
        for (const RecurrenceRule& rule : rules) {
            if (auto bounded = ruleWithoutCount(rule, series.start, budget_)) {
                target.push_back(*std::move(bounded));
            } else {
                complainOfRepetitions(master);
            }
        }
    };
    addBounded(master.rules, series.rules);
    addBounded(master.exceptionRules, series.exceptionRules);
}

void FamilyAssembler::addVariations(Series& series, const RawEvent& master,
                                    const EventFamily& family) {
    constexpr std::int64_t unitsPerVariation = 100;
    for (const RawEvent* moved : family.exceptions) {
        if (!moved->isThisAndFuture) {
            continue;
        }
        if (!budget_.spend(unitsPerVariation)) {
            complainOfRepetitions(master);
            break;
        }
        const LocalSeconds original = inZoneOf(master, *moved->recurrenceId);
        series.variations.push_back(
            {series.zone->toInstant(original), moved->start->local - original, moved->length(),
             moved->start->zone,
             moved->isCancelled ? nullptr : detailsFrom(*moved, series.details->occurrenceNames)});
    }
    std::ranges::stable_sort(series.variations, {}, &Series::Variation::from);
}

FamilyAssembler::SharedExclusions FamilyAssembler::replacedBy(const EventFamily& family,
                                                              const RawEvent& master) {
    if (family.exceptions.empty()) {
        return nullptr;
    }
    auto& shared = replaced_[{master.isAllDay(), master.start->zone.get()}];
    constexpr std::int64_t unitsPerExclusion = 10;
    if (!shared &&
        budget_.spend(unitsPerExclusion * static_cast<std::int64_t>(family.exceptions.size()))) {
        Exclusions exclusions;
        for (const RawEvent* exception : family.exceptions) {
            exclude(exclusions, *exception->recurrenceId, master);
        }
        exclusions.sort();
        shared = std::make_shared<const Exclusions>(std::move(exclusions));
    }
    return shared;
}

std::shared_ptr<const EventDetails>
FamilyAssembler::detailsFrom(const RawEvent& event, OccurrenceNamesPointer occurrenceNames) const {
    return std::make_shared<const EventDetails>(EventDetails{
        .calendar = calendar_,
        .title = event.title,
        .location = event.location,
        .notes = event.notes,
        .url = event.url,
        .eventIdentifier = event.uid.isEmpty() ? identifierFor(event) : event.uid,
        .isAllDay = event.isAllDay(),
        .occurrenceNames = std::move(occurrenceNames),
    });
}

Event FamilyAssembler::eventFrom(const RawEvent& event, sys_seconds occurrence,
                                 OccurrenceNamesPointer occurrenceNames) const {
    return {event.start->instant(), endOf(event.start->local, event.length(), *event.start->zone),
            occurrence, detailsFrom(event, std::move(occurrenceNames))};
}

void FamilyAssembler::complainOfRepetitions(const RawEvent& event) {
    file_.complain(complaintText({EventComplaint::Kind::TooManyRepetitions, {}, 0}, event.title,
                                 event.start->local));
}

} // namespace quillet
