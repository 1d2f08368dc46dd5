#include "backends/icsfolder/BlockWriter.h"

namespace quillet {

void BlockWriter::begin(std::string_view component) {
    start_ = blocks_.text.size();
    isFull_ = false;
    append("BEGIN:", component);
}

void BlockWriter::append(std::string_view line, std::string_view more) {
    const std::size_t size = blocks_.text.size() - start_ + line.size() + more.size();
    if (isFull_ || size > largestEventBytes) {
        isFull_ = true;
        blocks_.hasCutText = true;
        return;
    }
    blocks_.text += line;
    blocks_.text += more;
    blocks_.text += "\r\n";
}

void BlockWriter::end(std::string_view component) {
    start_ = blocks_.text.size();
    isFull_ = false;
    append("END:", component);
    blocks_.text += '\0';
}

std::string_view BlockWriter::cut(std::string_view text) {
    if (text.size() <= longestLineBytes) {
        return text;
    }
    blocks_.hasCutText = true;
    std::size_t end = longestLineBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end;
    }
    // Half an escape sequence would stand for something else.
    while (end > 0 && text[end - 1] == '\\') {
        --end;
    }
    return text.substr(0, end);
}

} // namespace quillet
