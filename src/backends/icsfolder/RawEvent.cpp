#include "backends/icsfolder/RawEvent.h"

#include "backends/icsfolder/IcalValues.h"
#include "backends/icsfolder/IcsText.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;

namespace {

/// Nothing lasts longer than this: a typing error must not fill every period for ever.
constexpr days longestEvent{36525};

EventLength lengthFrom(const icaldurationtype& duration) {
    if (duration.is_neg != 0 || icaldurationtype_is_bad_duration(duration) != 0) {
        return {};
    }
    const auto wholeDays = std::int64_t(duration.weeks) * 7 + duration.days;
    const auto clock = std::int64_t(duration.hours) * 3600 + std::int64_t(duration.minutes) * 60 +
                       duration.seconds;
    constexpr std::int64_t mostDays = longestEvent.count();
    return {days(std::min(wholeDays, mostDays)), seconds(std::min(clock, mostDays * 86400))};
}

QString freeTextFrom(const icalproperty* property) {
    const QString text = textFrom(property);
    const QChar guard = QLatin1Char(textGuard);
    const bool isGuarded = text.size() >= 2 && text.front() == guard && text.back() == guard;
    return isGuarded ? text.sliced(1, text.size() - 2) : text;
}

QString writtenForm(const icalproperty* property) {
    char* const text = icalproperty_get_value_as_string_r(property);
    const QString form = QString::fromUtf8(text);
    icalmemory_free_buffer(text);
    return form;
}

class EventReader {
public:
    explicit EventReader(ReadingContext& context)
        : context_(context) {}

    [[nodiscard]] RawEvent read(icalcomponent* component) {
        for (icalproperty* property =
                 icalcomponent_get_first_property(component, ICAL_ANY_PROPERTY);
             property != nullptr;
             property = icalcomponent_get_next_property(component, ICAL_ANY_PROPERTY)) {
            takeTime(property);
            takeText(property);
        }
        // An exception that names no start of its own leaves its occurrence where it was.
        event_.start = event_.start ? event_.start : event_.recurrenceId;
        if (event_.start) {
            finishRules();
        }
        return std::move(event_);
    }

private:
    void takeText(icalproperty* property) {
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
            event_.isCancelled = icalproperty_get_status(property) == ICAL_STATUS_CANCELLED;
            break;
        case ICAL_SEQUENCE_PROPERTY:
            event_.sequence = icalproperty_get_sequence(property);
            break;
        case ICAL_XLICERROR_PROPERTY:
            noteError(property);
            break;
        default:
            break;
        }
    }

    void takeTime(icalproperty* property) {
        switch (icalproperty_isa(property)) {
        case ICAL_DTSTART_PROPERTY:
            event_.start = event_.start ? event_.start : timeFrom(property);
            break;
        case ICAL_DTEND_PROPERTY:
            event_.end = timeFrom(property);
            break;
        case ICAL_DURATION_PROPERTY:
            event_.duration = lengthFrom(icalproperty_get_duration(property));
            break;
        case ICAL_RECURRENCEID_PROPERTY:
            event_.recurrenceId = timeFrom(property);
            event_.recurrenceText = writtenForm(property);
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
        case ICAL_RRULE_PROPERTY:
            recurrences_.push_back(icalproperty_get_rrule(property));
            break;
        case ICAL_EXRULE_PROPERTY:
            exceptionRecurrences_.push_back(icalproperty_get_exrule(property));
            break;
        default:
            break;
        }
    }

    void takeRange(icalproperty* property) {
        icalparameter* range = icalproperty_get_first_parameter(property, ICAL_RANGE_PARAMETER);
        event_.isThisAndFuture =
            range != nullptr && icalparameter_get_range(range) == ICAL_RANGE_THISANDFUTURE;
    }

    /// The parser puts a line that it cannot read down as an error.
    void noteError(icalproperty* property) {
        icalparameter* kind =
            icalproperty_get_first_parameter(property, ICAL_XLICERRORTYPE_PARAMETER);
        const char* text = icalproperty_get_xlicerror(property);
        if (kind != nullptr && text != nullptr && std::string_view(text).contains("RRULE")) {
            event_.hasUnusableRule = true;
        }
    }

    [[nodiscard]] std::optional<RawTime> timeFrom(icalproperty* property) {
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

    [[nodiscard]] std::optional<RawTime> rawTime(const icaltimetype& time, icalproperty* property) {
        const auto local = localSecondsFrom(time);
        if (!local) {
            return std::nullopt;
        }
        const auto& systemZone = context_.zones.systemZone();
        if (time.is_date != 0) {
            return RawTime{*local, RawTime::Kind::Date, systemZone};
        }
        if (icaltime_is_utc(time) != 0) {
            static const auto utc =
                std::make_shared<const ZoneRules>(seconds(0), std::vector<ZoneRules::Transition>());
            return RawTime{*local, RawTime::Kind::Zoned, utc, true};
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

    [[nodiscard]] ZoneCatalog::Rules zoneNamed(std::string_view name) {
        // The file's own definition wins, whatever the name promises.
        if (const auto found = context_.definedZones.find(name);
            found != context_.definedZones.end()) {
            return found->second;
        }
        auto zone = context_.zones.named(std::string(name));
        event_.hasUnknownZone = event_.hasUnknownZone || !zone;
        if (!zone &&
            std::ranges::find(context_.unknownZones, name) == context_.unknownZones.end() &&
            context_.unknownZones.size() < 10) {
            context_.unknownZones.emplace_back(name);
        }
        return zone;
    }

    void takeExtra(icalproperty* property) {
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

    void finishRules() {
        for (const icalrecurrencetype& recurrence : recurrences_) {
            if (auto rule = ruleFrom(recurrence, *event_.start->zone, event_.isAllDay())) {
                event_.rules.push_back(*std::move(rule));
            } else {
                event_.hasUnusableRule = true;
            }
        }
        for (const icalrecurrencetype& recurrence : exceptionRecurrences_) {
            if (auto rule = ruleFrom(recurrence, *event_.start->zone, event_.isAllDay())) {
                event_.exceptionRules.push_back(*std::move(rule));
            }
        }
    }

    ReadingContext& context_;
    RawEvent event_;
    std::vector<icalrecurrencetype> recurrences_;
    std::vector<icalrecurrencetype> exceptionRecurrences_;
};

EventLength allDayLength(const RawEvent& event) {
    days wholeDays{1};
    if (event.end) {
        wholeDays = std::chrono::ceil<days>(event.end->local - event.start->local);
    } else if (event.duration) {
        wholeDays = event.duration->days + std::chrono::ceil<days>(event.duration->seconds);
    }
    return {std::clamp(wholeDays, days(1), longestEvent), seconds(0)};
}

} // namespace

EventLength RawEvent::length() const {
    if (isAllDay()) {
        return allDayLength(*this);
    }
    if (end) {
        const seconds exact = end->instant() - start->instant();
        return {days(0), std::clamp(exact, seconds(0), seconds(longestEvent))};
    }
    return duration.value_or(EventLength());
}

std::optional<RawEvent> readEvent(const char* block, ReadingContext& context) {
    const ComponentPointer component(icalparser_parse_string(block));
    if (!component || icalcomponent_isa(component.get()) != ICAL_VEVENT_COMPONENT) {
        return std::nullopt;
    }
    return readEvent(*component, context);
}

RawEvent readEvent(icalcomponent_impl& component, ReadingContext& context) {
    return EventReader(context).read(&component);
}

} // namespace quillet
