#pragma once

#include <QString>

#include <cstddef>
#include <memory>

namespace quillet {

/// Shows how far long work on the main thread has come, and lets the user end it.
class ProgressPresenter {
public:
    /// One piece of work. What is shown of it goes when this does.
    class Run {
    public:
        virtual ~Run() = default;
        /// To be called often: whether the user lets the work go on. May run the event loop, with
        /// the main window closed to the user.
        [[nodiscard]] virtual bool goOn(std::size_t finished, std::size_t all) = 0;
    };

    virtual ~ProgressPresenter() = default;
    /// Work that is done, or foreseen to be done, within 200 ms is not shown at all.
    [[nodiscard]] virtual std::unique_ptr<Run> begin(const QString& label) = 0;
};

} // namespace quillet
