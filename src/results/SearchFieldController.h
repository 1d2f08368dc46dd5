#pragma once

#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/Predicate.h"
#include "platform/SearchField.h"
#include "platform/SettingsStore.h"

#include <cstddef>
#include <optional>

namespace quillet {

/// Narrows the events list to what is typed in the search field, case ignored. The field's menu
/// chooses where to search; the choice is not kept.
class SearchFieldController {
public:
    struct Collaborators {
        SettingsStore& settings;
        LabelledToolbarItem& searchFieldToolbarItem;
        SearchField& searchField;
        ListController<Event>& eventsArrayController;
    };

    explicit SearchFieldController(const Collaborators& collaborators);

    void awakeFromNib();

    /// Makes the menu for the current `viewMode`, chooses "All" and filters again.
    void setSearchFieldMode();
    /// Searches where the menu's entry at that position, from 0, says; one beyond changes nothing.
    void setSearchCategoryFrom(std::size_t position);
    /// Filters by what stands in the field; to be called whenever that changes. An empty field
    /// filters nothing. In the reminders view no filter is set or removed.
    void updateFilter();

    /// 1 everywhere, 2 titles, 3 notes, 4 locations; 0 before the first choice.
    [[nodiscard]] qint64 searchCategory() const { return searchCategory_; }
    void setSearchCategory(qint64 category) { searchCategory_ = category; }

    /// Kept for whoever sets it: the search goes to the events list directly.
    [[nodiscard]] const std::optional<Predicate>& eventsArrayControllerFilterPredicate() const {
        return eventsArrayControllerFilterPredicate_;
    }
    void setEventsArrayControllerFilterPredicate(std::optional<Predicate> predicate) {
        eventsArrayControllerFilterPredicate_ = std::move(predicate);
    }

private:
    [[nodiscard]] qint64 viewMode() const;

    Collaborators with_;
    SearchMenu menu_;
    qint64 searchCategory_ = 0;
    std::optional<Predicate> eventsArrayControllerFilterPredicate_;
    Observation viewModeObservation_;
};

} // namespace quillet
