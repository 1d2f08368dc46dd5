#include "backends/icsfolder/IcalValues.h"

#include "backends/icsfolder/WrittenLength.h"
#include "backends/icsfolder/WrittenRule.h"

#include <QStringDecoder>

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;

std::optional<LocalSeconds> localSecondsFrom(const icaltimetype& time) {
    using namespace std::chrono;
    const year_month_day date(year(time.year), month(static_cast<unsigned>(time.month)),
                              day(static_cast<unsigned>(time.day)));
    if (time.year < 1 || time.year > 9999 || !date.ok() || time.hour < 0 || time.hour > 24 ||
        time.minute < 0 || time.minute > 59 || time.second < 0 || time.second > 60) {
        return std::nullopt;
    }
    const LocalSeconds midnight = local_days(date);
    return time.is_date != 0
               ? midnight
               : midnight + hours(time.hour) + minutes(time.minute) + seconds(time.second);
}

QString textFrom(const icalproperty* property) {
    const icalvalue* value = icalproperty_get_value(property);
    const char* text = nullptr;
    switch (value == nullptr ? ICAL_NO_VALUE : icalvalue_isa(value)) {
    case ICAL_TEXT_VALUE:
        text = icalvalue_get_text(value);
        break;
    case ICAL_URI_VALUE:
        text = icalvalue_get_uri(value);
        break;
    case ICAL_STRING_VALUE:
        text = icalvalue_get_string(value);
        break;
    default:
        break;
    }
    if (text == nullptr) {
        return {};
    }
    // Stateless, so that a character cut off at the end counts as an error.
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text));
    return decoder.hasError() ? QString::fromLatin1(text) : decoded;
}

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

std::string writtenForm(const icalproperty* property) {
    char* const text = icalproperty_get_value_as_string_r(property);
    std::string form = text == nullptr ? std::string() : std::string(text);
    icalmemory_free_buffer(text);
    return form;
}

UnreadProperty unreadFrom(std::string_view error) {
    static constexpr std::string_view before = " value in ";
    static constexpr std::string_view behind = " property. Removing entire property: ";
    const std::size_t first = error.find(before);
    const std::size_t last = error.find(behind);
    if (first == std::string_view::npos || last == std::string_view::npos ||
        last < first + before.size()) {
        return {};
    }
    UnreadProperty unread{error.substr(first + before.size(), last - first - before.size()),
                          std::string(error.substr(last + behind.size()))};
    std::erase(unread.value, '\\');
    return unread;
}

std::string ruleTextFrom(const icalrecurrencetype& recurrence) {
    icalrecurrencetype copy = recurrence;
    char* const written = icalrecurrencetype_as_string_r(&copy);
    std::string text = written == nullptr ? std::string() : std::string(written);
    icalmemory_free_buffer(written);
    return text;
}

std::optional<RecurrenceRule> ruleFrom(const icalrecurrencetype& recurrence, const ZoneRules& zone,
                                       bool isAllDay) {
    return writtenRuleFrom(ruleTextFrom(recurrence), zone, isAllDay);
}

} // namespace quillet
