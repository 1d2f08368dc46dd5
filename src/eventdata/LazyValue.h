#pragma once

#include <functional>
#include <optional>
#include <utility>

namespace quillet {

/// A value that changes often and is read seldom: it is worked out when it is read.
template <typename Value>
class LazyValue {
public:
    explicit LazyValue(std::function<Value()> workOut)
        : workOut_(std::move(workOut)) {}

    /// The value may be another one from now on.
    void expire() { isExpired_ = true; }
    /// The value of now; null before the first expiry.
    [[nodiscard]] const Value* get() const {
        if (isExpired_) {
            isExpired_ = false;
            value_ = workOut_();
        }
        return value_ ? &*value_ : nullptr;
    }

private:
    std::function<Value()> workOut_;
    mutable bool isExpired_ = false;
    mutable std::optional<Value> value_;
};

} // namespace quillet
