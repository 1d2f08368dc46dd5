#include "export/TXTSettingsArrayController.h"

#include "export/TXTSettings.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

const QString isDefaultCreatedKey = QStringLiteral("isDefaultTXTSettingsCreated");
const QString isApplyingKey = QStringLiteral("isApplyTXTSettingsOn");
const QString wrappingKey = QStringLiteral("isTXTWrapping");
const QString headerKey = QStringLiteral("txtHeader");
const QString footerKey = QStringLiteral("txtFooter");
const QString headerMember = QStringLiteral("txtSettingsTxtHeader");
const QString footerMember = QStringLiteral("txtSettingsTxtFooter");
const QString legacyHeaderKey = QStringLiteral("mailHeader");
const QString legacyFooterKey = QStringLiteral("mailFooter");

QVariant taken(SettingsStore& settings, const QString& key) {
    const QVariant value = settings.object(key);
    if (value.isValid()) {
        settings.remove(key);
    }
    return value;
}

/// A preset's members, but for its name; `isOn` tells each switch.
template <typename IsOn>
QVariantMap presetMembers(const IsOn& isOn, const QString& header, const QString& footer) {
    QVariantMap members;
    for (const TXTSwitch& each : txtSwitches()) {
        members.insert(QString::fromLatin1(each.presetKey), isOn(each));
    }
    members.insert(headerMember, presentText(header));
    members.insert(footerMember, presentText(footer));
    return members;
}

bool hasLegacySettings(const SettingsStore& settings) {
    return hasKey(settings, legacyHeaderKey) || hasKey(settings, legacyFooterKey) ||
           std::ranges::any_of(txtSwitches(), [&](const TXTSwitch& each) {
               return each.legacyKey != nullptr &&
                      hasKey(settings, QString::fromLatin1(each.legacyKey));
           });
}

} // namespace

TXTSettingsArrayController::TXTSettingsArrayController(SettingsStore& settings,
                                                       AlertPresenter& alerts)
    : NamedRecordsController(
          settings, alerts,
          {.listKey = QStringLiteral("txtSettings"),
           .nameMember = QStringLiteral("txtSettingsName"),
           .firstStaysMessage = localizable("Cannot delete Default settings"),
           .firstStaysReason = localizable("Default settings cannot be deleted.")}) {}

void TXTSettingsArrayController::awakeFromNib() {
    followStoredList();
    if (!hasKey(settings(), isDefaultCreatedKey)) {
        createDefaultTXTSettings();
        settings().setObject(isDefaultCreatedKey, true);
    }
    if (hasLegacySettings(settings())) {
        migrateMailSettings();
    }
    selectFirstUnlessSelected();
}

void TXTSettingsArrayController::createDefaultTXTSettings() {
    append(localized("Default"),
           presetMembers([](const TXTSwitch& each) { return each.isOnByDefault; }, {}, {}));
}

void TXTSettingsArrayController::migrateMailSettings() {
    const auto isOn = [this](const TXTSwitch& each) {
        if (each.legacyKey != nullptr) {
            return boolFromValue(taken(settings(), QString::fromLatin1(each.legacyKey)));
        }
        // Wrapping had no switch of its own; the days had none at all and stay off.
        const QString key = QString::fromLatin1(each.reportKey);
        return key == wrappingKey && boolForKey(settings(), key);
    };
    const QVariantMap members =
        presetMembers(isOn, stringFromValue(taken(settings(), legacyHeaderKey)),
                      stringFromValue(taken(settings(), legacyFooterKey)));
    append(localized("Mail"), members);
}

void TXTSettingsArrayController::createTXTSettings() {
    const auto isOn = [this](const TXTSwitch& each) {
        return boolForKey(settings(), QString::fromLatin1(each.reportKey));
    };
    append(numberedName(localized("New Settings")),
           presetMembers(isOn, stringForKey(settings(), headerKey),
                         stringForKey(settings(), footerKey)));
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
    settings().setObject(isApplyingKey, true);
    for (const TXTSwitch& each : txtSwitches()) {
        const QVariant value = members.value(QString::fromLatin1(each.presetKey));
        if (isReadableMember(value)) {
            settings().setObject(QString::fromLatin1(each.reportKey), boolFromValue(value));
        }
    }
    for (const auto& [key, member] :
         {std::pair{headerKey, headerMember}, {footerKey, footerMember}}) {
        if (const QVariant value = members.value(member); isReadableMember(value)) {
            settings().setObject(key, stringFromValue(value));
        }
    }
    settings().setObject(isApplyingKey, false);
}

void TXTSettingsArrayController::removeTXTSettings() {
    removeSelected();
}

} // namespace quillet
