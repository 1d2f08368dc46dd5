#include "platform/NamedRecordsController.h"

#include "texts/Localized.h"

#include <tuple>

namespace quillet {

namespace {

using Records = std::vector<NamedRecord>;

/// Where the records of these rows stand in another list; one that is not in it leaves its row to
/// the record that stands there.
std::vector<std::size_t> rowsIn(const Records& now, std::vector<std::size_t> rows,
                                const Records& before) {
    for (std::size_t& row : rows) {
        const NamedRecord& record = before[row];
        if (row < now.size() && now[row] == record) {
            continue;
        }
        if (const auto found = std::ranges::find(now, record); found != now.end()) {
            row = static_cast<std::size_t>(found - now.begin());
        }
    }
    return rows;
}

} // namespace

bool isReadableMember(const QVariant& value) {
    const bool isList = value.typeId() == QMetaType::QVariantList;
    const bool isMap = value.typeId() == QMetaType::QVariantMap;
    return value.isValid() && !isList && !isMap && !dateFromValue(value);
}

QString presentText(const QString& text) {
    return text.isNull() ? QString::fromLatin1("") : text;
}

NamedRecordsController::NamedRecordsController(SettingsStore& settings, AlertPresenter& alerts,
                                               Kind kind)
    : settings_(settings)
    , alerts_(alerts)
    , kind_(std::move(kind)) {}

void NamedRecordsController::followStoredList() {
    kind_.list.writeIfAbsent(settings_);
    read();
    storedList_ = kind_.list.observe(settings_, [this] { read(); });
}

void NamedRecordsController::selectFirstUnlessSelected() {
    if (selectedRows().empty()) {
        setSelectedRows({0});
    }
}

void NamedRecordsController::append(const QString& name, QVariantMap members) {
    members.insert(kind_.nameMember, name);
    Records records = *content();
    records.push_back({.name = name, .members = std::move(members)});
    store(records);
    setSelectedRows({records.size() - 1});
}

QString NamedRecordsController::numberedName(const QString& text) const {
    return text + u' ' + QString::number(content()->size() + 1);
}

void NamedRecordsController::editLastName() {
    Q_EMIT nameEditingRequested(arrangedCount() - 1);
}

void NamedRecordsController::rename(std::size_t row, const QString& name) {
    Records records = *content();
    if (row < records.size()) {
        records[row].members.insert(kind_.nameMember, name);
        store(records);
    }
}

void NamedRecordsController::removeSelected() {
    if (selectedRows().empty()) {
        return;
    }
    const std::size_t row = selectedRows().front();
    if (row == 0) {
        std::ignore = alerts_.runModal({.style = AlertStyle::Warning,
                                        .messageText = localized(kind_.firstStaysMessage),
                                        .informativeText = localized(kind_.firstStaysReason),
                                        .buttonTitles = {localized("OK")}});
        return;
    }
    const NamedRecord doomed = arranged(row);
    const int answer =
        alerts_.runModal({.style = AlertStyle::Warning,
                          .messageText = localized("Delete the record?"),
                          .informativeText = localized("Deleted records cannot be restored."),
                          .buttonTitles = {localized("OK"), localized("Cancel")}});
    // The stored list may have changed under the question.
    if (answer != 0 || row >= arrangedCount() || arranged(row) != doomed) {
        return;
    }
    Records records = *content();
    records.erase(records.begin() + static_cast<std::ptrdiff_t>(row));
    store(records);
    setSelectedRows({std::min(row, records.size() - 1)});
}

void NamedRecordsController::store(const std::vector<NamedRecord>& records) {
    QVariantList elements;
    for (const NamedRecord& record : records) {
        elements.append(record.members);
    }
    kind_.list.write(settings_, elements + otherElements_);
}

void NamedRecordsController::read() {
    Records records;
    otherElements_.clear();
    for (const QVariant& element : kind_.list.read(settings_)) {
        if (element.typeId() == QMetaType::QVariantMap) {
            const QVariantMap members = element.toMap();
            records.push_back(
                {.name = stringFromValue(members.value(kind_.nameMember)), .members = members});
        } else {
            otherElements_.append(element);
        }
    }
    std::vector<std::size_t> rows = rowsIn(records, selectedRows(), *content());
    setContent(std::move(records));
    setSelectedRows(std::move(rows));
}

} // namespace quillet
