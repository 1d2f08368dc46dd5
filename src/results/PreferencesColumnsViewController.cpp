#include "results/PreferencesColumnsViewController.h"

namespace quillet {

namespace {

const QString timeTypeKey = QStringLiteral("timeTypeSelection");

} // namespace

void PreferencesColumnsViewController::awakeFromNib() {
    setIfAbsent(settings_, timeTypeKey, qint64(1));
    timeType_ = settings_.observe(timeTypeKey, [this] { observeValueForKeyPath(timeTypeKey); });
    announce();
}

void PreferencesColumnsViewController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == timeTypeKey) {
        announce();
    }
}

bool PreferencesColumnsViewController::isHoursHidden() const {
    return integerForKey(settings_, timeTypeKey) != 1;
}

bool PreferencesColumnsViewController::isMinutesHidden() const {
    return integerForKey(settings_, timeTypeKey) != 2;
}

bool PreferencesColumnsViewController::isDurationHidden() const {
    return integerForKey(settings_, timeTypeKey) != 3;
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
