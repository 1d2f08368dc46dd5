#include "backends/icsfolder/EventAssembly.h"

#include "backends/icsfolder/OccurrenceNaming.h"
#include "texts/Localized.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace quillet {

using std::chrono::sys_seconds;

namespace {

/// Everything in a file that bears one UID.
struct Family {
    std::vector<const RawEvent*> masters;
    std::vector<const RawEvent*> overrides;
};

/// Events that no file names need a name as well, and one that lasts.
QString identifierFor(const RawEvent& event) {
    return QStringLiteral("unnamed-%1-%2")
        .arg(event.start->instant().time_since_epoch().count())
        .arg(qHash(event.title, 0));
}

/// Of several versions the one with the highest sequence number holds; of equals, the last.
template <typename Key>
void keepNewestVersions(std::vector<const RawEvent*>& versions, Key key) {
    if (versions.size() < 2) {
        return;
    }
    std::ranges::stable_sort(versions, [&](const RawEvent* left, const RawEvent* right) {
        return std::pair(key(*left), left->sequence) < std::pair(key(*right), right->sequence);
    });
    std::vector<const RawEvent*> newest;
    for (const RawEvent* version : versions) {
        if (!newest.empty() && key(*newest.back()) == key(*version)) {
            newest.back() = version;
        } else {
            newest.push_back(version);
        }
    }
    versions = std::move(newest);
}

class Assembler {
public:
    Assembler(const std::shared_ptr<const StoreCalendar>& calendar, WorkBudget& budget,
              IcsFile& file)
        : calendar_(calendar)
        , budget_(budget)
        , file_(file) {}

    void add(Family& family) {
        keepNewestMasters(family.masters);
        keepNewestVersions(family.overrides,
                           [&](const RawEvent& event) { return originalOf(event, family); });
        for (const RawEvent* master : family.masters) {
            addMaster(*master, family.overrides);
        }
        for (const RawEvent* moved : family.overrides) {
            if (!moved->isCancelled) {
                const sys_seconds original = originalOf(*moved, family);
                file_.events.push_back(
                    eventFrom(*moved, original, nameOfException(moved->recurrenceText)));
            }
        }
    }

    void addSingle(const RawEvent& event) { addMaster(event, {}); }

private:
    static void keepNewestMasters(std::vector<const RawEvent*>& masters) {
        if (masters.size() < 2) {
            return;
        }
        const int newest = std::ranges::max(masters, {}, &RawEvent::sequence)->sequence;
        std::erase_if(masters, [&](const RawEvent* event) { return event->sequence < newest; });
        keepNewestVersions(masters, [](const RawEvent& event) { return event.start->instant(); });
    }

    /// The start that an exception replaces, however the exception names it.
    static sys_seconds originalOf(const RawEvent& moved, const Family& family) {
        const RawTime& named = *moved.recurrenceId;
        if (family.masters.empty()) {
            return named.instant();
        }
        const RawEvent& master = *family.masters.front();
        return named.kind == RawTime::Kind::Zoned && !master.isAllDay()
                   ? named.instant()
                   : master.start->zone->toInstant(inZoneOf(master, named));
    }

    void addMaster(const RawEvent& master, const std::vector<const RawEvent*>& overrides) {
        if (master.hasUnusableRule) {
            note(localized("a repetition that cannot be followed; only its first event is shown"));
        }
        if (master.isCancelled) {
            return;
        }
        if (master.rules.empty() && master.extras.empty() && master.exceptions.empty() &&
            overrides.empty()) {
            file_.events.push_back(eventFrom(master, sys_seconds(), {}));
            return;
        }
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
            exclude(*series, exception, master);
        }
        for (const RawEvent* moved : overrides) {
            exclude(*series, *moved->recurrenceId, master);
            if (moved->isThisAndFuture) {
                addVariation(*series, *moved, master);
            }
        }
        std::ranges::sort(series->excludedInstants);
        std::ranges::sort(series->excludedDays);
        std::ranges::stable_sort(series->variations, {}, &Series::Variation::from);
        file_.series.push_back(std::move(series));
    }

    void addRules(Series& series, const RawEvent& master) {
        const auto addBounded = [&](const std::vector<RecurrenceRule>& rules,
                                    std::vector<RecurrenceRule>& target) {
            for (const RecurrenceRule& rule : rules) {
                if (auto bounded = ruleWithoutCount(rule, series.start, budget_)) {
                    target.push_back(*std::move(bounded));
                } else {
                    note(localized("repetitions too many to count"));
                }
            }
        };
        addBounded(master.rules, series.rules);
        addBounded(master.exceptionRules, series.exceptionRules);
    }

    static void addExtras(Series& series, const RawEvent& master) {
        for (const RawEvent::Extra& extra : master.extras) {
            const LocalSeconds start = inZoneOf(master, extra.start);
            std::optional<EventLength> length = extra.length;
            if (extra.end) {
                const auto exact = extra.end->instant() - extra.start.instant();
                length =
                    EventLength{std::chrono::days(0), std::max(exact, std::chrono::seconds(0))};
            }
            series.extras.push_back({start, length});
        }
    }

    /// A time of another zone in the wall-clock time of a series.
    static LocalSeconds inZoneOf(const RawEvent& master, const RawTime& time) {
        const RawTime& start = *master.start;
        const auto dayOf = [](LocalSeconds local) {
            return std::chrono::floor<std::chrono::days>(local);
        };
        if (master.isAllDay()) {
            // A midnight names its day, also that of another zone.
            const bool isDay = time.kind != RawTime::Kind::Zoned || time.local == dayOf(time.local);
            return dayOf(isDay ? time.local : start.zone->toLocal(time.instant()));
        }
        if (time.kind == RawTime::Kind::Date) {
            // A day without a time means the series' time on that day.
            return time.local + (start.local - dayOf(start.local));
        }
        return time.kind == RawTime::Kind::Floating ? time.local
                                                    : start.zone->toLocal(time.instant());
    }

    static void exclude(Series& series, const RawTime& time, const RawEvent& master) {
        if (time.kind == RawTime::Kind::Date || master.isAllDay()) {
            series.excludedDays.push_back(
                std::chrono::floor<std::chrono::days>(inZoneOf(master, time)));
        } else if (time.kind == RawTime::Kind::Floating) {
            series.excludedInstants.push_back(series.zone->toInstant(time.local));
        } else {
            series.excludedInstants.push_back(time.instant());
        }
    }

    void addVariation(Series& series, const RawEvent& moved, const RawEvent& master) {
        const LocalSeconds original = inZoneOf(master, *moved.recurrenceId);
        series.variations.push_back(
            {series.zone->toInstant(original), moved.start->local - original, moved.length(),
             moved.start->zone,
             moved.isCancelled ? nullptr : detailsFrom(moved, series.details->occurrenceNames)});
    }

    [[nodiscard]] std::shared_ptr<const EventDetails>
    detailsFrom(const RawEvent& event, OccurrenceNamesPointer occurrenceNames) const {
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

    [[nodiscard]] Event eventFrom(const RawEvent& event, sys_seconds occurrence,
                                  OccurrenceNamesPointer occurrenceNames) const {
        return {event.start->instant(),
                endOf(event.start->local, event.length(), *event.start->zone), occurrence,
                detailsFrom(event, std::move(occurrenceNames))};
    }

    void note(const QString& problem) {
        if (!file_.problems.contains(problem)) {
            file_.problems.append(problem);
        }
    }

    const std::shared_ptr<const StoreCalendar>& calendar_;
    WorkBudget& budget_;
    IcsFile& file_;
};

} // namespace

void assembleEvents(std::vector<RawEvent> raw, const std::shared_ptr<const StoreCalendar>& calendar,
                    WorkBudget& budget, IcsFile& file) {
    Assembler assembler(calendar, budget, file);
    if (raw.size() == 1 && !raw.front().recurrenceId) {
        assembler.addSingle(raw.front());
        return;
    }
    QHash<QString, std::size_t> places;
    std::vector<Family> families;
    for (const RawEvent& event : raw) {
        const QString uid = event.uid.isEmpty() ? identifierFor(event) : event.uid;
        const auto place = places.constFind(uid);
        const std::size_t index = place == places.constEnd() ? families.size() : *place;
        if (index == families.size()) {
            places.insert(uid, index);
            families.emplace_back();
        }
        (event.recurrenceId ? families[index].overrides : families[index].masters)
            .push_back(&event);
    }
    file.events.reserve(families.size());
    for (Family& family : families) {
        assembler.add(family);
    }
}

} // namespace quillet
