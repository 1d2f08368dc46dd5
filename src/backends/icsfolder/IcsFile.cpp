#include "backends/icsfolder/IcsFile.h"

#include "backends/icsfolder/EventAssembly.h"
#include "texts/Localized.h"

#include <future>

namespace quillet {

namespace {

/// Below this many events a second thread costs more than it gains.
constexpr std::size_t eventsWorthASecondThread = 4000;
/// What the counted rules of one file may cost: about half a second.
constexpr std::int64_t fileBudget = 20'000'000;

struct ReadEvents {
    std::vector<RawEvent> events;
    std::vector<std::string> unknownZones;
    std::size_t unreadable = 0;
    std::size_t withoutStart = 0;
};

std::vector<ReadingContext> contextsOf(const IcsBlocks& blocks, ZoneCatalog& zones) {
    std::vector<ReadingContext> contexts;
    for (const auto& calendar : blocks.calendars) {
        ReadingContext context{zones, {}, {}, {}};
        context.zoneHints.push_back(calendar.zoneName.toUtf8());
        for (const std::size_t offset : calendar.zones) {
            const auto definition = zones.defined(blocks.text.data() + offset);
            if (definition.rules) {
                context.definedZones[definition.name] = definition.rules;
                context.zoneHints.push_back(QByteArray::fromStdString(definition.name));
            }
        }
        contexts.push_back(std::move(context));
    }
    return contexts;
}

/// The events from one index up to another, which is not included.
ReadEvents readBlocks(const IcsBlocks& blocks, std::size_t first, std::size_t last,
                      std::vector<ReadingContext> contexts, const std::stop_token& stop) {
    ReadEvents read;
    read.events.reserve(last - first);
    // Each thread has its own.
    const auto lookups = std::make_shared<ZoneLookups>();
    for (ReadingContext& context : contexts) {
        context.lookups = lookups;
    }
    for (std::size_t index = first; index < last && !stop.stop_requested(); ++index) {
        auto event = readEvent(blocks, index, contexts[blocks.events[index].calendar]);
        if (!event) {
            ++read.unreadable;
            continue;
        }
        const bool hasStart = event->start.has_value();
        // A start that cannot be read is complained of by name.
        read.withoutStart += hasStart || !event->complaints.empty() ? 0 : 1;
        if (hasStart || !event->complaints.empty()) {
            read.events.push_back(*std::move(event));
        }
    }
    for (ReadingContext& context : contexts) {
        std::ranges::move(context.unknownZones, std::back_inserter(read.unknownZones));
    }
    return read;
}

ReadEvents readAll(const IcsBlocks& blocks, ZoneCatalog& zones, const std::stop_token& stop) {
    const std::size_t count = blocks.events.size();
    const auto contexts = contextsOf(blocks, zones);
    if (count < eventsWorthASecondThread) {
        return readBlocks(blocks, 0, count, contexts, stop);
    }
    const std::size_t half = count / 2;
    auto second = std::async(std::launch::async,
                             [&] { return readBlocks(blocks, half, count, contexts, stop); });
    ReadEvents read = readBlocks(blocks, 0, half, contexts, stop);
    ReadEvents rest = second.get();
    std::ranges::move(rest.events, std::back_inserter(read.events));
    std::ranges::move(rest.unknownZones, std::back_inserter(read.unknownZones));
    read.unreadable += rest.unreadable;
    read.withoutStart += rest.withoutStart;
    return read;
}

void noteProblems(const IcsBlocks& blocks, const ReadEvents& read, QStringList& problems) {
    if (!blocks.isCalendarFile) {
        problems.append(localized("not a calendar file"));
    }
    if (blocks.endsWithinBlock) {
        problems.append(localized("ends in the middle"));
    }
    if (blocks.hasUnendedPart) {
        problems.append(localized("an entry in it has no end"));
    }
    if (blocks.hasCutText) {
        problems.append(localized("a text or event that is too long was cut"));
    }
    if (blocks.hasTooManyEvents) {
        problems.append(localized("more than 300,000 events; the others are left out"));
    }
    if (read.unreadable > 0) {
        problems.append(read.unreadable == 1
                            ? localized("one event cannot be read")
                            : localized("%1 events cannot be read").arg(read.unreadable));
    }
    if (read.withoutStart > 0) {
        problems.append(read.withoutStart == 1
                            ? localized("one event without a start")
                            : localized("%1 events without a start").arg(read.withoutStart));
    }
    QStringList zones;
    for (const std::string& zone : read.unknownZones) {
        const QString name = QString::fromStdString(zone).left(100);
        if (!zones.contains(name)) {
            zones.append(name);
        }
    }
    for (const QString& zone : zones) {
        problems.append(localized("unknown time zone “%1”, taken as local time").arg(zone));
    }
}

} // namespace

void IcsFile::complain(const QString& problem) {
    if (problems.contains(problem)) {
        return;
    }
    if (problems.size() < qsizetype(mostComplaintsInFile)) {
        problems.append(problem);
    } else {
        ++unnamedProblems;
    }
}

void IcsFile::closeProblems() {
    if (unnamedProblems > 0) {
        problems.append(unnamedProblems == 1
                            ? localized("one more line cannot be read")
                            : localized("%1 more lines cannot be read").arg(unnamedProblems));
        unnamedProblems = 0;
    }
}

IcsFile readIcs(std::string bytes, const std::shared_ptr<const StoreCalendar>& calendar,
                ZoneCatalog& zones, const std::stop_token& stop) {
    IcsFile file;
    if (bytes.empty()) {
        file.problems.append(localized("an empty file"));
        return file;
    }
    IcsBlocks blocks = takeApart(asUtf8(std::move(bytes)), stop);
    ReadEvents read = readAll(blocks, zones, stop);
    noteProblems(blocks, read, file.problems);
    file.unnamedProblems = blocks.unnamedComplaints;
    blocks = {};
    if (stop.stop_requested()) {
        return file;
    }
    WorkBudget budget(fileBudget);
    assembleEvents(std::move(read.events), calendar, budget, file);
    file.closeProblems();
    return file;
}

std::vector<RawEvent> readRawEvents(std::string bytes, ZoneCatalog& zones) {
    ReadEvents read = readAll(takeApart(asUtf8(std::move(bytes))), zones, {});
    std::erase_if(read.events, [](const RawEvent& event) { return !event.start; });
    return std::move(read.events);
}

} // namespace quillet
