#include "eventtable/EventItemViewController.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

QString key(const char* name) {
    return QString::fromLatin1(name);
}

const EventColumn& timeColumn(TimeType timeType) {
    return *std::ranges::find(eventColumns(), timeType, &EventColumn::timeType);
}

} // namespace

EventItemViewController::EventItemViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

EventItemViewController::~EventItemViewController() = default;

void EventItemViewController::awakeFromNib() {
    settings::isProgressIndicatorOn.writeIfAbsent(with_.settings);
    for (const EventColumn* titled : columnsInOrderOfTitles()) {
        titled->title.writeIfAbsent(with_.settings);
    }
    QSet<const SettingKey*> observed;
    for (const EventColumn& each : eventColumns()) {
        if (!observed.contains(&each.visibility)) {
            observed.insert(&each.visibility);
            observe(each.visibility, [this] { visibilityChanged(); });
        }
    }
    observe(settings::isDollarsOn, [this] { visibilityChanged(); });
    observe(settings::calendars, [this] { setHourlyRateLabelString(); });
    connect(&with_.calendarsArrayController, &ListControllerNotices::selectedObjectsChanged, this,
            [this] { setHourlyRateLabelString(); });
    observe(settings::timeTypeSelection, [this] { visibilityChanged(); });

    currencySymbol_ = with_.formats.currencySymbol();
    setPeriodLabel();
    setDateRangeLabel();
    setHiddenEventColumns();
    setHourlyRateLabelString();
}

void EventItemViewController::observe(const SettingKey& setting, std::function<void()> reaction) {
    observations_.push_back(setting.observe(with_.settings, std::move(reaction)));
}

void EventItemViewController::visibilityChanged() {
    // Keys that a pass creates are already part of it.
    if (!isPassRunning_) {
        setHiddenEventColumns();
    }
}

TableColumn& EventItemViewController::shown(const EventColumn& column) {
    return with_.eventsTableView.column(key(column.identifier));
}

void EventItemViewController::setHiddenEventColumns() {
    isPassRunning_ = true;
    for (const EventColumn* column : columnsInOrderOfVisibility()) {
        if (column->timeType == TimeType::Hours) {
            setHiddenTimeColumns(*column);
        } else if (!column->timeType) {
            setHiddenByKey(*column);
        }
    }
    isPassRunning_ = false;
    settings::hiddenColumnsChangedTrigger.flip(with_.settings);
}

void EventItemViewController::setHiddenByKey(const EventColumn& column) {
    column.visibility.writeIfAbsent(with_.settings);
    const bool isVisible =
        column.visibility.read(with_.settings) &&
        (column.kind != ColumnKind::Money || settings::isDollarsOn.read(with_.settings));
    shown(column).setHidden(!isVisible);
}

void EventItemViewController::setHiddenTimeColumns(const EventColumn& hours) {
    hours.visibility.writeIfAbsent(with_.settings);
    const qint64 selection = settings::timeTypeSelection.read(with_.settings);
    if (selection < static_cast<qint64>(TimeType::Hours) ||
        selection > static_cast<qint64>(TimeType::Duration)) {
        return;
    }
    const auto timeType = static_cast<TimeType>(selection);
    const EventColumn& chosen = timeColumn(timeType);
    shown(chosen).setHidden(!chosen.visibility.read(with_.settings));
    shownTimeMenuItem_ = timeType;
    Q_EMIT shownTimeMenuItemChanged();
    for (const EventColumn& rival : eventColumns()) {
        if (rival.timeType && rival.timeType != timeType) {
            replaceRival(chosen, rival);
        }
    }
}

void EventItemViewController::replaceRival(const EventColumn& chosen, const EventColumn& rival) {
    TableColumn& rivalColumn = shown(rival);
    if (rivalColumn.isHidden()) {
        return;
    }
    rivalColumn.setHidden(true);
    shown(chosen).setWidthPoints(rivalColumn.widthPoints());
    ColumnTable& table = with_.eventsTableView;
    table.moveColumn(table.positionOf(key(chosen.identifier)),
                     table.positionOf(key(rival.identifier)));
}

void EventItemViewController::resetAllColumnTitles() {
    for (const EventColumn& each : eventColumns()) {
        each.title.reset(with_.settings);
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
    switch (settings::quickDatePeriodIndex.read(with_.settings)) {
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
        periodLabel_ = settings::isCustomDateOn.read(with_.settings)
                           ? localized("Custom")
                           : QStringLiteral("%1 %2").arg(totalDays()).arg(localized("Days"));
        break;
    default:
        periodLabel_.clear();
    }
    Q_EMIT periodLabelStringChanged();
}

void EventItemViewController::setDateRangeLabel() {
    const auto start = settings::eventStartDate.read(with_.settings);
    const auto end = settings::eventEndDate.read(with_.settings);
    const auto text = [&](const std::optional<Instant>& date) {
        return date ? with_.formats.longDate(*date) : QString();
    };
    dateRangeLabel_ = text(start) + QStringLiteral(" - ") + text(end);
    Q_EMIT dateRangeLabelStringChanged();
}

int EventItemViewController::totalDays() const {
    const auto start = settings::eventStartDate.read(with_.settings);
    const auto end = settings::eventEndDate.read(with_.settings);
    if (!start || !end) {
        return 0;
    }
    const double seconds =
        secondsBetween(with_.calendar.startOfDay(*start), with_.calendar.startOfDay(*end));
    return static_cast<int>((seconds + 43'200.0) / 86'400.0 + 1.0);
}

} // namespace quillet
