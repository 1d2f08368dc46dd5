#include "export/TextReportRefresh.h"

#include "eventtable/EventColumns.h"
#include "export/ExportSelection.h"
#include "export/TXTSettings.h"

#include <QStringList>

namespace quillet {

namespace {

constexpr const char* isApplyingPreset = "isApplyTXTSettingsOn";
constexpr const char* isApplyingLayout = "isApplyColumnLayoutOn";
constexpr const char* isPaneOpen = "isExportTXTViewOn";

QStringList observedKeys() {
    QStringList keys{isApplyingPreset, isApplyingLayout, "hiddenColumnsChangedTrigger"};
    for (const EventColumn& column : eventColumns()) {
        keys << QString::fromLatin1(column.titleKey);
    }
    keys << "isDollarsOn"
         << "isSingleRate";
    for (const TXTSwitch& each : txtSwitches()) {
        keys << QString::fromLatin1(each.reportKey);
    }
    return keys << "txtHeader"
                << "txtFooter"
                << "totalsTabViewSelection" << isPaneOpen;
}

} // namespace

TextReportRefresh::TextReportRefresh(SettingsStore& settings,
                                     ListControllerNotices& eventsArrayController)
    : settings_(settings)
    , events_(eventsArrayController) {}

void TextReportRefresh::awakeFromNib() {
    setIfAbsent(settings_, QStringLiteral("totalsTabViewSelection"), qint64(0));
    settings_.setObject(QString::fromLatin1(isApplyingPreset), false);
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

bool TextReportRefresh::isOn(const char* key) const {
    return boolForKey(settings_, QString::fromLatin1(key));
}

void TextReportRefresh::updateEventsAttributedString() {
    setIfAbsent(settings_, QString::fromLatin1(isPaneOpen), false);
    if (isOn(isPaneOpen) && !isOn(isApplyingPreset) && !isOn(isApplyingLayout)) {
        Q_EMIT eventsAttributedStringChanged();
    }
}

void TextReportRefresh::tableViewChanged() {
    setIfAbsent(settings_, QString::fromLatin1(isPaneOpen), false);
    if (isOn(isPaneOpen) && !isOn(isApplyingLayout)) {
        Q_EMIT eventsAttributedStringChanged();
    }
}

} // namespace quillet
