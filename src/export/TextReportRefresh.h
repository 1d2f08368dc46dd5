#pragma once

#include "platform/ListController.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"

#include <QObject>

#include <vector>

namespace quillet {

/// Tells when the text report has to be built anew: after every change that shows in it, but only
/// while its pane is open, and once for a preset or a column layout that is applied.
class TextReportRefresh : public QObject {
    Q_OBJECT

public:
    TextReportRefresh(SettingsStore& settings, ListControllerNotices& eventsArrayController);

    /// Writes `totalsTabViewSelection` = 0 where absent, turns `isApplyTXTSettingsOn` off, and
    /// begins to observe.
    void awakeFromNib();
    /// Announces the report, unless its pane is closed or a preset or layout is being applied.
    void updateEventsAttributedString();
    /// A column of the event table was moved or resized. A preset being applied does not hold this
    /// back.
    void tableViewChanged();

Q_SIGNALS:
    void eventsAttributedStringChanged();

private:
    void selectionChanged();

    SettingsStore& settings_;
    ListControllerNotices& events_;
    std::vector<Observation> observations_;
};

} // namespace quillet
