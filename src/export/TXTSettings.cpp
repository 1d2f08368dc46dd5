#include "export/TXTSettings.h"

#include "platform/SettingsStore.h"

namespace quillet {

namespace {

const QString nameMember = QStringLiteral("txtSettingsName");
const QString headerMember = QStringLiteral("txtSettingsTxtHeader");
const QString footerMember = QStringLiteral("txtSettingsTxtFooter");

/// Takes a member out of the map; an invalid value, and the member stays, where it cannot be read.
QVariant takenMember(QVariantMap& members, const QString& key) {
    const QVariant value = members.value(key);
    const bool isList = value.typeId() == QMetaType::QVariantList;
    const bool isMap = value.typeId() == QMetaType::QVariantMap;
    return isList || isMap || dateFromValue(value) ? QVariant() : members.take(key);
}

std::optional<bool> takenSwitch(QVariantMap& members, const QString& key) {
    const QVariant value = takenMember(members, key);
    return value.isValid() ? std::optional(boolFromValue(value)) : std::nullopt;
}

std::optional<QString> takenText(QVariantMap& members, const QString& key) {
    const QVariant value = takenMember(members, key);
    return value.isValid() ? std::optional(stringFromValue(value)) : std::nullopt;
}

template <typename Value>
void insertMember(QVariantMap& members, const QString& key, const std::optional<Value>& value) {
    if (value) {
        members.insert(key, *value);
    }
}

} // namespace

const std::array<TXTSwitch, txtSwitchCount>& txtSwitches() {
    static constexpr std::array<TXTSwitch, txtSwitchCount> switches{{
        {"isTXTWrapping", "txtSettingsIsTXTWrapping", true, nullptr},
        {"isTXTSummaryRow", "txtSettingsIsTXTSummaryRow", true, "isMailSummaryRow"},
        {"isTXTTotalEvents", "txtSettingsIsTXTTotalEvents", false, "isMailTotalEvents"},
        {"isTXTDollars", "txtSettingsIsTXTDollars", true, "isMailDollars"},
        {"isTXTTotalHours", "txtSettingsIsTXTTotalHours", true, "isMailTotalHours"},
        {"isTXTMax", "txtSettingsIsTXTMax", false, "isMailMax"},
        {"isTXTMin", "txtSettingsIsTXTMin", false, "isMailMin"},
        {"isTXTAverage", "txtSettingsIsTXTAverage", false, "isMailAverage"},
        {"isTXTEndDate", "txtSettingsIsTXTEndDate", true, "isMailEndDate"},
        {"isTXTBeginDate", "txtSettingsIsTXTBeginDate", true, "isMailBeginDate"},
        {"isTXTCalTitle", "txtSettingsIsTXTCalTitle", true, "isMailCalTitle"},
        {"isTXTTotalDays", "txtSettingsIsTXTTotalDays", false, nullptr},
    }};
    return switches;
}

TXTSettings txtSettingsFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    TXTSettings preset;
    preset.txtSettingsName = takenText(members, nameMember).value_or(QString());
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        const QString key = QString::fromLatin1(txtSwitches().at(index).presetKey);
        preset.switches.at(index) = takenSwitch(members, key);
    }
    preset.txtHeader = takenText(members, headerMember);
    preset.txtFooter = takenText(members, footerMember);
    preset.otherMembers = members;
    return preset;
}

QVariant valueFromTXTSettings(const TXTSettings& preset) {
    QVariantMap members = preset.otherMembers;
    if (!preset.txtSettingsName.isNull()) {
        members.insert(nameMember, preset.txtSettingsName);
    }
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        insertMember(members, QString::fromLatin1(txtSwitches().at(index).presetKey),
                     preset.switches.at(index));
    }
    insertMember(members, headerMember, preset.txtHeader);
    insertMember(members, footerMember, preset.txtFooter);
    return members;
}

} // namespace quillet
