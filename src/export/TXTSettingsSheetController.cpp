#include "export/TXTSettingsSheetController.h"

namespace quillet {

void TXTSettingsSheetController::openTXTSettingsSheet() {
    theSheet_.begin();
}

void TXTSettingsSheetController::closeTXTSettingsSheet() {
    theSheet_.commitEditing();
    theSheet_.end();
    theSheet_.orderOut();
}

} // namespace quillet
