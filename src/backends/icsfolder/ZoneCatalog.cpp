#include "backends/icsfolder/ZoneCatalog.h"

#include "backends/icsfolder/IcalValues.h"
#include "backends/icsfolder/ZoneNames.h"

#include <algorithm>

namespace quillet {

using std::chrono::seconds;
using std::chrono::sys_seconds;

namespace {

constexpr std::size_t mostDefinitions = 500;
constexpr std::size_t mostNames = 2000;
/// Enough for two rules by the year, or one by the month, over two centuries. A zone that changes
/// more often than that is no zone, and is not to be paid for five hundred times.
constexpr std::int64_t definitionBudget = 300'000;
constexpr std::int64_t unitsPerChange = 50;

/// One STANDARD or DAYLIGHT part of a definition.
struct Observance {
    std::optional<LocalSeconds> start;
    std::optional<seconds> offsetFrom;
    std::optional<seconds> offsetTo;
    std::vector<icalrecurrencetype> recurrences;
    std::vector<LocalSeconds> onsets;
};

void take(Observance& observance, icalproperty* property) {
    switch (icalproperty_isa(property)) {
    case ICAL_DTSTART_PROPERTY:
        observance.start = localSecondsFrom(icalproperty_get_dtstart(property));
        break;
    case ICAL_TZOFFSETFROM_PROPERTY:
        observance.offsetFrom = seconds(icalproperty_get_tzoffsetfrom(property));
        break;
    case ICAL_TZOFFSETTO_PROPERTY:
        observance.offsetTo = seconds(icalproperty_get_tzoffsetto(property));
        break;
    case ICAL_RRULE_PROPERTY:
        observance.recurrences.push_back(icalproperty_get_rrule(property));
        break;
    case ICAL_RDATE_PROPERTY:
        if (const auto onset = localSecondsFrom(icalproperty_get_rdate(property).time)) {
            observance.onsets.push_back(*onset);
        }
        break;
    default:
        break;
    }
}

Observance observanceFrom(icalcomponent* component) {
    Observance observance;
    for (icalproperty* property = icalcomponent_get_first_property(component, ICAL_ANY_PROPERTY);
         property != nullptr;
         property = icalcomponent_get_next_property(component, ICAL_ANY_PROPERTY)) {
        take(observance, property);
    }
    return observance;
}

void addOnsets(const Observance& observance, WorkBudget& budget,
               std::vector<LocalSeconds>& onsets) {
    using namespace std::chrono;
    const LocalSeconds first = local_days(year(1900) / 1 / 1);
    const LocalSeconds last = local_days(year(2100) / 1 / 1);
    const ZoneRules before(*observance.offsetFrom, {});
    onsets = observance.onsets;
    onsets.push_back(*observance.start);
    for (const icalrecurrencetype& recurrence : observance.recurrences) {
        auto rule = ruleFrom(recurrence, before, false);
        rule = rule ? ruleWithoutCount(*rule, *observance.start, budget) : rule;
        if (rule) {
            expandRule(*rule, *observance.start, first, last, budget, onsets);
        }
    }
}

/// What the parts of a definition say, and for when.
struct Changes {
    std::vector<ZoneRules::Transition> transitions;
    std::optional<std::pair<sys_seconds, seconds>> earliest;
    std::optional<sys_seconds> latest;
    /// Whether a rule in it goes on for ever.
    bool isOpen = false;
    /// Whether the offset is always the same.
    bool isFixed = true;
};

bool isOpen(const icalrecurrencetype& recurrence) {
    return recurrence.count == 0 && icaltime_is_null_time(recurrence.until) != 0;
}

void addChanges(const Observance& observance, WorkBudget& budget, Changes& changes) {
    std::vector<LocalSeconds> onsets;
    addOnsets(observance, budget, onsets);
    changes.isOpen = changes.isOpen || std::ranges::any_of(observance.recurrences, isOpen);
    for (const LocalSeconds onset : onsets) {
        const sys_seconds at(onset.time_since_epoch() - *observance.offsetFrom);
        changes.transitions.push_back({at, *observance.offsetTo});
        changes.latest = std::max(changes.latest.value_or(at), at);
        if (!changes.earliest || at < changes.earliest->first) {
            changes.earliest = {at, *observance.offsetFrom};
        }
    }
    changes.isFixed = changes.isFixed && *observance.offsetFrom == *observance.offsetTo &&
                      *observance.offsetTo == changes.transitions.front().offsetAfter;
}

struct ReadDefinition {
    ZoneCatalog::Definition definition;
    /// Nothing for one offset for ever, which leaves nothing open.
    std::optional<ZoneRules::Reach> reach;
};

ReadDefinition definitionFrom(const char* block) {
    const ComponentPointer component(icalparser_parse_string(block));
    if (!component) {
        return {};
    }
    const icalproperty* name =
        icalcomponent_get_first_property(component.get(), ICAL_TZID_PROPERTY);
    const char* nameText = name != nullptr ? icalproperty_get_tzid(name) : nullptr;
    if (nameText == nullptr) {
        return {};
    }
    Changes changes;
    WorkBudget budget(definitionBudget, unitsPerChange);
    for (icalcomponent* part =
             icalcomponent_get_first_component(component.get(), ICAL_ANY_COMPONENT);
         part != nullptr;
         part = icalcomponent_get_next_component(component.get(), ICAL_ANY_COMPONENT)) {
        const Observance observance = observanceFrom(part);
        if (observance.start && observance.offsetFrom && observance.offsetTo) {
            addChanges(observance, budget, changes);
        }
    }
    if (!changes.earliest || budget.isExhausted()) {
        return {};
    }
    ReadDefinition read;
    read.definition = {nameText, std::make_shared<const ZoneRules>(changes.earliest->second,
                                                                   std::move(changes.transitions))};
    const bool isFixedForEver =
        changes.isFixed && changes.earliest->first <= std::chrono::sys_days(std::chrono::days(1));
    if (!isFixedForEver) {
        read.reach = {changes.earliest->first,
                      changes.isOpen ? std::nullopt : std::optional(changes.latest)};
    }
    return read;
}

} // namespace

ZoneCatalog::ZoneCatalog(const QTimeZone& systemZone)
    : systemZone_(ZoneRules::fromTimeZone(systemZone)) {
    prepareLibical();
}

ZoneCatalog::Rules ZoneCatalog::named(const std::string& name) {
    const std::scoped_lock lock(mutex_);
    if (const auto found = named_.find(name); found != named_.end()) {
        return found->second;
    }
    // Nobody means so many; a file that makes names up is not to be paid for.
    if (named_.size() >= mostNames) {
        return nullptr;
    }
    const QTimeZone zone = zoneNamed(QByteArray::fromStdString(name));
    Rules rules = zone.isValid() ? ZoneRules::fromTimeZone(zone) : nullptr;
    named_.emplace(name, rules);
    return rules;
}

ZoneCatalog::Definition ZoneCatalog::defined(const char* block) {
    std::string key(block);
    {
        const std::scoped_lock lock(mutex_);
        if (const auto found = defined_.find(key); found != defined_.end()) {
            return found->second;
        }
    }
    auto [definition, reach] = definitionFrom(block);
    if (reach) {
        if (const Rules known = named(definition.name)) {
            definition.rules = definition.rules->within(*reach, *known);
        }
    }
    const std::scoped_lock lock(mutex_);
    if (defined_.size() < mostDefinitions) {
        defined_.emplace(std::move(key), definition);
    }
    return definition;
}

void prepareLibical() {
    static std::once_flag once;
    std::call_once(once, [] {
        icalerror_set_errors_are_fatal(0);
        // Fills the library's global tables before the second thread comes.
        (void)icaltimezone_get_utc_timezone();
        const ComponentPointer sample(icalparser_parse_string(
            "BEGIN:VEVENT\r\nDTSTART:20240101T000000Z\r\nRRULE:FREQ=DAILY\r\nEND:VEVENT\r\n"));
    });
}

} // namespace quillet
