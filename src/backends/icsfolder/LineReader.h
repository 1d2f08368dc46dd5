#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillet {

/// Hands out the lines of a calendar file with folds undone. A line is a view of the file where it
/// was not folded, and holds until the next call.
class LineReader {
public:
    explicit LineReader(std::string_view text);

    [[nodiscard]] bool next(std::string_view& line);
    /// Where the line stands that next() gave last, counted from 1.
    [[nodiscard]] std::size_t lineNumber() const { return lineNumber_; }

private:
    [[nodiscard]] std::string_view physicalLine();
    [[nodiscard]] std::size_t lineEnd() const;

    std::string_view rest_;
    /// Whether a carriage return alone ends a line, as some programs have it.
    bool endsWithReturns_;
    std::size_t physicalLines_ = 0;
    std::size_t lineNumber_ = 0;
    std::string unfolded_;
};

} // namespace quillet
