#pragma once

#include <QString>

#include <expected>
#include <vector>

namespace quillet {

struct ScriptToken {
    enum class Kind {
        Word,
        Text,
        Number,
        /// One of ( ) { } and the comma.
        Sign,
        LineEnd,
    };

    Kind kind = Kind::LineEnd;
    /// The word, the sign, or the text without its quotes and escapes.
    QString text;
    double number = 0;
    /// From 1.
    int line = 1;
};

/// The tokens of a script. There is a line end behind every line that holds any other token, and
/// never two in a row. The error says what is wrong and in which line.
[[nodiscard]] std::expected<std::vector<ScriptToken>, QString> scriptTokens(QStringView source);

} // namespace quillet
