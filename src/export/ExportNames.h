#pragma once

#include "platform/LocaleFormats.h"
#include "platform/SettingsStore.h"

#include <QString>

namespace quillet {

/// A long date fit for a file name: "/" becomes a blank, "," goes.
[[nodiscard]] QString formatFileNameDate(const LocaleFormats& formats, Instant date);

/// A long date as the locale writes it.
[[nodiscard]] QString formatEmailNameDate(const LocaleFormats& formats, Instant date);

/// The first and the last day of the reporting period, "… - …", each through a format of above;
/// "(null)" for a day that is not stored, as in the report.
[[nodiscard]] QString periodName(const SettingsStore& settings, const LocaleFormats& formats,
                                 QString (*formatDate)(const LocaleFormats&, Instant));

} // namespace quillet
