#pragma once

#include "export/TXTSettingsArrayController.h"
#include "export/TXTSettingsSheetController.h"
#include "platform/Sheet.h"

#include <QPointer>

class QDialog;
class QWidget;

namespace quillet {

class NameListEditor;

/// The sheet over the main window in which the presets of the text report are kept. It is built
/// when it is first shown.
class TXTSettingsSheet final : public Sheet {
public:
    TXTSettingsSheet(TXTSettingsArrayController& presets, QWidget& window);
    ~TXTSettingsSheet() override;
    TXTSettingsSheet(const TXTSettingsSheet&) = delete;
    TXTSettingsSheet& operator=(const TXTSettingsSheet&) = delete;

    [[nodiscard]] TXTSettingsSheetController& controller() { return controller_; }

    void begin() override;
    void commitEditing() override;
    void end() override;
    void orderOut() override;

private:
    void build();

    TXTSettingsArrayController& presets_;
    QWidget& window_;
    QPointer<QDialog> dialog_;
    /// The window in which it was asked for, which gets the keys back.
    QPointer<QWidget> askedFrom_;
    QPointer<NameListEditor> list_;
    TXTSettingsSheetController controller_;
};

} // namespace quillet
