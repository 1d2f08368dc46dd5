#include "window/main/ShownRun.h"

#include "texts/Localized.h"

namespace quillet {

namespace {

constexpr int unseenMilliseconds = 200;

} // namespace

ShownRun::ShownRun(const QString& label, QWidget* parent)
    : dialog_(label, localized("Cancel"), 0, 1, parent) {
    dialog_.setObjectName(QStringLiteral("progress"));
    dialog_.setWindowModality(Qt::WindowModal);
    dialog_.setAutoReset(false);
    dialog_.setMinimumDuration(unseenMilliseconds);
    // Its clock starts with the first value.
    dialog_.setValue(0);
}

bool ShownRun::goOn(std::size_t finished, std::size_t all) {
    dialog_.setMaximum(static_cast<int>(all));
    dialog_.setValue(static_cast<int>(finished));
    return !dialog_.wasCanceled();
}

} // namespace quillet
