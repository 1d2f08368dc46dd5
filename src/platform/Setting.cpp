#include "platform/Setting.h"

#include "texts/Localized.h"

namespace quillet {

namespace {

/// localized() may answer with no text at all for the empty one, which is none that can be stored.
QString storedText(const char* english) {
    return *english == '\0' ? QStringLiteral("") : localized(english);
}

} // namespace

QVariant SettingKey::firstRunValue() const {
    if (const bool* truth = std::get_if<bool>(&firstRun_)) {
        return *truth;
    }
    if (const qint64* number = std::get_if<qint64>(&firstRun_)) {
        return type_ == SettingType::Decimal ? QVariant::fromValue(Decimal::fromInteger(*number))
                                             : QVariant::fromValue(*number);
    }
    if (const char* const* english = std::get_if<const char*>(&firstRun_)) {
        return storedText(*english);
    }
    return type_ == SettingType::Array ? QVariant(QVariantList()) : QVariant();
}

bool SettingKey::isStored(const SettingsStore& store) const {
    return hasKey(store, name());
}

void SettingKey::writeIfAbsent(SettingsStore& store) const {
    if (!isStored(store)) {
        reset(store);
    }
}

void SettingKey::reset(SettingsStore& store) const {
    const QVariant value = firstRunValue();
    // Writing nothing would remove the setting.
    Q_ASSERT(value.isValid());
    store.setObject(name(), value);
}

Observation SettingKey::observe(SettingsStore& store, std::function<void()> callback) const {
    return store.observe(name(), std::move(callback));
}

} // namespace quillet
