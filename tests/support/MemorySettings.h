#pragma once

#include "platform/ObserverList.h"
#include "platform/SettingsStore.h"

#include <map>

namespace quillet::test {

/// A settings store that lives in memory and remembers its writes.
class MemorySettings final : public SettingsStore {
public:
    [[nodiscard]] QVariant object(const QString& key) const override { return values_.value(key); }
    void setObject(const QString& key, const QVariant& value) override {
        writes.append(key);
        if (value.isValid()) {
            values_.insert(key, value);
        } else {
            values_.remove(key);
        }
        observers_[key].notify();
    }
    void remove(const QString& key) override { setObject(key, QVariant()); }
    [[nodiscard]] QStringList keys() const override { return values_.keys(); }
    [[nodiscard]] Observation observe(const QString& key, std::function<void()> callback) override {
        return observers_[key].add(std::move(callback));
    }

    /// The key of every write so far, removals included, in order.
    QStringList writes;

private:
    QMap<QString, QVariant> values_;
    std::map<QString, ObserverList<>> observers_;
};

} // namespace quillet::test
