#pragma once

#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/Predicate.h"
#include "platform/SettingsStore.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace quillet {

/// An entry of a search field's menu: where to search.
struct SearchMenuItem {
    QString title;
    qint64 tag = 0;
    bool isTicked = false;

    friend bool operator==(const SearchMenuItem&, const SearchMenuItem&) = default;
};

struct SearchMenu {
    QString title;
    /// Their positions, from 0, tell which one the user chose.
    std::vector<SearchMenuItem> items;

    friend bool operator==(const SearchMenu&, const SearchMenu&) = default;
};

/// Narrows the events list to what is typed in the search field, case ignored. The field's menu
/// chooses where to search; the choice is not kept.
class SearchFieldController : public QObject {
    Q_OBJECT

public:
    SearchFieldController(SettingsStore& settings, ListController<Event>& eventsArrayController);
    ~SearchFieldController() override;
    Q_DISABLE_COPY_MOVE(SearchFieldController)

    void awakeFromNib();

    /// Makes the menu for the current `viewMode`, chooses "All" and filters again.
    void setSearchFieldMode();
    /// Searches where the menu's entry at that position, from 0, says; one beyond changes nothing.
    void setSearchCategoryFrom(std::size_t position);
    /// What stands in the field is another text now; filters by it.
    void setSearchText(const QString& text);
    /// Filters by what stands in the field. An empty field filters nothing. In the reminders view
    /// no filter is set or removed.
    void updateFilter();

    [[nodiscard]] const SearchMenu& searchMenuTemplate() const { return menu_; }
    /// What an empty field shows.
    [[nodiscard]] QString placeholderString() const { return placeholder_; }
    /// Of the toolbar item that holds the field, there and where it is offered for the toolbar.
    [[nodiscard]] QString toolbarItemLabel() const { return label_; }

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

Q_SIGNALS:
    void searchMenuTemplateChanged();
    void placeholderStringChanged();
    void toolbarItemLabelChanged();

private:
    [[nodiscard]] qint64 viewMode() const;

    SettingsStore& settings_;
    ListController<Event>& eventsArrayController_;
    QString text_;
    SearchMenu menu_;
    QString placeholder_;
    QString label_;
    qint64 searchCategory_ = 0;
    std::optional<Predicate> eventsArrayControllerFilterPredicate_;
    Observation viewModeObservation_;
};

} // namespace quillet
