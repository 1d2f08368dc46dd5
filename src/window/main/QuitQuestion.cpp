#include "window/main/QuitQuestion.h"

#include "texts/Localized.h"

namespace quillet {

bool QuitQuestion::mayQuit() {
    constexpr int tryAgain = 0;
    constexpr int quitAnyway = 1;
    while (!isGivenUp_ && !save_()) {
        const int answer =
            alerts_.runModal({.style = AlertStyle::Warning,
                              .messageText = localized("Your last changes cannot be saved"),
                              .informativeText = localized(
                                  "The disk does not take the settings. When Quillet quits now, it "
                                  "forgets what was changed since they were last saved."),
                              .buttonTitles = {localized("Try Again"), localized("Quit Anyway"),
                                               localized("Cancel")}});
        isGivenUp_ = answer == quitAnyway;
        if (answer != tryAgain && answer != quitAnyway) {
            return false;
        }
    }
    return true;
}

} // namespace quillet
