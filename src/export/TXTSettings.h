#pragma once

#include "platform/Setting.h"

#include <span>

namespace quillet {

/// One switch of the text report.
struct TXTSwitch {
    /// What the report reads.
    const Setting<bool>* report;
    /// The setting of a version that had a report for mails; null where it had none.
    const Setting<bool>* legacy;
};

/// In the order in which applying a preset writes them.
[[nodiscard]] std::span<const TXTSwitch> txtSwitches();

/// Under which name a stored preset has the value of a setting, made of the keys of the list and of
/// the setting: "txtSettingsIsTXTMax".
[[nodiscard]] QString presetMember(const SettingKey& setting);

} // namespace quillet
