#pragma once

#include <QString>

#include <functional>
#include <memory>

namespace quillet {

/// Runs tasks one after the other, in the order in which they came.
class SerialQueue {
public:
    using Task = std::function<void()>;

    virtual ~SerialQueue() = default;
    /// Returns at once; the task runs later. Callable from any thread.
    virtual void async(Task task) = 0;
};

/// A queue with a thread of its own, named after the label as far as the system's fifteen bytes go.
/// Destroying it waits for the task that runs and drops the ones behind it.
[[nodiscard]] std::unique_ptr<SerialQueue> makeBackgroundQueue(const QString& label);

/// A queue on the thread whose event loop is that of the application object.
[[nodiscard]] std::unique_ptr<SerialQueue> makeMainQueue();

} // namespace quillet
