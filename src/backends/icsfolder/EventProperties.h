#pragma once

#include "backends/icsfolder/BlockWriter.h"
#include "backends/icsfolder/PropertyLine.h"

namespace quillet {

/// Takes in the lines of events: writes what the parser behind can read, in the form that it wants,
/// keeps beside it what the parser cannot hold, and complains of what nobody can read.
class EventProperties {
public:
    EventProperties(IcsBlocks& blocks, BlockWriter& writer);

    /// A line of the last event of the blocks.
    void take(const PropertyLine& line, std::size_t lineNumber);

private:
    void appendFreeText(const std::string& head, std::string_view value);
    /// Whether the time can be read.
    bool appendTime(const PropertyLine& line, EventComplaint::Kind kind);
    void appendDates(const PropertyLine& line);
    void appendLength(const PropertyLine& line);
    void keepRule(const PropertyLine& line, RuleLine::Kind kind);
    void complain(EventComplaint::Kind kind, std::string_view value);

    IcsBlocks& blocks_;
    BlockWriter& writer_;
    std::size_t lineNumber_ = 0;
};

} // namespace quillet
