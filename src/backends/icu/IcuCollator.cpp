#include "backends/icu/IcuCollator.h"

#include <unicode/coll.h>

#include <array>

namespace quillet {

struct IcuCollator::Rules {
    /// Null when ICU has no data at all.
    std::unique_ptr<icu::Collator> collator;
};

IcuCollator::IcuCollator(const QString& locale)
    : rules_(std::make_unique<Rules>()) {
    UErrorCode status = U_ZERO_ERROR;
    rules_->collator.reset(
        icu::Collator::createInstance(icu::Locale(locale.toLatin1().constData()), status));
    if (U_FAILURE(status)) {
        rules_->collator.reset();
    }
}

IcuCollator::~IcuCollator() = default;

QByteArray IcuCollator::sortKey(const QString& text) const {
    if (text.isEmpty()) {
        return {};
    }
    if (!rules_->collator) {
        return text.toCaseFolded().toUtf8();
    }
    const auto* units = reinterpret_cast<const char16_t*>(text.utf16());
    const auto length = static_cast<int32_t>(text.size());
    std::array<uint8_t, 256> buffer;
    const auto write = [&](uint8_t* target, int32_t size) {
        return rules_->collator->getSortKey(units, length, target, size);
    };
    const int32_t size = write(buffer.data(), static_cast<int32_t>(buffer.size()));
    if (size <= static_cast<int32_t>(buffer.size())) {
        return {reinterpret_cast<const char*>(buffer.data()), size};
    }
    QByteArray key(size, Qt::Uninitialized);
    write(reinterpret_cast<uint8_t*>(key.data()), size);
    return key;
}

} // namespace quillet
