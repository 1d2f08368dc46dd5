#pragma once

#include <QStringView>

#include <compare>

namespace quillet {

/// Orders version numbers as AppStream and Debian do: a number before a colon weighs most; digits
/// count as numbers of any length, "1.10" is newer than "1.9"; a tilde comes before the end,
/// "1.0~rc1" before "1.0"; letters come before other signs; what follows the last hyphen counts
/// last.
[[nodiscard]] std::weak_ordering compareVersions(QStringView left, QStringView right);

} // namespace quillet
