#pragma once

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <array>
#include <optional>

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

/// A named set of the text report's switches and free texts: an element of the stored array
/// `txtSettings`.
struct TXTSettings {
    QString txtSettingsName;
    /// In the order of txtSwitches(). Nothing, here and below, for a member that a preset edited by
    /// hand lacks or that cannot be read: the report then keeps what it has.
    std::array<std::optional<bool>, txtSwitchCount> switches{};
    std::optional<QString> txtHeader;
    std::optional<QString> txtFooter;
    /// Members that this version does not know or cannot read, written back as they came.
    QVariantMap otherMembers;
};

/// Numbers and texts are read as the platform's typed getters do; lists, maps and dates cannot be
/// read.
[[nodiscard]] TXTSettings txtSettingsFromValue(const QVariant& value);
[[nodiscard]] QVariant valueFromTXTSettings(const TXTSettings& preset);

} // namespace quillet
