#include "export/TXTSettingsArrayController.h"

#include "platform/Localized.h"

#include <algorithm>
#include <tuple>

namespace quillet {

namespace {

const QString presetsKey = QStringLiteral("txtSettings");
const QString isDefaultCreatedKey = QStringLiteral("isDefaultTXTSettingsCreated");
const QString isApplyingKey = QStringLiteral("isApplyTXTSettingsOn");
const QString headerKey = QStringLiteral("txtHeader");
const QString footerKey = QStringLiteral("txtFooter");
const QString legacyHeaderKey = QStringLiteral("mailHeader");
const QString legacyFooterKey = QStringLiteral("mailFooter");

QVariant taken(SettingsStore& settings, const QString& key) {
    const QVariant value = settings.object(key);
    if (value.isValid()) {
        settings.remove(key);
    }
    return value;
}

/// An empty text where there is none: a preset that the program makes lacks nothing.
QString presentText(const QString& text) {
    return text.isNull() ? QString::fromLatin1("") : text;
}

bool hasLegacySettings(const SettingsStore& settings) {
    return hasKey(settings, legacyHeaderKey) || hasKey(settings, legacyFooterKey) ||
           std::ranges::any_of(txtSwitches(), [&](const TXTSwitch& each) {
               return each.legacyKey != nullptr &&
                      hasKey(settings, QString::fromLatin1(each.legacyKey));
           });
}

} // namespace

void TXTSettingsArrayController::awakeFromNib() {
    setIfAbsent(settings_, presetsKey, QVariantList());
    readStoredPresets();
    storedPresets_ = settings_.observe(presetsKey, [this] { readStoredPresets(); });
    if (!hasKey(settings_, isDefaultCreatedKey)) {
        createDefaultTXTSettings();
        settings_.setObject(isDefaultCreatedKey, true);
    }
    if (hasLegacySettings(settings_)) {
        migrateMailSettings();
    }
    if (selectedRows().empty() && arrangedCount() > 0) {
        // The keys of the list have something to begin with.
        setSelectedRows({0});
    }
}

void TXTSettingsArrayController::createDefaultTXTSettings() {
    TXTSettings preset;
    preset.txtSettingsName = localized("Default");
    std::ranges::transform(txtSwitches(), preset.switches.begin(), &TXTSwitch::isOnByDefault);
    preset.txtHeader = presentText({});
    preset.txtFooter = presentText({});
    append(preset);
}

void TXTSettingsArrayController::migrateMailSettings() {
    TXTSettings preset;
    preset.txtSettingsName = localized("Mail");
    preset.switches.fill(false);
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        const TXTSwitch& each = txtSwitches().at(index);
        if (each.legacyKey != nullptr) {
            preset.switches.at(index) =
                boolFromValue(taken(settings_, QString::fromLatin1(each.legacyKey)));
        }
    }
    // Wrapping had no switch of its own; the days had none at all and stay off.
    preset.switches.front() = boolForKey(settings_, QStringLiteral("isTXTWrapping"));
    preset.txtHeader = presentText(stringFromValue(taken(settings_, legacyHeaderKey)));
    preset.txtFooter = presentText(stringFromValue(taken(settings_, legacyFooterKey)));
    append(preset);
}

void TXTSettingsArrayController::createTXTSettings() {
    TXTSettings preset;
    preset.txtSettingsName =
        localized("New Settings") + u' ' + QString::number(content()->size() + 1);
    std::ranges::transform(txtSwitches(), preset.switches.begin(), [this](const TXTSwitch& each) {
        return boolForKey(settings_, QString::fromLatin1(each.reportKey));
    });
    preset.txtHeader = presentText(stringForKey(settings_, headerKey));
    preset.txtFooter = presentText(stringForKey(settings_, footerKey));
    append(preset);
}

void TXTSettingsArrayController::saveTXTSettings() {
    createTXTSettings();
    Q_EMIT nameEditingRequested(arrangedCount() - 1);
}

void TXTSettingsArrayController::setTXTSettings() {
    applyTXTSettings();
}

void TXTSettingsArrayController::applyTXTSettings() {
    if (selectedRows().empty()) {
        return;
    }
    const TXTSettings preset = arranged(selectedRows().front());
    settings_.setObject(isApplyingKey, true);
    const auto write = [this](const QString& key, const auto& value) {
        if (value) {
            settings_.setObject(key, *value);
        }
    };
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        write(QString::fromLatin1(txtSwitches().at(index).reportKey), preset.switches.at(index));
    }
    write(headerKey, preset.txtHeader);
    write(footerKey, preset.txtFooter);
    settings_.setObject(isApplyingKey, false);
}

void TXTSettingsArrayController::removeTXTSettings() {
    if (selectedRows().empty()) {
        return;
    }
    const std::size_t row = selectedRows().front();
    if (row == 0) {
        std::ignore =
            alerts_.runModal({.style = AlertStyle::Warning,
                              .messageText = localized("Cannot delete Default settings"),
                              .informativeText = localized("Default settings cannot be deleted."),
                              .buttonTitles = {localized("OK")}});
        return;
    }
    const TXTSettings doomed = arranged(row);
    const int answer =
        alerts_.runModal({.style = AlertStyle::Warning,
                          .messageText = localized("Delete the record?"),
                          .informativeText = localized("Deleted records cannot be restored."),
                          .buttonTitles = {localized("OK"), localized("Cancel")}});
    // The stored list may have changed under the question.
    if (answer != 0 || row >= arrangedCount() ||
        valueFromTXTSettings(arranged(row)) != valueFromTXTSettings(doomed)) {
        return;
    }
    std::vector<TXTSettings> presets = *content();
    presets.erase(presets.begin() + static_cast<std::ptrdiff_t>(contentIndex(row)));
    store(presets, {std::min(row, presets.size() - 1)});
}

void TXTSettingsArrayController::renameTXTSettings(std::size_t row, const QString& name) {
    std::vector<TXTSettings> presets = *content();
    presets.at(contentIndex(row)).txtSettingsName = name;
    store(presets, selectedRows());
}

void TXTSettingsArrayController::append(const TXTSettings& preset) {
    std::vector<TXTSettings> presets = *content();
    presets.push_back(preset);
    store(presets, {presets.size() - 1});
}

void TXTSettingsArrayController::store(const std::vector<TXTSettings>& presets,
                                       std::vector<std::size_t> selectedRows) {
    QVariantList values;
    for (const TXTSettings& preset : presets) {
        values.append(valueFromTXTSettings(preset));
    }
    settings_.setObject(presetsKey, values);
    setSelectedRows(std::move(selectedRows));
}

void TXTSettingsArrayController::readStoredPresets() {
    const std::vector<std::size_t> rows = selectedRows();
    std::vector<TXTSettings> presets;
    for (const QVariant& value : arrayForKey(settings_, presetsKey)) {
        if (value.typeId() == QMetaType::QVariantMap) {
            presets.push_back(txtSettingsFromValue(value));
        }
    }
    setContent(std::move(presets));
    setSelectedRows(rows);
}

} // namespace quillet
