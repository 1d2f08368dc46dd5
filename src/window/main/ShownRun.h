#pragma once

#include "platform/ProgressPresenter.h"

#include <QProgressDialog>

namespace quillet {

/// Progress in a dialog that appears when the work is going to take long.
class ShownRun final : public ProgressPresenter::Run {
public:
    ShownRun(const QString& label, QWidget* parent);

    [[nodiscard]] bool goOn(std::size_t finished, std::size_t all) override;

private:
    QProgressDialog dialog_;
};

} // namespace quillet
