#pragma once

#include "platform/Alert.h"

#include <functional>

namespace quillet {

/// Asks before changes that no disk would take are lost with the program.
class QuitQuestion {
public:
    /// Writes what is not yet on the disk; whether all of it is there now.
    using Save = std::function<bool()>;

    QuitQuestion(Save save, AlertPresenter& alerts)
        : save_(std::move(save))
        , alerts_(alerts) {}

    /// Whether the program may end: all is saved, or the user gives it up, who is asked no second
    /// time then.
    [[nodiscard]] bool mayQuit();

private:
    Save save_;
    AlertPresenter& alerts_;
    bool isGivenUp_ = false;
};

} // namespace quillet
