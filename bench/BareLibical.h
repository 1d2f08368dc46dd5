#pragma once

#include <QDir>

#include <benchmark/benchmark.h>
#include <libical/ical.h>

#include <fstream>
#include <string>

namespace quillet::bench {

/// Reads and parses a file as libical alone does: what reading calendars is measured against.
inline void parseWithBareLibical(const QString& path) {
    std::ifstream stream(path.toStdString(), std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(stream)), {});
    icalcomponent* component = icalparser_parse_string(text.c_str());
    benchmark::DoNotOptimize(component);
    icalcomponent_free(component);
}

inline void parseFolderWithBareLibical(const QString& path) {
    const QDir folder(path);
    for (const QString& file : folder.entryList({QStringLiteral("*.ics")}, QDir::Files)) {
        parseWithBareLibical(folder.filePath(file));
    }
}

} // namespace quillet::bench
