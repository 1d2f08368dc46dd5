#pragma once

#include <QByteArray>
#include <QTimeZone>

namespace quillet {

/// A fixed offset ("GMT+0100", "UTC+1", "+01:00", "(UTC)"), ahead of universal time where it has a
/// plus; two of them, one for each half of the year ("GMT -0500 (Standard) / GMT -0400
/// (Daylight)"), are the zone of the country that most of those have their clocks from. Not valid
/// for others.
[[nodiscard]] QTimeZone zoneOfOffset(const QByteArray& name);

/// A zone as programs show it to choose from: an offset and places of it, "(UTC+01:00) Amsterdam,
/// Berlin, Bern", or its plain name, "(UTC-05:00) Eastern Time (US & Canada)". Not valid when the
/// places are unknown, or known to be elsewhere than the offset says.
[[nodiscard]] QTimeZone zoneAsDisplayed(const QByteArray& name);

} // namespace quillet
