#include "export/TextReportRefresh.h"

#include "eventtable/EventColumns.h"
#include "export/ExportSelection.h"
#include "export/TXTSettings.h"
#include "platform/Settings.h"

#include <QStringList>

namespace quillet {

namespace {

QStringList observedKeys() {
    using namespace settings;
    QStringList keys{isApplyTXTSettingsOn.name(), isApplyColumnLayoutOn.name(),
                     hiddenColumnsChangedTrigger.name()};
    for (const EventColumn& column : eventColumns()) {
        keys << column.title.name();
    }
    keys << isDollarsOn.name() << isSingleRate.name();
    for (const TXTSwitch& each : txtSwitches()) {
        keys << each.report->name();
    }
    return keys << txtHeader.name() << txtFooter.name() << totalsTabViewSelection.name()
                << isExportTXTViewOn.name();
}

} // namespace

TextReportRefresh::TextReportRefresh(SettingsStore& settings,
                                     ListControllerNotices& eventsArrayController)
    : settings_(settings)
    , events_(eventsArrayController) {}

void TextReportRefresh::awakeFromNib() {
    settings::totalsTabViewSelection.writeIfAbsent(settings_);
    settings::isApplyTXTSettingsOn.reset(settings_);
    for (const QString& key : observedKeys()) {
        observations_.push_back(settings_.observe(key, [this] { updateEventsAttributedString(); }));
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
