#pragma once

#include "platform/SavePanel.h"

#include <QFileDialog>

namespace quillet {

/// Asks where a file of one type is to be saved. A name without that type gets it before the user
/// is asked whether to replace a file, so that none is ever replaced unasked.
class SaveDialog final : public QFileDialog {
    Q_OBJECT

public:
    SaveDialog(const SavePanelRequest& request, QWidget* parent);
    ~SaveDialog() override;
    Q_DISABLE_COPY_MOVE(SaveDialog)

    /// Of an accepted dialog.
    [[nodiscard]] QString chosenPath() const;

    void accept() override;

private:
    [[nodiscard]] QString typed(const QString& path) const;
    [[nodiscard]] bool mayReplace(const QString& path);

    QString suffix_;
};

} // namespace quillet
