#include "backends/icsfolder/PropertyLine.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr std::array<std::string_view, 3> telling = {"TZID", "VALUE", "RANGE"};

/// The next of these characters outside of quotes; npos when there is none.
std::size_t findUnquoted(std::string_view text, char wanted) {
    bool isQuoted = false;
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        isQuoted = text[offset] == '"' ? !isQuoted : isQuoted;
        if (text[offset] == wanted && !isQuoted) {
            return offset;
        }
    }
    return std::string_view::npos;
}

/// Without quotes where one of them does not end: the parser behind would read on for ever.
std::string withEndedQuotes(std::string_view parameter) {
    std::string text(parameter);
    if (std::ranges::count(text, '"') % 2 != 0) {
        std::erase(text, '"');
    }
    return text;
}

} // namespace

bool equalsIgnoringCase(std::string_view left, std::string_view right) {
    const auto upper = [](char character) {
        return character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
    };
    return left.size() == right.size() &&
           std::equal(left.begin(), left.end(), right.begin(),
                      [&](char a, char b) { return upper(a) == upper(b); });
}

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    const std::size_t last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, last - first + 1);
}

PropertyLine::PropertyLine(std::string_view line) {
    const std::size_t nameEnd = std::min(line.find_first_of(":;"), line.size());
    name_ = line.substr(0, nameEnd);
    if (nameEnd == line.size() || line[nameEnd] == ':') {
        value_ = line.substr(std::min(nameEnd + 1, line.size()));
        return;
    }
    const std::string_view rest = line.substr(nameEnd + 1);
    // A quote that does not end swallows nothing.
    const std::size_t unquoted = findUnquoted(rest, ':');
    const std::size_t colon =
        std::min(unquoted == std::string_view::npos ? rest.find(':') : unquoted, rest.size());
    parameters_ = rest.substr(0, colon);
    value_ = rest.substr(std::min(colon + 1, rest.size()));
}

template <typename Visitor>
void PropertyLine::forEachParameter(Visitor visit) const {
    std::string_view rest = parameters_;
    while (!rest.empty()) {
        const std::size_t end = std::min(findUnquoted(rest, ';'), rest.size());
        visit(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::string PropertyLine::leanHead() const {
    std::string head(name_);
    std::array<bool, telling.size()> isTaken{};
    forEachParameter([&](std::string_view parameter) {
        const std::string_view name = parameter.substr(0, parameter.find('='));
        for (std::size_t index = 0; index < telling.size(); ++index) {
            if (!isTaken[index] && equalsIgnoringCase(name, telling[index])) {
                isTaken[index] = true;
                head += ';';
                head += withEndedQuotes(parameter);
            }
        }
    });
    head += ':';
    return head;
}

bool PropertyLine::isMarkedAsDate() const {
    bool isMarked = false;
    forEachParameter([&](std::string_view parameter) {
        isMarked = isMarked || equalsIgnoringCase(parameter, "VALUE=DATE");
    });
    return isMarked;
}

} // namespace quillet
