#pragma once

#include "platform/LocaleFormats.h"

#include <QVariant>

namespace quillet {

/// Shows a number with the pattern "0.##;0.##". One way only.
class NumberFormatTransformer {
public:
    explicit NumberFormatTransformer(const LocaleFormats& formats)
        : formats_(formats) {}
    /// The text of a number; empty for a missing value.
    [[nodiscard]] QString transformedValue(const QVariant& value) const;

private:
    const LocaleFormats& formats_;
};

/// Shows a number in the locale's currency style. One way only.
class CurrencyFormatTransformer {
public:
    explicit CurrencyFormatTransformer(const LocaleFormats& formats)
        : formats_(formats) {}
    /// The text of an amount; empty for a missing value.
    [[nodiscard]] QString transformedValue(const QVariant& value) const;

private:
    const LocaleFormats& formats_;
};

} // namespace quillet
