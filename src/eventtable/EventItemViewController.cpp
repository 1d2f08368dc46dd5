#include "eventtable/EventItemViewController.h"

#include "platform/Localized.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace quillet {

namespace {

using Name = EventColumnName;

const QString timeTypeKey = QStringLiteral("timeTypeSelection");
const QString moneyKey = QStringLiteral("isDollarsOn");

/// The order in which absent titles are written.
constexpr std::array titleOrder{Name::Title,      Name::Hours,    Name::Minutes, Name::Duration,
                                Name::Date,       Name::EndDate,  Name::Notes,   Name::Location,
                                Name::Url,        Name::Start,    Name::End,     Name::Weekday,
                                Name::EndWeekday, Name::Calendar, Name::Rate,    Name::Cost};

bool isVisibilityKey(const QString& key) {
    return std::ranges::any_of(
        eventColumns(), [&](const EventColumn& column) { return column.visibilityKey == key; });
}

} // namespace

EventItemViewController::EventItemViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

void EventItemViewController::awakeFromNib() {
    setIfAbsent(with_.settings, QStringLiteral("isProgressIndicatorOn"), false);
    for (const Name name : titleOrder) {
        const EventColumn& column = eventColumn(name);
        setIfAbsent(with_.settings, column.titleKey, localized(column.defaultTitle));
    }
    registerForChanges();
    currencySymbol_ = with_.formats.currencySymbol();
    Q_EMIT currencySymbolChanged();
    setPeriodLabel();
    setDateRangeLabel();
    setHiddenEventColumns();
    setHourlyRateLabelString();
}

void EventItemViewController::registerForChanges() {
    QStringList keys;
    for (const EventColumn& column : eventColumns()) {
        if (!keys.contains(column.visibilityKey)) {
            keys.append(column.visibilityKey);
        }
    }
    keys << moneyKey << QStringLiteral("calendars") << timeTypeKey
         << QStringLiteral("isEventProgressIndicatorOn");
    for (const QString& key : std::as_const(keys)) {
        observations_.push_back(
            with_.settings.observe(key, [this, key] { observeValueForKeyPath(key); }));
    }
    connect(&with_.calendarsArrayController, &ListControllerNotices::selectedObjectsChanged, this,
            [this] { observeValueForKeyPath(QStringLiteral("selection")); });
}

void EventItemViewController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == u"eventStartDate" || keyPath == u"eventEndDate") {
        setDateRangeLabel();
    }
    if (keyPath == u"quickDatePeriodIndex") {
        setPeriodLabel();
    }
    if (keyPath == u"calendars" || keyPath == u"selection") {
        setHourlyRateLabelString();
    }
    const bool isForColumns =
        keyPath == timeTypeKey || keyPath == moneyKey || isVisibilityKey(keyPath);
    // A key that a pass itself creates must not start another.
    if (isForColumns && !isCreatingKey_) {
        setHiddenEventColumns();
    }
}

void EventItemViewController::setHiddenEventColumns() {
    followVisibilityKey(Name::Date);
    ensureVisibilityKey(Name::Hours);
    showTimeColumn();
    for (const Name name : {Name::Title, Name::Notes, Name::Url, Name::Location, Name::Weekday}) {
        followVisibilityKey(name);
    }
    ensureVisibilityKey(Name::Cost);
    ensureVisibilityKey(Name::Rate);
    const bool isMoneyOn = boolForKey(with_.settings, moneyKey);
    for (const Name name : {Name::Cost, Name::Rate}) {
        column(name).setHidden(!isMoneyOn || !isVisible(name));
    }
    for (const Name name :
         {Name::Start, Name::End, Name::EndDate, Name::Calendar, Name::EndWeekday}) {
        followVisibilityKey(name);
    }
    flipBool(with_.settings, QStringLiteral("hiddenColumnsChangedTrigger"));
}

void EventItemViewController::showTimeColumn() {
    struct TimeType {
        Name chosen;
        Name firstRival;
        Name secondRival;
    };
    static constexpr std::array types{
        TimeType{Name::Hours, Name::Duration, Name::Minutes},
        TimeType{Name::Minutes, Name::Hours, Name::Duration},
        TimeType{Name::Duration, Name::Hours, Name::Minutes},
    };
    const qint64 selection = integerForKey(with_.settings, timeTypeKey);
    if (selection < 1 || selection > std::ssize(types)) {
        return;
    }
    const TimeType& type = types.at(static_cast<std::size_t>(selection - 1));
    column(type.chosen).setHidden(!isVisible(type.chosen));
    for (const TimeTypeMenuItems* items : {&with_.menuItems, &with_.txtMenuItems}) {
        items->hours.setHidden(type.chosen != Name::Hours);
        items->minutes.setHidden(type.chosen != Name::Minutes);
        items->duration.setHidden(type.chosen != Name::Duration);
    }
    replaceTimeColumn(type.chosen, type.firstRival);
    replaceTimeColumn(type.chosen, type.secondRival);
}

void EventItemViewController::replaceTimeColumn(Name chosen, Name rival) {
    TableColumn& replaced = column(rival);
    if (replaced.isHidden()) {
        return;
    }
    replaced.setHidden(true);
    column(chosen).setWidthPoints(replaced.widthPoints());
    ColumnTable& table = with_.eventsTableView;
    table.moveColumn(table.positionOf(eventColumn(chosen).identifier),
                     table.positionOf(eventColumn(rival).identifier));
}

void EventItemViewController::resetAllColumnTitles() {
    for (const Name name : titleOrder) {
        const EventColumn& column = eventColumn(name);
        with_.settings.setObject(column.titleKey, localized(column.defaultTitle));
    }
}

void EventItemViewController::setHourlyRateLabelString() {
    const auto& controller = with_.calendarsArrayController;
    const auto& selectedRows = controller.selectedRows();
    if (selectedRows.empty()) {
        return;
    }
    const QString name =
        selectedRows.size() == 1 ? controller.arranged(selectedRows.front()).title : QString();
    hourlyRateLabelString_ = name + u' ' + localized("Calendar") + u' ' + localized("Hourly Rate") +
                             ": " + currencySymbol_;
    Q_EMIT hourlyRateLabelStringChanged();
}

void EventItemViewController::setPeriodLabel() {
    switch (integerForKey(with_.settings, QStringLiteral("quickDatePeriodIndex"))) {
    case 0:
        periodLabelString_ = localized("Day");
        break;
    case 1:
        periodLabelString_ = localized("Week");
        break;
    case 2:
        periodLabelString_ = localized("Month");
        break;
    case 3:
        periodLabelString_ = localized("Year");
        break;
    case 4:
        periodLabelString_ = boolForKey(with_.settings, QStringLiteral("isCustomDateOn"))
                                 ? localized("Custom")
                                 : QString::number(totalDays()) + u' ' + localized("Days");
        break;
    default:
        periodLabelString_ = QString();
    }
    Q_EMIT periodLabelStringChanged();
}

void EventItemViewController::setDateRangeLabel() {
    dateRangeLabelString_ =
        formatDate(dateForKey(with_.settings, QStringLiteral("eventStartDate"))) + " - " +
        formatDate(dateForKey(with_.settings, QStringLiteral("eventEndDate")));
    Q_EMIT dateRangeLabelStringChanged();
}

QString EventItemViewController::formatDate(std::optional<Instant> date) const {
    return date ? with_.formats.longDate(*date) : QString();
}

qint64 EventItemViewController::totalDays() const {
    const auto start = dateForKey(with_.settings, QStringLiteral("eventStartDate"));
    const auto end = dateForKey(with_.settings, QStringLiteral("eventEndDate"));
    if (!start || !end) {
        return 0;
    }
    const auto dayOf = [this](Instant date) {
        const DateComponents fields = with_.calendar.components(date);
        return with_.calendar.instant(
            {.year = fields.year, .month = fields.month, .day = fields.day});
    };
    // Half a day absorbs the hours that clock changes add or take.
    const double seconds = secondsBetween(dayOf(*start), dayOf(*end)) + 43200.0;
    return static_cast<qint64>(seconds / 86400.0 + 1.0);
}

TableColumn& EventItemViewController::column(Name name) const {
    return with_.eventsTableView.columnAt(
        with_.eventsTableView.positionOf(eventColumn(name).identifier));
}

bool EventItemViewController::isVisible(Name name) {
    ensureVisibilityKey(name);
    return boolForKey(with_.settings, eventColumn(name).visibilityKey);
}

void EventItemViewController::ensureVisibilityKey(Name name) {
    isCreatingKey_ = true;
    const EventColumn& column = eventColumn(name);
    setIfAbsent(with_.settings, column.visibilityKey, column.isVisibleByDefault);
    isCreatingKey_ = false;
}

void EventItemViewController::followVisibilityKey(Name name) {
    column(name).setHidden(!isVisible(name));
}

} // namespace quillet
