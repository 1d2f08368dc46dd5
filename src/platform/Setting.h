#pragma once

#include "platform/SettingsStore.h"

#include <algorithm>
#include <array>
#include <concepts>
#include <tuple>
#include <variant>

namespace quillet {

enum class SettingType { Bool, Integer, Decimal, Text, Date, Array };

/// One setting, whatever its type: under which key it is stored, and what a first run stores.
///
/// Settings are made in `platform/Settings.h` alone. They live as long as the program, so that
/// everyone may keep their addresses.
class SettingKey {
public:
    [[nodiscard]] constexpr const char* key() const { return key_; }
    /// The key as the store takes it, and as the controls that show the setting are named.
    [[nodiscard]] QString name() const { return QString::fromLatin1(key_); }
    [[nodiscard]] constexpr SettingType type() const { return type_; }

    /// What a first run stores, as it is stored, texts in the user's language; invalid where the
    /// value depends on more than the setting, or where nothing is stored.
    [[nodiscard]] QVariant firstRunValue() const;
    /// The same in English; null where it is no text.
    [[nodiscard]] constexpr const char* englishFirstRunText() const {
        const auto* const text = std::get_if<const char*>(&firstRun_);
        return text == nullptr ? nullptr : *text;
    }

    [[nodiscard]] bool isStored(const SettingsStore& store) const;
    /// Stores the first-run value, which the setting must have, where the setting is absent.
    void writeIfAbsent(SettingsStore& store) const;
    /// Stores the first-run value, which the setting must have, whatever is there.
    void reset(SettingsStore& store) const;
    /// Calls back after each write, as the store does.
    [[nodiscard]] Observation observe(SettingsStore& store, std::function<void()> callback) const;

protected:
    /// A whole number is the first-run value of a decimal too; a text is English.
    using FirstRun = std::variant<std::monostate, bool, qint64, const char*>;

    constexpr SettingKey(const char* key, SettingType type, FirstRun firstRun)
        : key_(key)
        , type_(type)
        , firstRun_(firstRun) {}

private:
    const char* key_;
    SettingType type_;
    FirstRun firstRun_;
};

/// How the values of one type are read, with the conversions of the store's typed getters, and of
/// what type a first-run value is told.
template <typename Value>
struct SettingTraits;

template <>
struct SettingTraits<bool> {
    static constexpr SettingType type = SettingType::Bool;
    static constexpr auto fromValue = boolFromValue;
    using FirstRun = bool;
};
template <>
struct SettingTraits<qint64> {
    static constexpr SettingType type = SettingType::Integer;
    static constexpr auto fromValue = integerFromValue;
    using FirstRun = qint64;
};
template <>
struct SettingTraits<Decimal> {
    static constexpr SettingType type = SettingType::Decimal;
    static constexpr auto fromValue = decimalFromValue;
    using FirstRun = qint64;
};
template <>
struct SettingTraits<QString> {
    static constexpr SettingType type = SettingType::Text;
    static constexpr auto fromValue = stringFromValue;
    using FirstRun = const char*;
};
template <>
struct SettingTraits<Instant> {
    static constexpr SettingType type = SettingType::Date;
    static constexpr auto fromValue = dateFromValue;
    using FirstRun = std::monostate;
};
/// A list begins empty.
template <>
struct SettingTraits<QVariantList> {
    static constexpr SettingType type = SettingType::Array;
    static QVariantList fromValue(const QVariant& value) { return value.toList(); }
    using FirstRun = std::monostate;
};

/// A setting and the type of its values.
template <typename Value>
class Setting : public SettingKey {
    using Traits = SettingTraits<Value>;

public:
    explicit constexpr Setting(const char* key)
        : SettingKey(key, Traits::type, {}) {}
    constexpr Setting(const char* key, typename Traits::FirstRun firstRun)
        : SettingKey(key, Traits::type, FirstRun(firstRun)) {}

    /// The stored value; one that is absent or of another type reads as the store's getters do it:
    /// false, 0, not-a-number, no text, no instant, no elements.
    [[nodiscard]] auto read(const SettingsStore& store) const {
        return Traits::fromValue(store.object(name()));
    }
    /// What a first run stores; where that is nothing, what nothing reads as.
    [[nodiscard]] auto firstRun() const { return Traits::fromValue(firstRunValue()); }
    /// The stored value, and where there is none the first-run value.
    [[nodiscard]] auto readOrFirstRun(const SettingsStore& store) const {
        return isStored(store) ? read(store) : firstRun();
    }
    void write(SettingsStore& store, const Value& value) const {
        store.setObject(name(), QVariant::fromValue(value));
    }
    /// Writes the negation; what is absent reads as false.
    void flip(SettingsStore& store) const
        requires std::same_as<Value, bool>
    {
        flipBool(store, name());
    }
};

/// Settings that belong together, in the order in which they are handled.
template <typename... Settings>
[[nodiscard]] constexpr std::array<const SettingKey*, sizeof...(Settings)>
settingGroup(const Settings&... settings) {
    return {&settings...};
}

/// Told by type, since under the sanitizers the compiler compares no addresses at compile time.
template <const auto& one, const auto& other>
inline constexpr bool isSameSetting = false;
template <const auto& setting>
inline constexpr bool isSameSetting<setting, setting> = true;

/// The values of a group of settings at one moment, which every thread may read.
template <const auto&... members>
class SettingValues {
public:
    /// The first-run values.
    SettingValues()
        : values_(members.firstRun()...) {}
    explicit SettingValues(const SettingsStore& store)
        : values_(members.read(store)...) {}

    [[nodiscard]] static constexpr auto group() { return settingGroup(members...); }

    template <const auto& setting>
    [[nodiscard]] const auto& get() const {
        return std::get<position<setting>()>(values_);
    }
    template <const auto& setting, typename Value>
    void set(Value value) {
        std::get<position<setting>()>(values_) = std::move(value);
    }

private:
    /// Behind all values for a setting of another group, which does not compile then.
    template <const auto& setting>
    [[nodiscard]] static consteval std::size_t position() {
        const std::array<bool, sizeof...(members)> isIt{isSameSetting<setting, members>...};
        return static_cast<std::size_t>(std::ranges::find(isIt, true) - isIt.begin());
    }

    std::tuple<decltype(members.firstRun())...> values_;
};

} // namespace quillet
