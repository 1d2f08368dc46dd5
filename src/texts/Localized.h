#pragma once

#include <QString>

namespace quillet {

/// The user's-language text for an English text, which is also the key of the string table and the
/// text used where the table has none.
[[nodiscard]] QString localized(const char* englishText);

/// Marks a text that is given to localized() elsewhere, so that the string table gets it: the table
/// is made from the literals in the sources.
[[nodiscard]] constexpr const char* localizable(const char* englishText) {
    return englishText;
}

} // namespace quillet
