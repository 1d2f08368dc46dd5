#pragma once

#include <QByteArray>
#include <QTimeZone>

namespace quillet {

/// By its name in the zone database, in any case, older names too. Not valid for others.
[[nodiscard]] QTimeZone zoneOfDatabase(const QByteArray& name);

/// By the name that Windows has for it in English ("W. Europe Standard Time"), in any case, by the
/// Unicode consortium's table. Not valid for others.
[[nodiscard]] QTimeZone zoneOfWindows(const QByteArray& name);

/// The zone that is named after a place ("Berlin", "New York"), in any case. Not valid where no
/// zone is, or several that are not the same.
[[nodiscard]] QTimeZone zoneOfPlace(const QByteArray& place);

/// Whether the clocks of both have shown the same in these years.
[[nodiscard]] bool behaveAlike(const QTimeZone& left, const QTimeZone& right);

} // namespace quillet
