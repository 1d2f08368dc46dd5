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

} // namespace

void assembleEvents(std::vector<RawEvent> raw, const std::shared_ptr<const StoreCalendar>& calendar,
                    WorkBudget& budget, IcsFile& file) {
    takeComplaints(raw, file);
    FamilyAssembler assembler(calendar, budget, file);
    if (raw.size() == 1) {
        EventFamily family;
        family.add(raw.front());
        assembler.add(family);
        return;
    }
    std::vector<EventFamily> families = familiesOf(raw);
    file.events.reserve(families.size());
    for (EventFamily& family : families) {
        assembler.add(family);
    }
}

} // namespace quillet
