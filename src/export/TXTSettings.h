#pragma once

#include <array>
#include <cstddef>

namespace quillet {

/// One switch of the text report, and its member in a preset.
struct TXTSwitch {
    /// The settings key that the report reads.
    const char* reportKey;
    /// The member of a stored preset.
    const char* presetKey;
    bool isOnByDefault;
    /// The settings key of a version that had a report for mails; null where it had none.
    const char* legacyKey;
};

inline constexpr std::size_t txtSwitchCount = 12;

/// In the order in which applying a preset writes them.
[[nodiscard]] const std::array<TXTSwitch, txtSwitchCount>& txtSwitches();

} // namespace quillet
