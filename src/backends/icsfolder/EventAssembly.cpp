#include "backends/icsfolder/EventAssembly.h"

#include "backends/icsfolder/FamilyAssembler.h"

#include <QHash>

#include <algorithm>

namespace quillet {

namespace {

/// Tells what of the events cannot be read, and leaves those that have a start.
void takeComplaints(std::vector<RawEvent>& raw, IcsFile& file) {
    for (const RawEvent& event : raw) {
        const auto start = event.start ? std::optional(event.start->local) : std::nullopt;
        for (const EventComplaint& complaint : event.complaints) {
            file.complain(complaintText(complaint, event.title, start));
        }
    }
    std::erase_if(raw, [](const RawEvent& event) { return !event.start; });
}

std::vector<EventFamily> familiesOf(const std::vector<RawEvent>& raw) {
    QHash<QString, std::size_t> places;
    std::vector<EventFamily> families;
    for (const RawEvent& event : raw) {
        const QString uid = event.uid.isEmpty() ? identifierFor(event) : event.uid;
        const auto place = places.constFind(uid);
        const std::size_t index = place == places.constEnd() ? families.size() : *place;
        if (index == families.size()) {
            places.insert(uid, index);
            families.emplace_back();
        }
        families[index].add(event);
    }
    return families;
}

/// Puts down what the file holds, for files that hold the same.
void markFamily(const EventFamily& family, IcsFile& file) {
    FamilyMark mark;
    for (const auto* members : {&family.exceptions, &family.unplaced, &family.masters}) {
        for (const RawEvent* event : *members) {
            if (event->uid.isEmpty()) {
                return;
            }
            const bool isMaster = members == &family.masters;
            const bool isFirst = mark.uid.isEmpty() || isMaster != mark.hasMaster;
            mark.version = isFirst ? event->version : std::max(mark.version, event->version);
            mark.uid = event->uid;
            mark.digest += event->digest;
            mark.hasMaster = isMaster;
        }
    }
    if (!mark.uid.isEmpty()) {
        file.families.push_back(std::move(mark));
    }
}

} // namespace

void assembleEvents(std::vector<RawEvent> raw, const std::shared_ptr<const StoreCalendar>& calendar,
                    WorkBudget& budget, IcsFile& file) {
    takeComplaints(raw, file);
    FamilyAssembler assembler(calendar, budget, file);
    if (raw.size() == 1) {
        EventFamily family;
        family.add(raw.front());
        markFamily(family, file);
        assembler.add(family);
        return;
    }
    std::vector<EventFamily> families = familiesOf(raw);
    file.events.reserve(families.size());
    file.families.reserve(families.size());
    for (EventFamily& family : families) {
        markFamily(family, file);
        assembler.add(family);
    }
}

} // namespace quillet
