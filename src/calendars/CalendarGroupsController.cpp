#include "calendars/CalendarGroupsController.h"

#include "platform/Settings.h"

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

} // namespace

CalendarGroupsController::CalendarGroupsController(const Collaborators& collaborators)
    : with_(collaborators) {}

void CalendarGroupsController::awakeFromNib() {
    settings::calendarGroupsSelectedIndex.writeIfAbsent(with_.settings);
    observations_.push_back(settings::calendarGroupsSelectedIndex.observe(
        with_.settings, [this] { updateFilterPredicate(); }));
    observations_.push_back(settings::isCalendarGroupsSheetActive.observe(with_.settings, [this] {
        if (!settings::isCalendarGroupsSheetActive.read(with_.settings)) {
            updateFilterPredicate();
        }
    }));
    connect(&with_.calendarsArrayController, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { updateFilterPredicate(); });
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
