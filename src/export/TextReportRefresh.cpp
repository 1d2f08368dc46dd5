#include "export/TextReportRefresh.h"

#include "eventtable/EventColumns.h"
#include "export/ExportSelection.h"
#include "export/TXTSettings.h"
#include "platform/Settings.h"

#include <vector>

namespace quillet {

namespace {

std::vector<const SettingKey*> observedSettings() {
    using namespace settings;
    std::vector<const SettingKey*> observed{&isApplyTXTSettingsOn, &isApplyColumnLayoutOn,
                                            &hiddenColumnsChangedTrigger};
    for (const EventColumn& column : eventColumns()) {
        observed.push_back(&column.title);
    }
    observed.insert(observed.end(), {&isDollarsOn, &isSingleRate});
    for (const TXTSwitch& each : txtSwitches()) {
        observed.push_back(each.report);
    }
    observed.insert(observed.end(),
                    {&txtHeader, &txtFooter, &totalsTabViewSelection, &isExportTXTViewOn});
    return observed;
}

} // namespace

TextReportRefresh::TextReportRefresh(SettingsStore& settings,
                                     ListControllerNotices& eventsArrayController)
    : settings_(settings)
    , events_(eventsArrayController) {}

void TextReportRefresh::awakeFromNib() {
    settings::totalsTabViewSelection.writeIfAbsent(settings_);
    settings::isApplyTXTSettingsOn.reset(settings_);
    for (const SettingKey* setting : observedSettings()) {
        observations_.push_back(
            setting->observe(settings_, [this] { updateEventsAttributedString(); }));
    }
    connect(&events_, &ListControllerNotices::arrangedObjectsChanged, this,
            &TextReportRefresh::updateEventsAttributedString);
    connect(&events_, &ListControllerNotices::selectedObjectsChanged, this,
            &TextReportRefresh::selectionChanged);
}

void TextReportRefresh::selectionChanged() {
    if (areOnlySelectedEventsExported(settings_)) {
        updateEventsAttributedString();
    }
}

void TextReportRefresh::updateEventsAttributedString() {
    settings::isExportTXTViewOn.writeIfAbsent(settings_);
    if (settings::isExportTXTViewOn.read(settings_) &&
        !settings::isApplyTXTSettingsOn.read(settings_) &&
        !settings::isApplyColumnLayoutOn.read(settings_)) {
        Q_EMIT eventsAttributedStringChanged();
    }
}

void TextReportRefresh::tableViewChanged() {
    settings::isExportTXTViewOn.writeIfAbsent(settings_);
    if (settings::isExportTXTViewOn.read(settings_) &&
        !settings::isApplyColumnLayoutOn.read(settings_)) {
        Q_EMIT eventsAttributedStringChanged();
    }
}

} // namespace quillet
