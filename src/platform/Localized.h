#pragma once

#include <QString>

namespace quillet {

/// The user's-language text for an English text, which is also the key of the string table and the
/// text used where the table has none.
[[nodiscard]] QString localized(const char* englishText);

} // namespace quillet
