#include "export/TXTSettings.h"

#include "platform/Settings.h"

namespace quillet {

std::span<const TXTSwitch> txtSwitches() {
    using namespace settings;
    static constexpr auto switches = std::to_array<TXTSwitch>({
        {&isTXTWrapping, nullptr},
        {&isTXTSummaryRow, &isMailSummaryRow},
        {&isTXTTotalEvents, &isMailTotalEvents},
        {&isTXTDollars, &isMailDollars},
        {&isTXTTotalHours, &isMailTotalHours},
        {&isTXTMax, &isMailMax},
        {&isTXTMin, &isMailMin},
        {&isTXTAverage, &isMailAverage},
        {&isTXTEndDate, &isMailEndDate},
        {&isTXTBeginDate, &isMailBeginDate},
        {&isTXTCalTitle, &isMailCalTitle},
        {&isTXTTotalDays, nullptr},
    });
    return switches;
}

QString presetMember(const SettingKey& setting) {
    QString key = setting.name();
    key[0] = key[0].toUpper();
    return settings::txtSettings.name() + key;
}

} // namespace quillet
