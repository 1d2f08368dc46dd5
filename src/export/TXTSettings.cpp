#include "export/TXTSettings.h"

namespace quillet {

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

} // namespace quillet
