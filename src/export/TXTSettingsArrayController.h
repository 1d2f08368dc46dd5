#pragma once

#include "export/TXTSettings.h"
#include "platform/Alert.h"
#include "platform/ListController.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"

#include <vector>

namespace quillet {

/// The stored presets of the text report as a list. Every change is written back to `txtSettings`,
/// and a change of that key is taken over.
class TXTSettingsArrayController : public ListController<TXTSettings> {
    Q_OBJECT

public:
    TXTSettingsArrayController(SettingsStore& settings, AlertPresenter& alerts)
        : settings_(settings)
        , alerts_(alerts) {}

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
    /// nothing without a selection.
    /// `isApplyTXTSettingsOn` is on meanwhile.
    void applyTXTSettings();
    /// Deletes the first selected preset, once the user agrees; the first of the list is refused.
    /// Nothing without a selection.
    void removeTXTSettings();
    /// The user's new name for a preset.
    void renameTXTSettings(std::size_t row, const QString& name);

Q_SIGNALS:
    /// The name cell of this row is to be edited, with its text selected.
    void nameEditingRequested(std::size_t row);

private:
    void readStoredPresets();
    void append(const TXTSettings& preset);
    void store(const std::vector<TXTSettings>& presets, std::vector<std::size_t> selectedRows);

    SettingsStore& settings_;
    AlertPresenter& alerts_;
    Observation storedPresets_;
};

} // namespace quillet
