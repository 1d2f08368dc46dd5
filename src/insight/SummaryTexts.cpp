#include "insight/SummaryTexts.h"

#include "insight/Slices.h"
#include "texts/Localized.h"

#include <QStringList>

#include <algorithm>
#include <chrono>
#include <compare>

namespace quillet {

namespace {

using namespace std::chrono_literals;

/// -1, 0 or 1 for two amounts of money, where neither is missing or not a number.
int orderOf(const Decimal& left, const Decimal& right) {
    const std::partial_ordering order = left <=> right;
    return order < 0 ? -1 : static_cast<int>(order > 0);
}

/// A row with what it is sorted by.
struct SortedRow {
    SummaryRow row;
    QByteArray nameKey;
};

/// Puts rows in order by one column.
class RowOrder {
public:
    RowOrder(SummaryColumn column, SortDirection direction)
        : column_(column)
        , sign_(direction == SortDirection::Ascending ? 1 : -1) {}

    [[nodiscard]] bool operator()(const SortedRow& left, const SortedRow& right) const {
        if (column_ == SummaryColumn::Money) {
            return isCheaper(left.row.amounts.cost, right.row.amounts.cost);
        }
        return sign_ * order(left, right) < 0;
    }

private:
    [[nodiscard]] bool isCheaper(const std::optional<Decimal>& left,
                                 const std::optional<Decimal>& right) const {
        const bool isLeftNumber = left && !left->isNaN();
        const bool isRightNumber = right && !right->isNaN();
        if (!isLeftNumber || !isRightNumber) {
            return isLeftNumber && !isRightNumber;
        }
        return sign_ * orderOf(*left, *right) < 0;
    }
    [[nodiscard]] int order(const SortedRow& left, const SortedRow& right) const {
        const auto compared = [](const auto& one, const auto& other) {
            return one < other ? -1 : static_cast<int>(other < one);
        };
        switch (column_) {
        case SummaryColumn::Events:
            return compared(left.row.events.size(), right.row.events.size());
        case SummaryColumn::Name:
            return left.row.start != right.row.start ? compared(left.row.start, right.row.start)
                                                     : compared(left.nameKey, right.nameKey);
        default:
            return compared(left.row.amounts.minutes, right.row.amounts.minutes);
        }
    }

    SummaryColumn column_;
    int sign_;
};

void sortRows(std::vector<SummaryRow>& rows, SummaryColumn column, const RowOrder& order,
              const Collator& collator) {
    std::vector<SortedRow> sorted;
    sorted.reserve(rows.size());
    for (SummaryRow& row : rows) {
        QByteArray key;
        if (column == SummaryColumn::Name && !row.text.isEmpty()) {
            key = collator.sortKey(row.text);
        }
        sorted.push_back({.row = std::move(row), .nameKey = std::move(key)});
    }
    std::ranges::stable_sort(sorted, order);
    std::ranges::transform(sorted, rows.begin(),
                           [](SortedRow& each) { return std::move(each.row); });
}

/// Writes the cells of the copied tree.
class TreeText {
public:
    TreeText(const Summary& summary, TimeUnit unit, const LocaleFormats& formats)
        : summary_(summary)
        , unit_(unit)
        , formats_(formats)
        , hasMoney_(summary.total.cost.has_value())
        , hasTwoLevels_(std::ranges::any_of(
              summary.rows, [](const SummaryRow& row) { return !row.children.empty(); })) {}

    [[nodiscard]] QString text() {
        addHeading();
        for (const SummaryRow& row : summary_.rows) {
            addRow(summaryRowName(row, formats_), {}, row.amounts, row.events.size());
            for (const SummaryRow& child : row.children) {
                addRow({}, summaryRowName(child, formats_), child.amounts, child.events.size());
            }
            addDifference(differenceOf(row, unit_, formats_));
        }
        addDifference(differenceOf(summary_, unit_, formats_));
        addRow(localized("Total"), {}, summary_.total, summary_.eventCount);
        return lines_.join(u'\n');
    }

private:
    [[nodiscard]] QStringList names(const QString& first, const QString& second) const {
        QStringList cells{inOneCell(first)};
        if (hasTwoLevels_) {
            cells.append(inOneCell(second));
        }
        return cells;
    }
    void addHeading() {
        QStringList cells = names({}, {});
        cells.append({localized("Events"), timeUnitTitle(unit_)});
        if (hasMoney_) {
            cells.append(localized("Cost"));
        }
        cells.append(localized("Share"));
        lines_.append(cells.join(u'\t'));
    }
    void addRow(const QString& first, const QString& second, const Amounts& amounts,
                std::size_t eventCount) {
        QStringList cells = names(first, second);
        cells.append(QString::number(eventCount));
        cells.append(timeText(amounts.minutes, unit_, formats_));
        if (hasMoney_) {
            cells.append(moneyText(amounts.cost, formats_));
        }
        cells.append(shareText(shareOfTime(amounts, summary_.total), formats_));
        lines_.append(cells.join(u'\t'));
    }
    void addDifference(const RowsDifference& difference) {
        if (!difference.isNone()) {
            lines_.append(differenceText(difference, formats_));
        }
    }

    const Summary& summary_;
    TimeUnit unit_;
    const LocaleFormats& formats_;
    bool hasMoney_;
    bool hasTwoLevels_;
    QStringList lines_;
};

QString roundingText(const RowsDifference& difference, const LocaleFormats& formats) {
    QStringList amounts;
    const auto add = [&](const Decimal& amount, const QString& text) {
        if (!amount.isZero()) {
            amounts.append((amount.isNegative() ? QStringLiteral("−") : QStringLiteral("+")) +
                           text);
        }
    };
    add(difference.time, formats.number(difference.time));
    if (difference.money) {
        add(*difference.money, formats.currency(difference.money->absolute()));
    }
    return amounts.isEmpty() ? QString()
                             : localized("Rounding: %1").arg(amounts.join(QStringLiteral(", ")));
}

} // namespace

void sortSummary(Summary& summary, SummaryColumn column, SortDirection direction,
                 const Collator& collator) {
    const RowOrder order(column, direction);
    for (SummaryRow& row : summary.rows) {
        sortRows(row.children, column, order, collator);
    }
    sortRows(summary.rows, column, order, collator);
}

QString summaryRowName(const SummaryRow& row, const LocaleFormats& formats) {
    switch (row.key) {
    case SummaryKey::Day:
        return formats.shortDate(row.start);
    case SummaryKey::Week:
        return QStringLiteral("%1 – %2").arg(formats.shortDate(row.start),
                                             formats.shortDate(row.end - 12h));
    case SummaryKey::Month:
        return formats.monthAndYear(row.start);
    case SummaryKey::Title:
        return row.text.isEmpty() ? localized("(no title)") : row.text;
    case SummaryKey::Location:
        return row.text.isEmpty() ? localized("(no location)") : row.text;
    case SummaryKey::Calendar:
        break;
    }
    return row.text.isEmpty() ? localized("(no name)") : row.text;
}

QString differenceText(const RowsDifference& difference, const LocaleFormats& formats) {
    QStringList sentences;
    if (difference.events == -1) {
        sentences.append(localized("One event stands in two rows"));
    } else if (difference.events != 0) {
        sentences.append(
            localized("Events counted in more than one row: %1").arg(-difference.events));
    }
    const QString rounding = roundingText(difference, formats);
    if (!rounding.isEmpty()) {
        sentences.append(rounding);
    }
    return sentences.join(QStringLiteral("; "));
}

QString summaryText(const Summary& summary, TimeUnit unit, const LocaleFormats& formats) {
    return TreeText(summary, unit, formats).text();
}

QString timeUnitTitle(TimeUnit unit) {
    switch (unit) {
    case TimeUnit::Minutes:
        return localized("Minutes");
    case TimeUnit::Duration:
        return localized("Duration");
    case TimeUnit::Hours:
        break;
    }
    return localized("Hours");
}

} // namespace quillet
