#pragma once

#include "platform/Environment.h"

namespace quillet {

/// The locales of the things that the user may set apart, as ICU names ("de_DE").
struct LocaleNames {
    /// Dates, times, weekdays and the first day of the week.
    QString time;
    /// The decimal separator.
    QString numeric;
    QString monetary;
    /// The order of texts.
    QString collation = QStringLiteral("en_US");

    friend bool operator==(const LocaleNames&, const LocaleNames&) = default;
};

/// LC_ALL, else the category's own variable, else LANG. Encodings are dropped ("de_DE.UTF-8"), and
/// C, POSIX and what ICU does not know count as en_US.
[[nodiscard]] LocaleNames localeNames(const EnvironmentReader& environment);

/// The same for the environment of this process.
[[nodiscard]] LocaleNames localeNamesOfProcess();

} // namespace quillet
