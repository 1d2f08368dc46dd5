#include "golden/GoldenWindow.h"

#include "backends/combined/EventOrder.h"

#include <QTimeZone>

#include <algorithm>
#include <stdexcept>

namespace quillet::golden {

namespace {

bool isShownBetween(const Event& event, Instant from, Instant to) {
    return event.startDate < to &&
           (event.startDate == event.endDate ? event.startDate >= from : event.endDate > from);
}

QStringList identifiersOf(const std::vector<CaseColumn>& columns) {
    QStringList identifiers;
    for (const CaseColumn& column : columns) {
        identifiers << column.identifier;
    }
    return identifiers;
}

} // namespace

GoldenWindow::GoldenWindow(const GoldenCase& described)
    : case_(described)
    , access_(folder_.path(), [](const CalendarAccess::Answer& answer) { answer(true); })
    , store_(dataPath() + QStringLiteral("/calendars"), access_, QTimeZone(described.zone.toUtf8()))
    , outside_(described.locale, described.zone, identifiersOf(described.columns)) {
    access_.request([](bool, const std::optional<QString>&) {});
    fillSettings();
    fillTable();
    fillCalendars();
    core_.billing.migrateHourlyRate();
    core_.exportTxtView.awakeFromNib();
    core_.eventNotes.awakeFromNib();
    fillEvents();
}

Instant GoldenWindow::instant(QDate day, int hour, int minute, int second) const {
    return core_.gregorian.instant({.year = day.year(),
                                    .month = day.month(),
                                    .day = day.day(),
                                    .hour = hour,
                                    .minute = minute,
                                    .second = second});
}

void GoldenWindow::fillSettings() {
    for (const auto& [key, value] : case_.settings.asKeyValueRange()) {
        settings_.setObject(key, value);
    }
    settings_.setObject(QStringLiteral("filterStartDate"),
                        QVariant::fromValue(instant(case_.firstDay, 0, 0, 0)));
    settings_.setObject(QStringLiteral("filterEndDate"),
                        QVariant::fromValue(instant(case_.lastDay, 23, 59, 59)));
}

void GoldenWindow::fillTable() {
    for (const CaseColumn& column : case_.columns) {
        TableColumn& shown = outside_.columns.column(column.identifier);
        shown.setWidthPoints(column.widthPoints);
        shown.setHidden(column.isHidden);
    }
}

void GoldenWindow::fillCalendars() {
    const CalendarList known = store_.calendars();
    std::vector<CalendarRecord> records;
    QVariantList stored;
    for (const CaseCalendar& entry : case_.calendars) {
        const auto calendar =
            std::ranges::find(known, entry.title, [](const auto& each) { return each->title; });
        CalendarRecord record;
        record.calendarIdentifier = calendar == known.end() ? QStringLiteral("gone/") + entry.title
                                                            : (*calendar)->calendarIdentifier;
        record.title = entry.title;
        record.isSelected = entry.isSelected;
        if (entry.rate.isValid()) {
            record.rate = decimalFromValue(entry.rate);
        }
        if (entry.isStored) {
            stored.append(valueFromCalendarRecord(record));
        }
        records.push_back(std::move(record));
    }
    settings_.setObject(QStringLiteral("calendars"), stored);
    core_.calendars.setContent(std::move(records));
}

void GoldenWindow::fillEvents() {
    const CalendarList all = store_.calendars();
    const auto isTicked = [this](const std::shared_ptr<const StoreCalendar>& calendar) {
        return std::ranges::any_of(case_.calendars, [&](const CaseCalendar& entry) {
            return entry.isSelected && entry.title == calendar->title;
        });
    };
    CalendarList ticked;
    std::ranges::copy_if(all, std::back_inserter(ticked), isTicked);
    const Instant from = dateForKey(settings_, QStringLiteral("filterStartDate")).value();
    const Instant to = dateForKey(settings_, QStringLiteral("filterEndDate")).value();
    EventList events = store_.events(ticked, from, to);
    EventList further = furtherEvents(all);
    std::erase_if(further, [&](const Event& event) {
        return !isTicked(event.details->calendar) || !isShownBetween(event, from, to);
    });
    mergeDelivered(events, std::move(further));

    core_.events.setContent(std::move(events));
    core_.events.setFilter(case_.search, [this](const Event& event) {
        return event.details->title.contains(case_.search);
    });
    if (case_.isLatestFirst) {
        core_.events.setOrder(
            [](const Event& left, const Event& right) { return left.startDate > right.startDate; });
    }
    std::vector<std::size_t> selected;
    for (std::size_t row = 0; row < core_.events.arrangedCount(); ++row) {
        const Event& event = core_.events.arranged(row);
        if (case_.selected.contains(event.details->eventIdentifier)) {
            selected.push_back(row);
        }
        // As the table on screen does, which brings settings of money up to date.
        (void)core_.fields.valueForKey(event, QStringLiteral("cost"));
    }
    core_.events.setSelectedRows(std::move(selected));
}

QByteArray GoldenWindow::report() const {
    return core_.exportTxtView.eventsAttributedString().text().toUtf8();
}

QByteArray GoldenWindow::notes() const {
    return core_.eventNotes.notes().text().toUtf8();
}

QByteArray GoldenWindow::csv() {
    core_.exportCSV.saveAsCSV();
    return savedFile();
}

QByteArray GoldenWindow::tsv() {
    core_.exportTSV.saveAsTSV();
    return savedFile();
}

QByteArray GoldenWindow::savedFile() {
    const QString path = folder_.filePath(QStringLiteral("saved"));
    QFile::remove(path);
    std::exchange(outside_.panel.pending, {})(path);
    const auto saved = fileContent(path);
    if (!saved) {
        throw std::runtime_error("no file was saved");
    }
    return *saved;
}

std::optional<QByteArray> GoldenWindow::copiedRows() {
    core_.eventItemTableView.copy();
    if (outside_.pasteboard.calls.isEmpty()) {
        return std::nullopt;
    }
    return outside_.pasteboard.content.toUtf8();
}

QStringList GoldenWindow::tableLines() const {
    QString text = core_.exportTxtView.tableViewString();
    text.chop(1);
    return text.split(u'\n') + core_.exportTxtView.summaryRow().split(u'\n');
}

} // namespace quillet::golden
