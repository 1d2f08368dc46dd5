#pragma once

#include "platform/Sheet.h"

namespace quillet {

/// Opens and closes the sheet in which the presets of the text report are kept.
class TXTSettingsSheetController {
public:
    explicit TXTSettingsSheetController(Sheet& theSheet)
        : theSheet_(theSheet) {}

    void openTXTSettingsSheet();
    /// A name that is being typed counts.
    void closeTXTSettingsSheet();

private:
    Sheet& theSheet_;
};

} // namespace quillet
