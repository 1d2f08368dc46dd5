#include "backends/icsfolder/ZoneCatalog.h"

#include "backends/icsfolder/IcalValues.h"

#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

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

ZoneCatalog::Definition definitionFrom(const char* block) {
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
    std::vector<ZoneRules::Transition> transitions;
    std::optional<std::pair<sys_seconds, seconds>> earliest;
    WorkBudget budget(definitionBudget, unitsPerChange);
    for (icalcomponent* part =
             icalcomponent_get_first_component(component.get(), ICAL_ANY_COMPONENT);
         part != nullptr;
         part = icalcomponent_get_next_component(component.get(), ICAL_ANY_COMPONENT)) {
        const Observance observance = observanceFrom(part);
        if (!observance.start || !observance.offsetFrom || !observance.offsetTo) {
            continue;
        }
        std::vector<LocalSeconds> onsets;
        addOnsets(observance, budget, onsets);
        for (const LocalSeconds onset : onsets) {
            const sys_seconds at(onset.time_since_epoch() - *observance.offsetFrom);
            transitions.push_back({at, *observance.offsetTo});
            if (!earliest || at < earliest->first) {
                earliest = {at, *observance.offsetFrom};
            }
        }
    }
    if (!earliest || budget.isExhausted()) {
        return {};
    }
    return {nameText, std::make_shared<const ZoneRules>(earliest->second, std::move(transitions))};
}

/// Zone names in small letters, those of Windows too, with what this system calls them.
const QHash<QByteArray, QByteArray>& knownNames() {
    static const QHash<QByteArray, QByteArray> names = [] {
        QHash<QByteArray, QByteArray> known{{"z", "UTC"},
                                            {"utc", "UTC"},
                                            {"coordinated universal time", "UTC"},
                                            {"greenwich mean time", "UTC"}};
        for (const QByteArray& name : QTimeZone::availableTimeZoneIds()) {
            known.insert(name.toLower(), name);
            if (const QByteArray windows = QTimeZone::ianaIdToWindowsId(name); !windows.isEmpty()) {
                known.insert(windows.toLower(), QTimeZone::windowsIdToDefaultIanaId(windows));
            }
        }
        return known;
    }();
    return names;
}

/// Whether a name can be that of a zone and of nothing else on the disk. "right" zones count leap
/// seconds, which no calendar does.
bool isZoneName(const QByteArray& name) {
    static const QRegularExpression pattern(
        QStringLiteral("^(?!right/)[A-Za-z][A-Za-z0-9_+-]*(/[A-Za-z0-9][A-Za-z0-9_+-]*)*$"));
    return pattern.match(QString::fromLatin1(name)).hasMatch();
}

/// Whether there may be such a zone. A word that names none would be read as the short name of a
/// zone without an offset, that is, as UTC.
bool isInDatabase(const QByteArray& name) {
    return name.contains('/') ||
           QFileInfo::exists(QStringLiteral("/usr/share/zoneinfo/") + QString::fromLatin1(name));
}

QTimeZone zoneWithName(const QByteArray& name) {
    // The list of available zones lacks the older names of many ("Asia/Calcutta").
    if (isZoneName(name) && isInDatabase(name)) {
        if (QTimeZone zone(name); zone.isValid()) {
            return zone;
        }
    }
    if (const QByteArray known = QTimeZone::windowsIdToDefaultIanaId(name); !known.isEmpty()) {
        return QTimeZone(known);
    }
    if (const QByteArray known = knownNames().value(name.toLower()); !known.isEmpty()) {
        return QTimeZone(known);
    }
    // Some programs put a path of their own before the name.
    const qsizetype slash = name.indexOf('/');
    return slash < 0 ? QTimeZone() : zoneWithName(name.mid(slash + 1));
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
    const QTimeZone zone =
        name.size() > 200 ? QTimeZone() : zoneWithName(QByteArray::fromStdString(name));
    Rules rules = zone.isValid() ? ZoneRules::fromTimeZone(zone) : nullptr;
    if (named_.size() < mostNames) {
        named_.emplace(name, rules);
    }
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
    Definition definition = definitionFrom(block);
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
