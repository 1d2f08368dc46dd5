#pragma once

#include "platform/Observation.h"
#include "platform/SettingsStore.h"

#include <QObject>

namespace quillet {

/// Which controls of the Columns preferences belong to one time type only. Unlike the results
/// panel it hides all three for a time type outside 1 to 3.
class PreferencesColumnsViewController : public QObject {
    Q_OBJECT

public:
    explicit PreferencesColumnsViewController(SettingsStore& settings)
        : settings_(settings) {}

    void awakeFromNib();
    /// Reacts to `timeTypeSelection` alone.
    void observeValueForKeyPath(const QString& keyPath);

    [[nodiscard]] bool isHoursHidden() const;
    [[nodiscard]] bool isMinutesHidden() const;
    [[nodiscard]] bool isDurationHidden() const;

Q_SIGNALS:
    void isHoursHiddenWillChange();
    void isHoursHiddenChanged();
    void isMinutesHiddenWillChange();
    void isMinutesHiddenChanged();
    void isDurationHiddenWillChange();
    void isDurationHiddenChanged();

private:
    void announce();

    SettingsStore& settings_;
    Observation timeType_;
};

} // namespace quillet
