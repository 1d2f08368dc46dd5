#include "export/TXTSettingsArrayController.h"

#include "export/TXTSettings.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

/// The value of an old version's setting, which is removed.
template <typename Value>
Value taken(SettingsStore& settings, const Setting<Value>& legacy) {
    const Value value = legacy.read(settings);
    if (legacy.isStored(settings)) {
        settings.remove(legacy.name());
    }
    return value;
}

/// A preset's members, but for its name; `isOn` tells each switch.
template <typename IsOn>
QVariantMap presetMembers(const IsOn& isOn, const QString& header, const QString& footer) {
    QVariantMap members;
    for (const TXTSwitch& each : txtSwitches()) {
        members.insert(presetMember(*each.report), isOn(each));
    }
    members.insert(presetMember(settings::txtHeader), presentText(header));
    members.insert(presetMember(settings::txtFooter), presentText(footer));
    return members;
}

bool hasLegacySettings(const SettingsStore& settings) {
    return settings::mailHeader.isStored(settings) || settings::mailFooter.isStored(settings) ||
           std::ranges::any_of(txtSwitches(), [&](const TXTSwitch& each) {
               return each.legacy != nullptr && each.legacy->isStored(settings);
           });
}

} // namespace

TXTSettingsArrayController::TXTSettingsArrayController(SettingsStore& settings,
                                                       AlertPresenter& alerts)
    : NamedRecordsController(
          settings, alerts,
          {.list = settings::txtSettings,
           .nameMember = QStringLiteral("txtSettingsName"),
           .firstStaysMessage = localizable("Cannot delete Default settings"),
           .firstStaysReason = localizable("Default settings cannot be deleted.")}) {}

void TXTSettingsArrayController::awakeFromNib() {
    followStoredList();
    if (!settings::isDefaultTXTSettingsCreated.isStored(settings())) {
        createDefaultTXTSettings();
        settings::isDefaultTXTSettingsCreated.reset(settings());
    }
    if (hasLegacySettings(settings())) {
        migrateMailSettings();
    }
    selectFirstUnlessSelected();
}

void TXTSettingsArrayController::createDefaultTXTSettings() {
    append(
        localized("Default"),
        presetMembers([](const TXTSwitch& each) { return each.report->firstRunValue(); }, {}, {}));
}

void TXTSettingsArrayController::migrateMailSettings() {
    const auto isOn = [this](const TXTSwitch& each) {
        if (each.legacy != nullptr) {
            return taken(settings(), *each.legacy);
        }
        // Wrapping had no switch of its own; the days had none at all and stay off.
        return each.report == &settings::isTXTWrapping && each.report->read(settings());
    };
    const QVariantMap members = presetMembers(isOn, taken(settings(), settings::mailHeader),
                                              taken(settings(), settings::mailFooter));
    append(localized("Mail"), members);
}

void TXTSettingsArrayController::createTXTSettings() {
    const auto isOn = [this](const TXTSwitch& each) { return each.report->read(settings()); };
    append(numberedName(localized("New Settings")),
           presetMembers(isOn, settings::txtHeader.read(settings()),
                         settings::txtFooter.read(settings())));
}

void TXTSettingsArrayController::saveTXTSettings() {
    createTXTSettings();
    editLastName();
}

void TXTSettingsArrayController::setTXTSettings() {
    applyTXTSettings();
}

void TXTSettingsArrayController::applyTXTSettings() {
    if (selectedRows().empty()) {
        return;
    }
    const QVariantMap members = arranged(selectedRows().front()).members;
    settings::isApplyTXTSettingsOn.write(settings(), true);
    for (const TXTSwitch& each : txtSwitches()) {
        const QVariant value = members.value(presetMember(*each.report));
        if (isReadableMember(value)) {
            each.report->write(settings(), boolFromValue(value));
        }
    }
    for (const Setting<QString>* text : {&settings::txtHeader, &settings::txtFooter}) {
        if (const QVariant value = members.value(presetMember(*text)); isReadableMember(value)) {
            text->write(settings(), stringFromValue(value));
        }
    }
    settings::isApplyTXTSettingsOn.write(settings(), false);
}

void TXTSettingsArrayController::removeTXTSettings() {
    removeSelected();
}

} // namespace quillet
