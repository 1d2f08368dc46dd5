#pragma once

#include <string>
#include <string_view>

namespace quillet {

[[nodiscard]] bool equalsIgnoringCase(std::string_view left, std::string_view right);
/// Without blanks and tabs at both ends.
[[nodiscard]] std::string_view withoutBlanks(std::string_view text);

/// One unfolded line, NAME;PARAMETERS:VALUE. Refers to the text that it was made of.
class PropertyLine {
public:
    explicit PropertyLine(std::string_view line);

    [[nodiscard]] std::string_view name() const { return name_; }
    [[nodiscard]] std::string_view value() const { return value_; }
    /// The name and those parameters that say what the value means, each once, with the colon:
    /// thousands of others would cost the parser behind more than their size.
    [[nodiscard]] std::string leanHead() const;
    /// Whether there is a parameter VALUE=DATE.
    [[nodiscard]] bool isMarkedAsDate() const;

private:
    template <typename Visitor>
    void forEachParameter(Visitor visit) const;

    std::string_view name_;
    /// From the first semicolon to the colon, neither included.
    std::string_view parameters_;
    std::string_view value_;
};

} // namespace quillet
