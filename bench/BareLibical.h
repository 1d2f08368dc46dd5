#pragma once

#include <QDir>

#include <benchmark/benchmark.h>
#include <libical/ical.h>

#include <fstream>
#include <string>

namespace quillet::bench {

/// Reads and parses a file as libical alone does: what reading calendars is measured against. The
/// caller frees the component.
[[nodiscard]] inline icalcomponent* parsedWithBareLibical(const QString& path) {
    std::ifstream stream(path.toStdString(), std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(stream)), {});
    return icalparser_parse_string(text.c_str());
}

inline void parseWithBareLibical(const QString& path) {
    icalcomponent* component = parsedWithBareLibical(path);
    benchmark::DoNotOptimize(component);
    icalcomponent_free(component);
}

inline void parseFolderWithBareLibical(const QString& path) {
    const QDir folder(path);
    for (const QString& file : folder.entryList({QStringLiteral("*.ics")}, QDir::Files)) {
        parseWithBareLibical(folder.filePath(file));
    }
}

/// How often an event with one rule takes place before `end`, which is in its own time.
[[nodiscard]] inline std::size_t occurrencesWithBareLibical(icalcomponent* event,
                                                            const icaltimetype& end) {
    icalproperty* rule = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY);
    const icaltimetype start =
        icalproperty_get_dtstart(icalcomponent_get_first_property(event, ICAL_DTSTART_PROPERTY));
    icalrecur_iterator* iterator = icalrecur_iterator_new(icalproperty_get_rrule(rule), start);
    std::size_t count = 0;
    for (icaltimetype next = icalrecur_iterator_next(iterator);
         icaltime_is_null_time(next) == 0 && icaltime_compare(next, end) < 0;
         next = icalrecur_iterator_next(iterator)) {
        ++count;
    }
    icalrecur_iterator_free(iterator);
    return count;
}

} // namespace quillet::bench
