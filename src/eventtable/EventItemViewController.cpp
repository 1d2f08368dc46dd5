#include "eventtable/EventItemViewController.h"

#include "texts/Localized.h"

#include <QSet>

namespace quillet {

namespace {

const QString timeTypeKey = QStringLiteral("timeTypeSelection");
const QString moneyKey = QStringLiteral("isDollarsOn");

QString key(const char* name) {
    return QString::fromLatin1(name);
}

/// The time columns: the chosen one first, then its rivals in the order in which they give way.
std::array<const char*, 3> timeColumns(TimeType chosen) {
    switch (chosen) {
    case TimeType::Hours:
        return {"hours", "duration", "minutes"};
    case TimeType::Minutes:
        return {"minutes", "hours", "duration"};
    case TimeType::Duration:
        break;
    }
    return {"duration", "hours", "minutes"};
}

} // namespace

EventItemViewController::EventItemViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

EventItemViewController::~EventItemViewController() = default;

void EventItemViewController::awakeFromNib() {
    setIfAbsent(with_.settings, QStringLiteral("isProgressIndicatorOn"), false);
    for (const char* identifier :
         {"title", "hours", "minutes", "duration", "date", "endDate", "notes", "location", "url",
          "start", "end", "weekday", "endWeekday", "calendar", "rate", "cost"}) {
        const EventColumn& titled = eventColumn(key(identifier));
        setIfAbsent(with_.settings, key(titled.titleKey), localized(titled.defaultTitle));
    }
    QSet<QString> observed;
    for (const EventColumn& each : eventColumns()) {
        if (!observed.contains(key(each.visibilityKey))) {
            observed.insert(key(each.visibilityKey));
            observe(each.visibilityKey, [this] { visibilityChanged(); });
        }
    }
    observe("isDollarsOn", [this] { visibilityChanged(); });
    observe("calendars", [this] { setHourlyRateLabelString(); });
    connect(&with_.calendarsArrayController, &ListControllerNotices::selectedObjectsChanged, this,
            [this] { setHourlyRateLabelString(); });
    observe("timeTypeSelection", [this] { visibilityChanged(); });

    currencySymbol_ = with_.formats.currencySymbol();
    setPeriodLabel();
    setDateRangeLabel();
    setHiddenEventColumns();
    setHourlyRateLabelString();
}

void EventItemViewController::observe(const char* settingsKey, std::function<void()> reaction) {
    observations_.push_back(with_.settings.observe(key(settingsKey), std::move(reaction)));
}

void EventItemViewController::visibilityChanged() {
    // Keys that a pass creates are already part of it.
    if (!isPassRunning_) {
        setHiddenEventColumns();
    }
}

TableColumn& EventItemViewController::column(const char* identifier) {
    return with_.eventsTableView.columnAt(with_.eventsTableView.positionOf(key(identifier)));
}

void EventItemViewController::setHiddenEventColumns() {
    isPassRunning_ = true;
    setHiddenByKey(eventColumn(QStringLiteral("date")));
    setHiddenTimeColumns();
    for (const char* identifier : {"title", "notes", "url", "location", "weekday"}) {
        setHiddenByKey(eventColumn(key(identifier)));
    }
    setHiddenMoneyColumns();
    for (const char* identifier : {"start", "end", "endDate", "calendar", "endWeekday"}) {
        setHiddenByKey(eventColumn(key(identifier)));
    }
    isPassRunning_ = false;
    flipBool(with_.settings, QStringLiteral("hiddenColumnsChangedTrigger"));
}

void EventItemViewController::setHiddenByKey(const EventColumn& shown) {
    setIfAbsent(with_.settings, key(shown.visibilityKey), shown.isVisibleByDefault);
    column(shown.identifier).setHidden(!boolForKey(with_.settings, key(shown.visibilityKey)));
}

void EventItemViewController::setHiddenTimeColumns() {
    const EventColumn& hours = eventColumn(QStringLiteral("hours"));
    setIfAbsent(with_.settings, key(hours.visibilityKey), hours.isVisibleByDefault);
    const qint64 selection = integerForKey(with_.settings, timeTypeKey);
    if (selection < static_cast<qint64>(TimeType::Hours) ||
        selection > static_cast<qint64>(TimeType::Duration)) {
        return;
    }
    const auto timeType = static_cast<TimeType>(selection);
    const auto [chosen, firstRival, secondRival] = timeColumns(timeType);
    column(chosen).setHidden(!boolForKey(with_.settings, key(hours.visibilityKey)));
    shownTimeMenuItem_ = timeType;
    Q_EMIT shownTimeMenuItemChanged();
    replaceRival(chosen, firstRival);
    replaceRival(chosen, secondRival);
}

void EventItemViewController::replaceRival(const char* chosen, const char* rival) {
    TableColumn& rivalColumn = column(rival);
    if (rivalColumn.isHidden()) {
        return;
    }
    rivalColumn.setHidden(true);
    column(chosen).setWidthPoints(rivalColumn.widthPoints());
    ColumnTable& table = with_.eventsTableView;
    table.moveColumn(table.positionOf(key(chosen)), table.positionOf(key(rival)));
}

void EventItemViewController::setHiddenMoneyColumns() {
    for (const char* identifier : {"cost", "rate"}) {
        setHiddenByKey(eventColumn(key(identifier)));
        if (!boolForKey(with_.settings, moneyKey)) {
            column(identifier).setHidden(true);
        }
    }
}

void EventItemViewController::resetAllColumnTitles() {
    for (const EventColumn& each : eventColumns()) {
        with_.settings.setObject(key(each.titleKey), localized(each.defaultTitle));
    }
}

void EventItemViewController::setHourlyRateLabelString() {
    const std::vector<CalendarRecord> selected = with_.calendarsArrayController.selectedObjects();
    if (selected.empty()) {
        return;
    }
    // Several calendars have no name, but the blank behind it stays.
    const QString name = selected.size() == 1 ? selected.front().title : QString();
    hourlyRateLabel_ =
        QStringLiteral("%1 %2 %3: %4")
            .arg(name, localized("Calendar"), localized("Hourly Rate"), currencySymbol_);
    Q_EMIT hourlyRateLabelStringChanged();
}

void EventItemViewController::setPeriodLabel() {
    switch (integerForKey(with_.settings, QStringLiteral("quickDatePeriodIndex"))) {
    case 0:
        periodLabel_ = localized("Day");
        break;
    case 1:
        periodLabel_ = localized("Week");
        break;
    case 2:
        periodLabel_ = localized("Month");
        break;
    case 3:
        periodLabel_ = localized("Year");
        break;
    case 4:
        periodLabel_ = boolForKey(with_.settings, QStringLiteral("isCustomDateOn"))
                           ? localized("Custom")
                           : QStringLiteral("%1 %2").arg(totalDays()).arg(localized("Days"));
        break;
    default:
        periodLabel_.clear();
    }
    Q_EMIT periodLabelStringChanged();
}

void EventItemViewController::setDateRangeLabel() {
    const auto start = dateForKey(with_.settings, QStringLiteral("eventStartDate"));
    const auto end = dateForKey(with_.settings, QStringLiteral("eventEndDate"));
    const auto text = [&](const std::optional<Instant>& date) {
        return date ? with_.formats.longDate(*date) : QString();
    };
    dateRangeLabel_ = text(start) + QStringLiteral(" - ") + text(end);
    Q_EMIT dateRangeLabelStringChanged();
}

int EventItemViewController::totalDays() const {
    const auto start = dateForKey(with_.settings, QStringLiteral("eventStartDate"));
    const auto end = dateForKey(with_.settings, QStringLiteral("eventEndDate"));
    if (!start || !end) {
        return 0;
    }
    const double seconds =
        secondsBetween(with_.calendar.startOfDay(*start), with_.calendar.startOfDay(*end));
    return static_cast<int>((seconds + 43'200.0) / 86'400.0 + 1.0);
}

} // namespace quillet
