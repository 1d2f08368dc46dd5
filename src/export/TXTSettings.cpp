#include "export/TXTSettings.h"

#include "platform/SettingsStore.h"

namespace quillet {

namespace {

const QString nameMember = QStringLiteral("txtSettingsName");
const QString headerMember = QStringLiteral("txtSettingsTxtHeader");
const QString footerMember = QStringLiteral("txtSettingsTxtFooter");

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
    preset.txtSettingsName = stringFromValue(members.take(nameMember));
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        const QString key = QString::fromLatin1(txtSwitches().at(index).presetKey);
        preset.switches.at(index) = boolFromValue(members.take(key));
    }
    preset.txtHeader += stringFromValue(members.take(headerMember));
    preset.txtFooter += stringFromValue(members.take(footerMember));
    preset.otherMembers = members;
    return preset;
}

QVariant valueFromTXTSettings(const TXTSettings& preset) {
    QVariantMap members = preset.otherMembers;
    members.insert(nameMember, preset.txtSettingsName);
    for (std::size_t index = 0; index < txtSwitchCount; ++index) {
        members.insert(QString::fromLatin1(txtSwitches().at(index).presetKey),
                       preset.switches.at(index));
    }
    members.insert(headerMember, preset.txtHeader);
    members.insert(footerMember, preset.txtFooter);
    return members;
}

} // namespace quillet
