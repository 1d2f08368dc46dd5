#pragma once

#include "eventdata/EventTotals.h"
#include "eventdata/EventsController.h"
#include "platform/ListController.h"
#include "platform/LocaleFormats.h"
#include "platform/Observation.h"
#include "platform/SettingsStore.h"
#include "results/ResultField.h"

#include <QObject>

#include <array>
#include <optional>
#include <vector>

namespace quillet {

/// Runs the results panel: which of its groups are shown, and what its fields say.
class EventResultsViewController : public QObject {
    Q_OBJECT

public:
    struct Collaborators {
        SettingsStore& settings;
        EventsController& eventsController;
        ListController<Event>& eventsArrayController;
        BillingSettingsSource& billing;
        const LocaleFormats& formats;
    };

    explicit EventResultsViewController(const Collaborators& collaborators);

    /// The panel always opens on all events.
    void awakeFromNib();
    /// Reacts to `timeTypeSelection` alone.
    void observeValueForKeyPath(const QString& keyPath);
    /// Shows the one group of fields that the time type wants. A time type outside 1 to 3 leaves
    /// them as they were; the three changes are announced in any case.
    void setHiddenControls();
    /// Lets only newline characters part a field's text: an amount with a comma is one token.
    void configureTokenFields();

    [[nodiscard]] bool isHoursHidden() const { return isHoursHidden_; }
    [[nodiscard]] bool isMinutesHidden() const { return isMinutesHidden_; }
    [[nodiscard]] bool isDurationHidden() const { return isDurationHidden_; }

    /// What a field shows: amounts in the locale's currency style, numbers with at most two
    /// decimals; empty where there is nothing to tell (extremes of no event, money off).
    [[nodiscard]] QString text(ResultsTab tab, ResultField field);

Q_SIGNALS:
    void isHoursHiddenWillChange();
    void isMinutesHiddenWillChange();
    void isDurationHiddenWillChange();
    void isHoursHiddenChanged();
    void isMinutesHiddenChanged();
    void isDurationHiddenChanged();
    /// Texts of any field may have changed.
    void textsChanged();
    /// The view of one tab's fields is to stand in the tab view.
    void tabContentInstalled(quillet::ResultsTab tab);
    /// Only these characters part a field's text into tokens, where there is a field that does.
    void tokenizingCharactersChanged(const QString& fieldName, const QString& characters);

private:
    void followValues();
    void forgetTotals();
    [[nodiscard]] const EventTotals& totals(ResultsTab tab);
    [[nodiscard]] QVariant aggregate(ResultsTab tab, ResultField field) const;

    Collaborators with_;
    bool isHoursHidden_ = false;
    bool isMinutesHidden_ = false;
    bool isDurationHidden_ = false;
    std::array<std::optional<EventTotals>, 2> totals_;
    std::vector<Observation> observations_;
};

} // namespace quillet
