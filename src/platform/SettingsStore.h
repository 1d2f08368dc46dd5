#pragma once

#include "platform/Decimal.h"
#include "platform/Instant.h"
#include "platform/Observation.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <optional>

namespace quillet {

/// The per-user key-value store that holds every setting and user-made list.
///
/// A value is a bool, a qint64, a double, a QString, an Instant, a Decimal, or a QVariantList or
/// QVariantMap of such values. Writing and observing belong to the main thread; reading is safe
/// from any thread.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The value stored under the key; an invalid QVariant when there is none.
    [[nodiscard]] virtual QVariant object(const QString& key) const = 0;
    /// Stores the value, then tells the key's observers, in order of registration and before it
    /// returns, also when the value equals the old one. An invalid value removes the key.
    virtual void setObject(const QString& key, const QVariant& value) = 0;
    /// Removes the key and tells its observers, as a write does.
    virtual void remove(const QString& key) = 0;
    /// Every stored key, sorted.
    [[nodiscard]] virtual QStringList keys() const = 0;
    /// Calls back after each write of the key, the new value already readable.
    [[nodiscard]] virtual Observation observe(const QString& key,
                                              std::function<void()> callback) = 0;
};

/// @name Typed reading
/// The conversions of the platform's typed getters: a value of another type is read as the wanted
/// one where that has a meaning, and as the zero of the wanted type where it has none.
/// @{

/// True for a true bool, a number other than 0, and the texts "YES", "true", "y", "t" and "1"…"9"
/// (their first letter decides, case ignored, sign and leading zeros skipped).
[[nodiscard]] bool boolFromValue(const QVariant& value);
/// The whole part of a number; of a text its leading whole number ("8" is 8, "abc" is 0).
[[nodiscard]] qint64 integerFromValue(const QVariant& value);
/// A number, or the leading number of a text.
[[nodiscard]] double doubleFromValue(const QVariant& value);
/// A number or the number that a text spells, exactly; not-a-number when there is none.
[[nodiscard]] Decimal decimalFromValue(const QVariant& value);
/// A text, or the plain text of a number; empty for anything else.
[[nodiscard]] QString stringFromValue(const QVariant& value);
/// An instant; nothing for any other type.
[[nodiscard]] std::optional<Instant> dateFromValue(const QVariant& value);
/// @}

[[nodiscard]] inline bool hasKey(const SettingsStore& settings, const QString& key) {
    return settings.object(key).isValid();
}
[[nodiscard]] inline bool boolForKey(const SettingsStore& settings, const QString& key) {
    return boolFromValue(settings.object(key));
}
[[nodiscard]] inline qint64 integerForKey(const SettingsStore& settings, const QString& key) {
    return integerFromValue(settings.object(key));
}
[[nodiscard]] inline QString stringForKey(const SettingsStore& settings, const QString& key) {
    return stringFromValue(settings.object(key));
}
[[nodiscard]] inline std::optional<Instant> dateForKey(const SettingsStore& settings,
                                                       const QString& key) {
    return dateFromValue(settings.object(key));
}
[[nodiscard]] inline QVariantList arrayForKey(const SettingsStore& settings, const QString& key) {
    return settings.object(key).toList();
}

/// Writes the negation of the bool under the key (absent reads as false).
void flipBool(SettingsStore& settings, const QString& key);

} // namespace quillet
