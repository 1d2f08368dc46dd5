#include "backends/icsfolder/EventReader.h"

#include "backends/icsfolder/IcalValues.h"
#include "backends/icsfolder/PropertyLine.h"
#include "backends/icsfolder/WrittenLength.h"
#include "backends/icsfolder/WrittenRule.h"
#include "backends/icsfolder/WrittenTime.h"
#include "backends/icsfolder/ZoneNames.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;
using Complaint = EventComplaint::Kind;

namespace {

constexpr std::size_t mostUnknownZonesNamed = 10;

QList<QTimeZone> zonesNamed(const QList<QByteArray>& names) {
    constexpr qsizetype most = 10;
    QList<QTimeZone> zones;
    for (const QByteArray& name : names.first(std::min(names.size(), most))) {
        if (const QTimeZone zone = zoneNamed(name); zone.isValid()) {
            zones.append(zone);
        }
    }
    return zones;
}

QString freeTextFrom(const icalproperty* property) {
    const QString text = textFrom(property);
    const QChar guard = QLatin1Char(textGuard);
    const bool isGuarded = text.size() >= 2 && text.front() == guard && text.back() == guard;
    return isGuarded ? text.sliced(1, text.size() - 2) : text;
}

std::int64_t momentFrom(const icaltimetype& time, std::int64_t otherwise) {
    const auto local = localSecondsFrom(time);
    return local ? local->time_since_epoch().count() : otherwise;
}

ZoneCatalog::Rules universalTime() {
    static const auto utc =
        std::make_shared<const ZoneRules>(seconds(0), std::vector<ZoneRules::Transition>());
    return utc;
}

bool isMidnight(LocalSeconds time) {
    return time == std::chrono::floor<days>(time);
}

} // namespace

void EventReader::takeBeside(const IcsBlocks& blocks, std::size_t event) {
    const auto& block = blocks.events[event];
    const auto complaints = blocks.complaintsOf(event);
    const auto rules = blocks.rulesOf(event);
    event_.complaints.assign(complaints.begin(), complaints.end());
    event_.version.lastModified = block.lastModified;
    event_.version.stamp = block.stamp;
    event_.hasUnreadableRecurrenceId = block.hasUnreadableRecurrenceId;
    rules_.assign(rules.begin(), rules.end());
    isMarkedAllDay_ = block.isMarkedAllDay;
    endLine_ = block.endLine;
}

RawEvent EventReader::read(icalcomponent& component) {
    for (icalproperty* property = icalcomponent_get_first_property(&component, ICAL_ANY_PROPERTY);
         property != nullptr;
         property = icalcomponent_get_next_property(&component, ICAL_ANY_PROPERTY)) {
        takeTime(property);
        takeRule(property);
        takeText(property);
    }
    // An exception that names no start of its own leaves its occurrence where it was.
    event_.start = event_.start ? event_.start : event_.recurrenceId;
    if (event_.start) {
        agreeOnZone();
        const ZoneCatalog::Rules zone = event_.start->zone;
        if (isMarkedAllDay_) {
            becomeAllDay();
        }
        finishRules(*zone);
        checkLength();
    }
    return std::move(event_);
}

void EventReader::takeText(icalproperty* property) {
    switch (icalproperty_isa(property)) {
    case ICAL_UID_PROPERTY:
        event_.uid = textFrom(property);
        break;
    case ICAL_SUMMARY_PROPERTY:
        event_.title = freeTextFrom(property);
        break;
    case ICAL_LOCATION_PROPERTY:
        event_.location = freeTextFrom(property);
        break;
    case ICAL_DESCRIPTION_PROPERTY:
        event_.notes = freeTextFrom(property);
        break;
    case ICAL_URL_PROPERTY:
        event_.url = textFrom(property);
        break;
    case ICAL_STATUS_PROPERTY:
        event_.isCancelled = icalproperty_get_status(property) == ICAL_STATUS_CANCELLED ||
                             equalsIgnoringCase(writtenForm(property), "CANCELED");
        break;
    case ICAL_SEQUENCE_PROPERTY:
        event_.version.sequence = icalproperty_get_sequence(property);
        break;
    case ICAL_LASTMODIFIED_PROPERTY:
        event_.version.lastModified =
            momentFrom(icalproperty_get_lastmodified(property), event_.version.lastModified);
        break;
    case ICAL_DTSTAMP_PROPERTY:
        event_.version.stamp = momentFrom(icalproperty_get_dtstamp(property), event_.version.stamp);
        break;
    case ICAL_XLICERROR_PROPERTY:
        takeError(property);
        break;
    case ICAL_X_PROPERTY:
        isMarkedAllDay_ = isMarkedAllDay_ || (equalsIgnoringCase(icalproperty_get_x_name(property),
                                                                 "X-MICROSOFT-CDO-ALLDAYEVENT") &&
                                              equalsIgnoringCase(writtenForm(property), "TRUE"));
        break;
    default:
        break;
    }
}

void EventReader::takeTime(icalproperty* property) {
    switch (icalproperty_isa(property)) {
    case ICAL_DTSTART_PROPERTY:
        event_.start = event_.start ? event_.start : timeFrom(property);
        break;
    case ICAL_DTEND_PROPERTY:
        event_.end = timeFrom(property);
        break;
    case ICAL_DURATION_PROPERTY:
        event_.duration = lengthFrom(icalproperty_get_duration(property));
        if (icalproperty_get_duration(property).is_neg != 0) {
            complain(Complaint::NegativeLength, writtenForm(property));
        }
        break;
    case ICAL_RECURRENCEID_PROPERTY:
        event_.recurrenceId = timeFrom(property);
        event_.recurrenceText = QString::fromStdString(writtenForm(property));
        event_.hasUnreadableRecurrenceId = !event_.recurrenceId;
        takeRange(property);
        break;
    case ICAL_EXDATE_PROPERTY:
        if (auto time = timeFrom(property)) {
            event_.exceptions.push_back(*std::move(time));
        }
        break;
    case ICAL_RDATE_PROPERTY:
        takeExtra(property);
        break;
    default:
        break;
    }
}

void EventReader::takeRule(icalproperty* property) {
    if (icalproperty_isa(property) == ICAL_RRULE_PROPERTY) {
        rules_.push_back({RuleLine::Kind::Rule, ruleTextFrom(icalproperty_get_rrule(property)), 0});
    } else if (icalproperty_isa(property) == ICAL_EXRULE_PROPERTY) {
        rules_.push_back(
            {RuleLine::Kind::ExceptionRule, ruleTextFrom(icalproperty_get_exrule(property)), 0});
    }
}

void EventReader::takeRange(icalproperty* property) {
    icalparameter* range = icalproperty_get_first_parameter(property, ICAL_RANGE_PARAMETER);
    event_.isThisAndFuture =
        range != nullptr && icalparameter_get_range(range) == ICAL_RANGE_THISANDFUTURE;
}

void EventReader::takeError(icalproperty* property) {
    // The parser puts a line that it cannot read down as an error, without its zone.
    const char* text = icalproperty_get_xlicerror(property);
    const UnreadProperty unread = unreadFrom(text == nullptr ? std::string_view() : text);
    takeUnreadable(unread.name, unread.value);
}

void EventReader::takeUnreadable(std::string_view property, std::string_view value) {
    const auto timeFromValue = [&]() -> std::optional<RawTime> {
        const auto time = writtenTimeFrom(value);
        if (!time) {
            return std::nullopt;
        }
        auto kind = time->isUtc ? RawTime::Kind::Zoned : RawTime::Kind::Floating;
        if (time->isDate) {
            kind = RawTime::Kind::Date;
        }
        return RawTime{time->local, kind,
                       time->isUtc ? universalTime() : context_.zones.systemZone(), time->isUtc};
    };
    const auto take = [&](std::optional<RawTime>& target, Complaint kind) {
        auto time = timeFromValue();
        if (time) {
            target = target ? target : std::move(time);
        } else {
            complain(kind, value);
        }
    };
    if (property == "DTSTART") {
        take(event_.start, Complaint::Start);
    } else if (property == "DTEND") {
        take(event_.end, Complaint::End);
    } else if (property == "RECURRENCE-ID") {
        take(event_.recurrenceId, Complaint::RecurrenceId);
        event_.recurrenceText = QString::fromStdString(std::string(value));
        event_.hasUnreadableRecurrenceId = !event_.recurrenceId;
    } else if (property == "EXDATE" || property == "RDATE") {
        complain(property == "EXDATE" ? Complaint::ExceptionDate : Complaint::ExtraDate, value);
    } else if (property == "DURATION") {
        if (const auto length = writtenLengthFrom(value)) {
            event_.duration = length->isNegative ? EventLength() : length->length;
        } else {
            complain(Complaint::Length, value);
        }
    } else if (property == "RRULE" || property == "EXRULE") {
        rules_.push_back(
            {property == "RRULE" ? RuleLine::Kind::Rule : RuleLine::Kind::ExceptionRule,
             std::string(value), 0});
    }
}

std::optional<RawTime> EventReader::timeFrom(icalproperty* property) {
    const icalvalue* value = icalproperty_get_value(property);
    switch (value == nullptr ? ICAL_NO_VALUE : icalvalue_isa(value)) {
    case ICAL_DATE_VALUE:
        return rawTime(icalvalue_get_date(value), property);
    case ICAL_DATETIME_VALUE:
        return rawTime(icalvalue_get_datetime(value), property);
    case ICAL_DATETIMEPERIOD_VALUE:
        return rawTime(icalvalue_get_datetimeperiod(value).time, property);
    default:
        return std::nullopt;
    }
}

std::optional<RawTime> EventReader::rawTime(const icaltimetype& time, icalproperty* property) {
    const auto local = localSecondsFrom(time);
    if (!local) {
        return std::nullopt;
    }
    const auto& systemZone = context_.zones.systemZone();
    if (time.is_date != 0) {
        return RawTime{*local, RawTime::Kind::Date, systemZone};
    }
    if (icaltime_is_utc(time) != 0) {
        return RawTime{*local, RawTime::Kind::Zoned, universalTime(), true};
    }
    icalparameter* parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
    const char* name = parameter == nullptr ? nullptr : icalparameter_get_tzid(parameter);
    if (name != nullptr) {
        if (auto zone = zoneNamed(name)) {
            return RawTime{*local, RawTime::Kind::Zoned, std::move(zone)};
        }
    }
    return RawTime{*local, RawTime::Kind::Floating, systemZone};
}

ZoneCatalog::Rules EventReader::zoneNamed(std::string_view name) {
    // The file's own definition wins, whatever the name promises.
    if (const auto found = context_.definedZones.find(name); found != context_.definedZones.end()) {
        return found->second;
    }
    auto zone = context_.lookups->find(name, context_.zones);
    if (!zone) {
        zone = guessedZone(name);
    }
    event_.hasUnknownZone = event_.hasUnknownZone || !zone;
    if (!zone && context_.unknownZones.size() < mostUnknownZonesNamed &&
        std::ranges::find(context_.unknownZones, name) == context_.unknownZones.end()) {
        context_.unknownZones.emplace_back(name);
    }
    return zone;
}

ZoneCatalog::Rules EventReader::guessedZone(std::string_view name) {
    auto known = context_.guessedZones.find(name);
    if (known == context_.guessedZones.end()) {
        if (context_.guessedZones.size() >= mostUnknownZonesNamed) {
            return nullptr;
        }
        const QTimeZone zone =
            quillet::zoneNamed(QByteArray(name.data(), static_cast<qsizetype>(name.size())),
                               zonesNamed(context_.zoneHints));
        GuessedZone guess;
        if (zone.isValid()) {
            guess = {zone.id(), context_.zones.named(zone.id().toStdString())};
        }
        known = context_.guessedZones.emplace(std::string(name), std::move(guess)).first;
    }
    const GuessedZone& guess = known->second;
    if (guess.rules) {
        complain(Complaint::UncertainZone, std::string(name) + " = " + guess.name.toStdString());
    }
    return guess.rules;
}

void EventReader::takeExtra(icalproperty* property) {
    const icalvalue* value = icalproperty_get_value(property);
    const icalvalue_kind kind = value == nullptr ? ICAL_NO_VALUE : icalvalue_isa(value);
    icalperiodtype period = icalperiodtype_null_period();
    if (kind == ICAL_PERIOD_VALUE) {
        period = icalvalue_get_period(value);
    } else if (kind == ICAL_DATETIMEPERIOD_VALUE) {
        period = icalvalue_get_datetimeperiod(value).period;
    }
    if (icaltime_is_null_time(period.start) != 0) {
        if (auto start = timeFrom(property)) {
            event_.extras.push_back({*std::move(start), std::nullopt, std::nullopt});
        }
        return;
    }
    auto start = rawTime(period.start, property);
    if (!start) {
        return;
    }
    RawEvent::Extra extra{*std::move(start), std::nullopt, std::nullopt};
    if (icaltime_is_null_time(period.end) == 0) {
        extra.end = rawTime(period.end, property);
    } else {
        extra.length = lengthFrom(period.duration);
    }
    event_.extras.push_back(std::move(extra));
}

/// A time without a zone is meant in the zone of the one beside it.
void EventReader::agreeOnZone() {
    RawTime& start = *event_.start;
    if (!event_.end || event_.isAllDay()) {
        return;
    }
    RawTime& end = *event_.end;
    const bool hasStartZone = start.kind == RawTime::Kind::Zoned;
    const bool hasEndZone = end.kind == RawTime::Kind::Zoned;
    if (hasStartZone && !hasEndZone) {
        end.zone = start.zone;
        end.isUtc = start.isUtc;
    } else if (hasEndZone && !hasStartZone) {
        start.zone = end.zone;
        start.kind = end.kind;
        start.isUtc = end.isUtc;
    }
}

/// Where a mark says that times from midnight to midnight are whole days.
void EventReader::becomeAllDay() {
    const RawTime original = *event_.start;
    const auto& systemZone = context_.zones.systemZone();
    const auto dayOf = [&](const RawTime& time) -> std::optional<RawTime> {
        const LocalSeconds inOriginal = original.zone->toLocal(time.instant());
        const LocalSeconds inSystem = systemZone->toLocal(time.instant());
        for (const LocalSeconds local : {time.local, inOriginal, inSystem}) {
            if (isMidnight(local)) {
                return RawTime{local, RawTime::Kind::Date, systemZone};
            }
        }
        return std::nullopt;
    };
    const auto start = dayOf(original);
    const auto end = event_.end ? dayOf(*event_.end) : std::nullopt;
    const bool endsWithinADay = event_.end && !(end && start && end->local > start->local);
    const bool lastsPartOfADay =
        !event_.end && event_.duration && event_.duration->seconds % days(1) != seconds(0);
    if (event_.isAllDay() || !start || endsWithinADay || lastsPartOfADay) {
        return;
    }
    event_.start = start;
    event_.end = end;
    for (RawTime& exception : event_.exceptions) {
        exception = dayOf(exception).value_or(exception);
    }
    for (RawEvent::Extra& extra : event_.extras) {
        extra.start = dayOf(extra.start).value_or(extra.start);
    }
}

void EventReader::finishRules(const ZoneRules& zone) {
    for (const RuleLine& line : rules_) {
        const bool isRule = line.kind == RuleLine::Kind::Rule;
        if (auto rule = writtenRuleFrom(line.text, zone, event_.isAllDay())) {
            (isRule ? event_.rules : event_.exceptionRules).push_back(*std::move(rule));
        } else {
            complain(isRule ? Complaint::Rule : Complaint::ExceptionRule, line.text, line.line);
        }
    }
}

void EventReader::checkLength() {
    if (!event_.end) {
        return;
    }
    const RawTime& end = *event_.end;
    const bool isDate = end.kind == RawTime::Kind::Date;
    const seconds exact = event_.isAllDay() ? end.local - event_.start->local
                                            : end.instant() - event_.start->instant();
    if (exact < seconds(0) || exact > longestEvent) {
        complain(exact < seconds(0) ? Complaint::EndBeforeStart : Complaint::TooLong,
                 standardForm(WrittenTime{end.local, isDate, end.isUtc}), endLine_);
    }
}

void EventReader::complain(Complaint kind, std::string_view value, std::size_t line) {
    event_.complaints.push_back({kind, shownValue(value), line});
}

} // namespace quillet
