#include "backends/icsfolder/EventFiles.h"

#include "backends/icsfolder/CalendarSources.h"
#include "backends/icsfolder/IcsFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace quillet {

namespace {

/// A beginning of an identifier that stands in a file as it is, neither escaped nor folded.
std::string plainBeginning(const QString& identifier) {
    constexpr qsizetype longest = 40;
    const QByteArray bytes = identifier.toUtf8().left(longest);
    const auto end = std::ranges::find_if(
        bytes, [](char byte) { return QByteArrayView(",;\\\r\n").contains(byte); });
    return {bytes.begin(), end};
}

bool holdsEvent(const std::string& path, const CalendarSource& source, const QString& identifier,
                ZoneCatalog& zones) {
    auto bytes = readWholeFile(path);
    const bool isNamed = !identifier.startsWith(u"unnamed-");
    if (!bytes || (isNamed && bytes->find(plainBeginning(identifier)) == std::string::npos)) {
        return false;
    }
    const IcsFile file = readIcs(*std::move(bytes), source.calendar, zones);
    const auto isIt = [&](const auto& event) {
        return event.details->eventIdentifier == identifier;
    };
    return std::ranges::any_of(file.events, isIt) ||
           std::ranges::any_of(file.series, [&](const auto& series) { return isIt(*series); });
}

QString shownPath(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

} // namespace

QString findEventFile(const std::string& rootPath, const QString& calendarIdentifier,
                      const QString& eventIdentifier, const QTimeZone& zone) {
    const auto sources = findCalendars(rootPath).value_or(std::vector<CalendarSource>());
    const auto source = std::ranges::find_if(sources, [&](const CalendarSource& candidate) {
        return candidate.calendar->calendarIdentifier == calendarIdentifier;
    });
    if (source == sources.end() || source->kind == CalendarSource::Kind::Unreachable) {
        return {};
    }
    if (source->kind == CalendarSource::Kind::File) {
        return shownPath(source->path);
    }
    QStringList names = QDir(shownPath(source->path)).entryList(QDir::Files, QDir::Name);
    // Most programs name the file after its event.
    std::ranges::stable_partition(
        names, [&](const QString& name) { return name.startsWith(eventIdentifier); });
    ZoneCatalog zones(zone);
    for (const QString& name : names) {
        const std::string fileName = QFile::encodeName(name).toStdString();
        const std::string path = source->path + "/" + fileName;
        if (isEventFileName(fileName) && holdsEvent(path, *source, eventIdentifier, zones)) {
            return shownPath(path);
        }
    }
    return {};
}

} // namespace quillet
