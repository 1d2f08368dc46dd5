#pragma once

#include "platform/Observation.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace quillet {

/// Observers called synchronously, in order of registration. One thread only.
///
/// An observer may add or remove observers, itself included, while it is called: one that was
/// added is first called at the next notification, one that was removed is not called any more.
template <typename... Arguments>
class ObserverList {
public:
    using Callback = std::function<void(Arguments...)>;

    [[nodiscard]] Observation add(Callback callback) {
        auto entry = std::make_shared<Callback>(std::move(callback));
        entries_->push_back(entry);
        return Observation([list = std::weak_ptr(entries_), entry] {
            *entry = nullptr;
            if (const auto entries = list.lock()) {
                std::erase(*entries, entry);
            }
        });
    }

    void notify(const Arguments&... arguments) const {
        const auto snapshot = *entries_;
        for (const auto& entry : snapshot) {
            if (*entry) {
                // A copy keeps the callback alive when it removes itself.
                const Callback callback = *entry;
                callback(arguments...);
            }
        }
    }

    [[nodiscard]] std::size_t count() const { return entries_->size(); }

private:
    using Entries = std::vector<std::shared_ptr<Callback>>;
    std::shared_ptr<Entries> entries_ = std::make_shared<Entries>();
};

} // namespace quillet
