#pragma once

#include "platform/NamedRecordsController.h"

namespace quillet {

/// The stored presets of the text report as a list: each is a name for the report's switches and
/// free texts.
class TXTSettingsArrayController : public NamedRecordsController {
    Q_OBJECT

public:
    TXTSettingsArrayController(SettingsStore& settings, AlertPresenter& alerts);

    void awakeFromNib();
    void createDefaultTXTSettings();
    /// Makes the preset "Mail" of the settings that an old version kept for mails, and removes
    /// those.
    void migrateMailSettings();
    /// Appends a preset of the report's present switches, named "New Settings n", and selects it.
    void createTXTSettings();
    /// createTXTSettings(), then asks for the new name to be edited.
    void saveTXTSettings();
    void setTXTSettings();
    /// Copies the first selected preset into the report's settings, as far as it has their values;
    /// nothing without a selection. `isApplyTXTSettingsOn` is on meanwhile.
    void applyTXTSettings();
    /// Deletes the first selected preset, once the user agrees; the first of the list is refused.
    /// Nothing without a selection.
    void removeTXTSettings();
};

} // namespace quillet
