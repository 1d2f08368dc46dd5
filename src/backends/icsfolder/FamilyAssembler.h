#pragma once

#include "backends/icsfolder/EventFamily.h"
#include "backends/icsfolder/IcsFile.h"
#include "backends/icsfolder/OccurrenceNaming.h"

#include <map>
#include <memory>
#include <utility>

namespace quillet {

/// Events that no file names need a name as well, and one that lasts.
[[nodiscard]] QString identifierFor(const RawEvent& event);

/// Puts the events of one UID together and adds them to those of a file.
class FamilyAssembler {
public:
    /// Costs time and memory in proportion to the family's size, or stops at the budget.
    FamilyAssembler(const std::shared_ptr<const StoreCalendar>& calendar, WorkBudget& budget,
                    IcsFile& file)
        : calendar_(calendar)
        , budget_(budget)
        , file_(file) {}

    void add(EventFamily& family);

private:
    using SharedExclusions = std::shared_ptr<const Exclusions>;
    /// What decides how the exceptions of a family are named in a master's time.
    using TimeKey = std::pair<bool, const ZoneRules*>;

    void addMaster(const RawEvent& master, EventFamily& family);
    void addSeries(const RawEvent& master, EventFamily& family);
    void addException(const RawEvent& exception, const EventFamily& family);
    void addRules(Series& series, const RawEvent& master);
    void addVariations(Series& series, const RawEvent& master, const EventFamily& family);
    [[nodiscard]] SharedExclusions replacedBy(const EventFamily& family, const RawEvent& master);
    [[nodiscard]] std::shared_ptr<const EventDetails>
    detailsFrom(const RawEvent& event, OccurrenceNamesPointer occurrenceNames) const;
    [[nodiscard]] Event eventFrom(const RawEvent& event, std::chrono::sys_seconds occurrence,
                                  OccurrenceNamesPointer occurrenceNames) const;
    void complainOfRepetitions(const RawEvent& event);

    const std::shared_ptr<const StoreCalendar>& calendar_;
    WorkBudget& budget_;
    IcsFile& file_;
    std::map<TimeKey, SharedExclusions> replaced_;
};

} // namespace quillet
