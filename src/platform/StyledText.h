#pragma once

#include <QString>

#include <vector>

namespace quillet {

/// A text of which parts are set in faces of their own.
struct StyledText {
    /// Bold, Regular and Monospaced are 12 points high; Plain parts have no font of their own.
    enum class Style { Plain, Bold, Regular, Monospaced };
    struct Part {
        QString text;
        Style style = Style::Plain;

        friend bool operator==(const Part&, const Part&) = default;
    };

    /// The characters alone.
    [[nodiscard]] QString text() const {
        qsizetype length = 0;
        for (const Part& part : parts) {
            length += part.text.size();
        }
        QString joined;
        joined.reserve(length);
        for (const Part& part : parts) {
            joined += part.text;
        }
        return joined;
    }

    std::vector<Part> parts;
    /// Whether it is shown in the desktop's text colour.
    bool hasTextColor = false;
};

} // namespace quillet
