#pragma once

#include "platform/ProgressPresenter.h"

#include <cstddef>
#include <functional>

namespace quillet {

enum class ExportAnswer { GoOn, Cancel };

/// Asked while the text of a long export is built: how many of all its events are done. The answer
/// says whether to go on. An empty function lets every export finish. It may run the event loop:
/// what is being exported was taken before and does not change.
using ExportProgress = std::function<ExportAnswer(std::size_t finished, std::size_t all)>;

/// Asks the user, who is shown the progress. The run must outlive the function.
[[nodiscard]] inline ExportProgress shownProgress(ProgressPresenter::Run& run) {
    return [&run](std::size_t finished, std::size_t all) {
        return run.goOn(finished, all) ? ExportAnswer::GoOn : ExportAnswer::Cancel;
    };
}

/// Counts the events of one export and asks about it after every thousand.
class ExportSteps {
public:
    /// The function must outlive this.
    ExportSteps(const ExportProgress& progress, std::size_t all)
        : progress_(progress)
        , all_(all) {}

    /// To be called after each event: whether to go on.
    [[nodiscard]] bool goOn() {
        constexpr std::size_t eventsOfAStep = 1000;
        ++finished_;
        return finished_ % eventsOfAStep != 0 || !progress_ ||
               progress_(finished_, all_) == ExportAnswer::GoOn;
    }

private:
    const ExportProgress& progress_;
    std::size_t all_;
    std::size_t finished_ = 0;
};

} // namespace quillet
