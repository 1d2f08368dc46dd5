#include "calendars/CalendarGroupsController.h"

#include "platform/Settings.h"

#include <algorithm>
#include <functional>

namespace quillet {

namespace {

constexpr double firstFetchDelaySeconds = 1.5;

/// The condition that the ticked calendars meet; one that no calendar meets when none is ticked.
QString conditionForTicked(const CalendarGroupEntries& entries) {
    QString text;
    for (const CalendarGroupEntry& entry : entries) {
        if (entry.isSelected) {
            text += text.isEmpty() ? QStringLiteral("calendarIdentifier = \"")
                                   : QStringLiteral(" OR calendarIdentifier = \"");
            text += entry.calendarIdentifier + QStringLiteral("\"");
        }
    }
    return text.isEmpty() ? QStringLiteral("calendarIdentifier = \"000\"") : text;
}

/// Where the group stands in a list that was written from elsewhere, whose groups nothing but their
/// content tells apart; 0 when it is there no more.
std::size_t positionByContent(const std::vector<CalendarGroup>& before, std::size_t chosen,
                              const std::vector<CalendarGroup>& now) {
    using Condition = std::function<bool(const CalendarGroup&)>;
    const CalendarGroup& wanted = before[chosen];
    const auto isSame = [&](const CalendarGroup& group) {
        return group.calendarGroupName == wanted.calendarGroupName &&
               group.calendarGroupArray == wanted.calendarGroupArray;
    };
    const auto isNamesake = [&](const CalendarGroup& group) {
        return group.calendarGroupName == wanted.calendarGroupName;
    };
    for (const Condition& isWanted : {Condition(isSame), Condition(isNamesake)}) {
        // Two groups may be alike: of these the one in its place is meant.
        if (chosen < now.size() && isWanted(now[chosen])) {
            return chosen;
        }
        const auto found = std::find_if(now.begin() + 1, now.end(), isWanted);
        if (found != now.end()) {
            return static_cast<std::size_t>(found - now.begin());
        }
    }
    // As many as before: one was renamed rather than deleted and another one made.
    return now.size() == before.size() ? chosen : 0;
}

std::size_t newPosition(const std::vector<CalendarGroup>& before, std::size_t chosen,
                        const std::vector<CalendarGroup>& now) {
    if (chosen == 0 || now.empty()) {
        return 0;
    }
    // The first group is never deleted: when it is the same one, the list was edited here, and
    // every group is known by its instance.
    if (now.front().instance == 0 || now.front().instance != before.front().instance) {
        return positionByContent(before, chosen, now);
    }
    const auto found = std::ranges::find(now, before[chosen].instance, &CalendarGroup::instance);
    return found == now.end() ? 0 : static_cast<std::size_t>(found - now.begin());
}

} // namespace

CalendarGroupsController::CalendarGroupsController(const Collaborators& collaborators)
    : with_(collaborators) {}

void CalendarGroupsController::awakeFromNib() {
    settings::calendarGroupsSelectedIndex.writeIfAbsent(with_.settings);
    observations_.push_back(settings::calendarGroupsSelectedIndex.observe(with_.settings, [this] {
        noteChosenGroup();
        // What is edited in the sheet takes effect when that closes.
        if (!isFollowing_ || !settings::isCalendarGroupsSheetActive.read(with_.settings)) {
            updateFilterPredicate();
        }
    }));
    observations_.push_back(settings::isCalendarGroupsSheetActive.observe(with_.settings, [this] {
        if (!settings::isCalendarGroupsSheetActive.read(with_.settings)) {
            updateFilterPredicate();
        }
    }));
    connect(&with_.calendarsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { updateFilterPredicate(); });
    connect(&with_.calendarGroupsArrayController, &ListControllerNotices::arrangedObjectsChanged,
            this, [this] { followChosenGroup(); });
    noteChosenGroup();
    updateFilterPredicate();
    with_.timer.start(firstFetchDelaySeconds, [this] { triggerEventsArrayUpdate(); });
}

void CalendarGroupsController::updateFilterPredicate() {
    const std::size_t position = calendarGroupsSelectedIndex();
    if (position == 0) {
        with_.calendarsArrayController.setFilter({}, {});
        return;
    }
    const QString text = conditionForTicked(
        with_.calendarGroupsArrayController.arranged(position).calendarGroupArray);
    with_.calendarsArrayController.setFilter(text, [condition = Predicate::parse(text)](
                                                       const CalendarRecord& record) {
        return condition && condition->matches([&](const QString& key) {
            return key == u"calendarIdentifier" ? QVariant(record.calendarIdentifier) : QVariant();
        });
    });
}

void CalendarGroupsController::noteChosenGroup() {
    groups_ = with_.calendarGroupsArrayController.content();
    chosen_ = calendarGroupsSelectedIndex();
}

void CalendarGroupsController::followChosenGroup() {
    const std::size_t position =
        newPosition(*groups_, chosen_, *with_.calendarGroupsArrayController.content());
    if (static_cast<qint64>(position) !=
        settings::calendarGroupsSelectedIndex.read(with_.settings)) {
        isFollowing_ = true;
        setCalendarGroupsSelectedIndex(position);
        isFollowing_ = false;
    } else {
        noteChosenGroup();
    }
}

void CalendarGroupsController::triggerEventsArrayUpdate() {
    settings::datesChangedTrigger.flip(with_.settings);
}

std::size_t CalendarGroupsController::calendarGroupsSelectedIndex() const {
    const qint64 index = settings::calendarGroupsSelectedIndex.read(with_.settings);
    const auto count = static_cast<qint64>(with_.calendarGroupsArrayController.arrangedCount());
    return index > 0 && index < count ? static_cast<std::size_t>(index) : 0;
}

void CalendarGroupsController::setCalendarGroupsSelectedIndex(std::size_t position) {
    settings::calendarGroupsSelectedIndex.write(with_.settings, static_cast<qint64>(position));
}

} // namespace quillet
