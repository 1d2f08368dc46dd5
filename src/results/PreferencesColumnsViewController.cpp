#include "results/PreferencesColumnsViewController.h"

#include "platform/Settings.h"

namespace quillet {

void PreferencesColumnsViewController::awakeFromNib() {
    settings::timeTypeSelection.writeIfAbsent(settings_);
    timeType_ = settings::timeTypeSelection.observe(
        settings_, [this] { observeValueForKeyPath(settings::timeTypeSelection.name()); });
    announce();
}

void PreferencesColumnsViewController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == settings::timeTypeSelection.name()) {
        announce();
    }
}

bool PreferencesColumnsViewController::isHoursHidden() const {
    return settings::timeTypeSelection.read(settings_) != 1;
}

bool PreferencesColumnsViewController::isMinutesHidden() const {
    return settings::timeTypeSelection.read(settings_) != 2;
}

bool PreferencesColumnsViewController::isDurationHidden() const {
    return settings::timeTypeSelection.read(settings_) != 3;
}

void PreferencesColumnsViewController::announce() {
    Q_EMIT isHoursHiddenWillChange();
    Q_EMIT isHoursHiddenChanged();
    Q_EMIT isMinutesHiddenWillChange();
    Q_EMIT isMinutesHiddenChanged();
    Q_EMIT isDurationHiddenWillChange();
    Q_EMIT isDurationHiddenChanged();
}

} // namespace quillet
