#pragma once

#include "platform/ObserverList.h"
#include "platform/SettingsStore.h"

#include <map>
#include <mutex>

namespace quillet::test {

/// A settings store that lives in memory and remembers its writes.
class MemorySettings final : public SettingsStore {
public:
    [[nodiscard]] QVariant object(const QString& key) const override {
        const std::lock_guard guard(mutex_);
        return values_.value(key);
    }
    void setObject(const QString& key, const QVariant& value) override {
        writes.append(key);
        store(key, value);
        observers_[key].notify();
    }
    void remove(const QString& key) override { setObject(key, QVariant()); }
    [[nodiscard]] QStringList keys() const override {
        const std::lock_guard guard(mutex_);
        return values_.keys();
    }
    [[nodiscard]] Observation observe(const QString& key, std::function<void()> callback) override {
        return observers_[key].add(std::move(callback));
    }

    /// The key of every write so far, removals included, in order.
    QStringList writes;

private:
    void store(const QString& key, const QVariant& value) {
        const std::lock_guard guard(mutex_);
        if (value.isValid()) {
            values_.insert(key, value);
        } else {
            values_.remove(key);
        }
    }

    /// Values may be read on any thread, as from the real store.
    mutable std::mutex mutex_;
    QMap<QString, QVariant> values_;
    std::map<QString, ObserverList<>> observers_;
};

} // namespace quillet::test
