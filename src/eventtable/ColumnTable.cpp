#include "eventtable/ColumnTable.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr double widthOfUnknownPoints = 100;

} // namespace

TableColumn::TableColumn(QString identifier, const SettingsStore& settings)
    : identifier_(std::move(identifier))
    , settings_(settings)
    , known_(findEventColumn(identifier_))
    , widthPoints_(known_ == nullptr ? widthOfUnknownPoints : known_->placement.widthPoints) {}

TableColumn::~TableColumn() = default;

QString TableColumn::headerTitle() const {
    return known_ == nullptr ? QString() : known_->title.read(settings_);
}

void TableColumn::setWidthPoints(double width) {
    widthPoints_ = width;
    Q_EMIT widthPointsSet();
}

void TableColumn::setHidden(bool isHidden) {
    if (isHidden != isHidden_) {
        isHidden_ = isHidden;
        Q_EMIT isHiddenChanged();
    }
}

ColumnTable::ColumnTable(const SettingsStore& settings)
    : ColumnTable(settings, knownIdentifiers()) {}

ColumnTable::ColumnTable(const SettingsStore& settings, const QStringList& identifiers) {
    for (const QString& identifier : identifiers) {
        const auto& column =
            columns_.emplace_back(std::make_unique<TableColumn>(identifier, settings));
        connect(column.get(), &TableColumn::widthPointsSet, this, [this, &shown = *column] {
            if (!shown.isHidden()) {
                Q_EMIT columnResized();
            }
        });
    }
}

ColumnTable::~ColumnTable() = default;

QStringList ColumnTable::knownIdentifiers() {
    QStringList identifiers;
    for (const EventColumn& column : eventColumns()) {
        identifiers << QString::fromLatin1(column.identifier);
    }
    return identifiers;
}

const TableColumn& ColumnTable::columnAt(int position) const {
    return *columns_.at(static_cast<std::size_t>(position));
}

TableColumn& ColumnTable::columnAt(int position) {
    return *columns_.at(static_cast<std::size_t>(position));
}

int ColumnTable::positionOf(const QString& identifier) const {
    const auto found = std::ranges::find(columns_, identifier,
                                         [](const auto& column) { return column->identifier(); });
    return found == columns_.end() ? -1 : static_cast<int>(found - columns_.begin());
}

TableColumn& ColumnTable::column(const QString& identifier) {
    return columnAt(positionOf(identifier));
}

void ColumnTable::moveColumn(int from, int to) {
    const auto source = columns_.begin() + from;
    const auto target = columns_.begin() + to;
    if (from < to) {
        std::rotate(source, source + 1, target + 1);
    } else if (from > to) {
        std::rotate(target, source, source + 1);
    } else {
        return;
    }
    Q_EMIT columnMoved(from, to);
}

} // namespace quillet
