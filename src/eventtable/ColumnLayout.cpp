#include "eventtable/ColumnLayout.h"

#include "platform/Localized.h"
#include "platform/SettingsStore.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace quillet {

namespace {

const QString nameMember = QStringLiteral("columnLayoutName");

struct DefaultEntry {
    qint64 width;
    qint64 index;
    bool isHidden;
};

/// In the order of eventColumns(). Places repeat and leave gaps: columns are placed one after the
/// other, and a later one shifts those before it.
constexpr std::array<DefaultEntry, eventColumnCount> defaultEntries{{
    {80, 0, false},  // date
    {70, 4, false},  // hours
    {240, 3, false}, // title
    {128, 14, true}, // notes
    {123, 7, true},  // url
    {119, 8, true},  // location
    {105, 11, true}, // weekday
    {105, 15, true}, // endWeekday
    {86, 5, true},   // cost
    {80, 9, true},   // startTime
    {80, 10, true},  // endTime
    {86, 12, true},  // endDate
    {89, 1, false},  // calendar
    {86, 14, true},  // rate
    {70, 4, true},   // duration
    {70, 4, true},   // minutes
}};

/// A column that is nowhere on screen.
class PlannedColumn final : public TableColumn {
public:
    explicit PlannedColumn(const EventColumn& column)
        : column_(column) {}
    [[nodiscard]] QString identifier() const override { return column_.identifier; }
    [[nodiscard]] QString headerTitle() const override { return localized(column_.defaultTitle); }
    [[nodiscard]] double widthPoints() const override { return widthPoints_; }
    void setWidthPoints(double width) override { widthPoints_ = width; }
    [[nodiscard]] bool isHidden() const override { return isHidden_; }
    void setHidden(bool isHidden) override { isHidden_ = isHidden; }

private:
    const EventColumn& column_;
    double widthPoints_ = 0.0;
    bool isHidden_ = false;
};

/// A table on which a layout can be tried: all columns in declared order.
class PlannedTable final : public ColumnTable {
public:
    PlannedTable() {
        for (const EventColumn& column : eventColumns()) {
            columns_.push_back(std::make_unique<PlannedColumn>(column));
        }
    }
    [[nodiscard]] int columnCount() const override { return static_cast<int>(columns_.size()); }
    [[nodiscard]] TableColumn& columnAt(int position) override {
        return *columns_.at(static_cast<std::size_t>(position));
    }
    [[nodiscard]] int positionOf(const QString& identifier) const override {
        const auto found = std::ranges::find(columns_, identifier, &TableColumn::identifier);
        return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
    }
    void moveColumn(int from, int to) override {
        auto column = std::move(columns_.at(static_cast<std::size_t>(from)));
        columns_.erase(columns_.begin() + from);
        columns_.insert(columns_.begin() + to, std::move(column));
    }

private:
    std::vector<std::unique_ptr<PlannedColumn>> columns_;
};

} // namespace

ColumnLayout columnLayoutFromValue(const QVariant& value) {
    QVariantMap members = value.toMap();
    ColumnLayout layout;
    layout.columnLayoutName = stringFromValue(members.take(nameMember));
    for (std::size_t index = 0; index < eventColumnCount; ++index) {
        const QString stem = eventColumns().at(index).stem;
        ColumnLayoutEntry& entry = layout.columns.at(index);
        entry.columnName = stringFromValue(members.take(stem + "ColumnName"));
        entry.columnWidth = integerFromValue(members.take(stem + "ColumnWidth"));
        entry.columnIndex = integerFromValue(members.take(stem + "ColumnIndex"));
        entry.columnIsHidden = boolFromValue(members.take(stem + "ColumnIsHidden"));
    }
    layout.otherMembers = members;
    return layout;
}

QVariant valueFromColumnLayout(const ColumnLayout& layout) {
    QVariantMap members = layout.otherMembers;
    members.insert(nameMember, layout.columnLayoutName);
    for (std::size_t index = 0; index < eventColumnCount; ++index) {
        const QString stem = eventColumns().at(index).stem;
        const ColumnLayoutEntry& entry = layout.columns.at(index);
        members.insert(stem + "ColumnName", entry.columnName);
        members.insert(stem + "ColumnWidth", entry.columnWidth);
        members.insert(stem + "ColumnIndex", entry.columnIndex);
        members.insert(stem + "ColumnIsHidden", entry.columnIsHidden);
    }
    return members;
}

ColumnLayout defaultColumnLayout() {
    ColumnLayout layout;
    layout.columnLayoutName = localized("Default");
    for (std::size_t index = 0; index < eventColumnCount; ++index) {
        const DefaultEntry& entry = defaultEntries.at(index);
        layout.columns.at(index) = {.columnName = localized(eventColumns().at(index).defaultTitle),
                                    .columnWidth = entry.width,
                                    .columnIndex = entry.index,
                                    .columnIsHidden = entry.isHidden};
    }
    return layout;
}

ColumnLayout capturedColumnLayout(ColumnTable& table, const QString& name) {
    ColumnLayout layout;
    layout.columnLayoutName = name;
    for (std::size_t index = 0; index < eventColumnCount; ++index) {
        const int position = table.positionOf(eventColumns().at(index).identifier);
        const TableColumn& column = table.columnAt(position);
        layout.columns.at(index) = {.columnName = column.headerTitle(),
                                    .columnWidth = static_cast<qint64>(column.widthPoints()),
                                    .columnIndex = position,
                                    .columnIsHidden = column.isHidden()};
    }
    return layout;
}

void placeColumn(ColumnTable& table, const EventColumn& column, const ColumnLayoutEntry& entry) {
    const int position = table.positionOf(column.identifier);
    table.columnAt(position).setWidthPoints(static_cast<double>(entry.columnWidth));
    if (entry.columnIndex >= 0 && entry.columnIndex < table.columnCount()) {
        table.moveColumn(position, static_cast<int>(entry.columnIndex));
    }
}

std::vector<ColumnPlacement> defaultColumnOrder() {
    PlannedTable table;
    const ColumnLayout layout = defaultColumnLayout();
    for (std::size_t index = 0; index < eventColumnCount; ++index) {
        const EventColumn& column = eventColumns().at(index);
        const ColumnLayoutEntry& entry = layout.columns.at(index);
        placeColumn(table, column, entry);
        table.columnAt(table.positionOf(column.identifier)).setHidden(entry.columnIsHidden);
    }
    std::vector<ColumnPlacement> placements;
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        placements.push_back({.identifier = column.identifier(),
                              .widthPoints = column.widthPoints(),
                              .isHidden = column.isHidden()});
    }
    return placements;
}

} // namespace quillet
