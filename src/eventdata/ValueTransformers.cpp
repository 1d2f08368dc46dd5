#include "eventdata/ValueTransformers.h"

#include "platform/SettingsStore.h"

namespace quillet {

QString NumberFormatTransformer::transformedValue(const QVariant& value) const {
    return value.isValid() ? formats_.number(decimalFromValue(value)) : QString();
}

QString CurrencyFormatTransformer::transformedValue(const QVariant& value) const {
    return value.isValid() ? formats_.currency(decimalFromValue(value)) : QString();
}

} // namespace quillet
