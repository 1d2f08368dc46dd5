#include "calendars/CalendarGroupsController.h"

namespace quillet {

namespace {

const QString indexKey = QStringLiteral("calendarGroupsSelectedIndex");
const QString sheetKey = QStringLiteral("isCalendarGroupsSheetActive");
const QString triggerKey = QStringLiteral("datesChangedTrigger");

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
    setIfAbsent(with_.settings, indexKey, qint64{0});
    observations_.push_back(with_.settings.observe(indexKey, [this] { updateFilterPredicate(); }));
    observations_.push_back(with_.settings.observe(sheetKey, [this] {
        if (!boolForKey(with_.settings, sheetKey)) {
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
    flipBool(with_.settings, triggerKey);
}

std::size_t CalendarGroupsController::calendarGroupsSelectedIndex() const {
    const qint64 index = integerForKey(with_.settings, indexKey);
    const auto count = static_cast<qint64>(with_.calendarGroupsArrayController.arrangedCount());
    return index > 0 && index < count ? static_cast<std::size_t>(index) : 0;
}

void CalendarGroupsController::setCalendarGroupsSelectedIndex(std::size_t position) {
    with_.settings.setObject(indexKey, static_cast<qint64>(position));
}

} // namespace quillet
