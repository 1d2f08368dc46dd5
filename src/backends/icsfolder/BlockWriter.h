#pragma once

#include "backends/icsfolder/IcsText.h"

namespace quillet {

/// Writes the lines of one event or time zone after the other to the text of the blocks, within
/// their limits.
class BlockWriter {
public:
    explicit BlockWriter(IcsBlocks& blocks)
        : blocks_(blocks) {}

    void begin(std::string_view component);
    void append(std::string_view line, std::string_view more = {});
    /// Appends also where the block is full.
    void end(std::string_view component);
    /// A text that is too long without its end.
    [[nodiscard]] std::string_view cut(std::string_view text);

private:
    IcsBlocks& blocks_;
    std::size_t start_ = 0;
    bool isFull_ = false;
};

} // namespace quillet
