#include "backends/icsfolder/LineReader.h"

#include <algorithm>

namespace quillet {

namespace {

bool isFold(char character) {
    return character == ' ' || character == '\t';
}

/// What ends the first line ends the others. Returns before a line feed belong to it.
bool hasReturnsAlone(std::string_view text) {
    const std::size_t first = text.find('\r');
    if (first == std::string_view::npos || text.substr(0, first).contains('\n')) {
        return false;
    }
    const std::size_t behind = text.find_first_not_of('\r', first);
    return behind == std::string_view::npos || text[behind] != '\n';
}

} // namespace

LineReader::LineReader(std::string_view text)
    : rest_(text)
    , endsWithReturns_(hasReturnsAlone(text)) {}

bool LineReader::next(std::string_view& line) {
    if (rest_.empty()) {
        return false;
    }
    line = physicalLine();
    lineNumber_ = physicalLines_;
    if (rest_.empty() || !isFold(rest_.front())) {
        return true;
    }
    unfolded_.assign(line);
    while (!rest_.empty() && isFold(rest_.front())) {
        unfolded_.append(physicalLine().substr(1));
    }
    line = unfolded_;
    return true;
}

std::size_t LineReader::lineEnd() const {
    return endsWithReturns_ ? rest_.find_first_of("\r\n") : rest_.find('\n');
}

std::string_view LineReader::physicalLine() {
    const std::size_t end = lineEnd();
    std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    ++physicalLines_;
    while (!line.empty() && line.back() == '\r') {
        line.remove_suffix(1);
    }
    return line;
}

} // namespace quillet
