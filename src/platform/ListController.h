#pragma once

#include <QObject>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>
#include <vector>

namespace quillet {

/// The change notices of a list controller. They are sent synchronously, after the change.
class ListControllerNotices : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// Before the arranged records change; what was arranged is still readable.
    void arrangedObjectsWillChange();
    /// The arranged records, their order or their content changed.
    void arrangedObjectsChanged();
    /// The set of selected records changed, or may stand for other records than before.
    void selectedObjectsChanged();
};

/// A list of records with a filter, an order and a selection over it. Main thread only.
///
/// The content is immutable and shared: handing it over costs no copy, and readers on other threads
/// may keep theirs. "Arranged" is what passes the filter, in sorted order; rows count in it from 0.
template <typename Record>
class ListController : public ListControllerNotices {
public:
    using Content = std::shared_ptr<const std::vector<Record>>;
    using Filter = std::function<bool(const Record&)>;
    /// Strict weak order: whether the left record stands before the right one.
    using Order = std::function<bool(const Record&, const Record&)>;
    /// Puts rows, indexes into the content that stand in the content's order, into another order.
    using Sorter =
        std::function<void(const std::vector<Record>& content, std::vector<std::size_t>& rows)>;
    /// A name that two records share exactly when they are the same one at different times.
    using Identity = std::function<std::size_t(const Record&)>;
    using SameRecord = std::function<bool(const Record&, const Record&)>;

    ListController() = default;
    /// With an identity, selected records stay selected when the content is replaced.
    ListController(Identity hash, SameRecord same)
        : hash_(std::move(hash))
        , same_(std::move(same)) {}

    /// Replaces the content; always announced.
    void setContent(Content content) {
        Q_EMIT arrangedObjectsWillChange();
        const auto selected = selectedObjects();
        content_ = std::move(content);
        rearrange();
        restoreSelection(selected);
        Q_EMIT arrangedObjectsChanged();
        Q_EMIT selectedObjectsChanged();
    }
    void setContent(std::vector<Record> content) {
        setContent(std::make_shared<const std::vector<Record>>(std::move(content)));
    }
    [[nodiscard]] const Content& content() const { return content_; }

    /// Filters by a condition; `name` tells conditions apart, the empty name means no filter. A
    /// filter of the name already in force announces nothing.
    void setFilter(const QString& name, Filter filter) {
        if (name == filterName_) {
            return;
        }
        const bool isFirstFilter = filterName_.isEmpty();
        filterName_ = name;
        filter_ = name.isEmpty() ? Filter() : std::move(filter);
        // What was all arranged is in order already: leaving records out keeps it.
        rearrangeKeepingSelection(isFirstFilter ? Rearrangement::Narrowing
                                                : Rearrangement::Complete);
    }
    [[nodiscard]] const QString& filterName() const { return filterName_; }

    /// Sorts; an empty sorter restores the content's own order.
    void setSorter(Sorter sorter) {
        sorter_ = std::move(sorter);
        rearrangeKeepingSelection(Rearrangement::Complete);
    }
    /// Sorts, stably on the content's own order.
    void setOrder(Order order) {
        setSorter([order = std::move(order)](const std::vector<Record>& content,
                                             std::vector<std::size_t>& rows) {
            std::ranges::stable_sort(rows, [&](std::size_t left, std::size_t right) {
                return order(content[left], content[right]);
            });
        });
    }

    [[nodiscard]] std::size_t arrangedCount() const { return rows_.size(); }
    [[nodiscard]] const Record& arranged(std::size_t row) const { return (*content_)[rows_[row]]; }
    /// The content's index of an arranged row.
    [[nodiscard]] std::size_t contentIndex(std::size_t row) const { return rows_[row]; }

    /// Selects rows; rows out of range are dropped, repeated ones count once. Announced only when
    /// the selection differs.
    void setSelectedRows(std::vector<std::size_t> rows) {
        std::ranges::sort(rows);
        const auto repeated = std::ranges::unique(rows);
        rows.erase(repeated.begin(), repeated.end());
        std::erase_if(rows, [this](std::size_t row) { return row >= rows_.size(); });
        if (rows == selectedRows_) {
            return;
        }
        selectedRows_ = std::move(rows);
        Q_EMIT selectedObjectsChanged();
    }
    /// Ascending.
    [[nodiscard]] const std::vector<std::size_t>& selectedRows() const { return selectedRows_; }
    /// In arranged order.
    [[nodiscard]] std::vector<Record> selectedObjects() const {
        std::vector<Record> records;
        records.reserve(selectedRows_.size());
        for (const std::size_t row : selectedRows_) {
            records.push_back(arranged(row));
        }
        return records;
    }

private:
    enum class Rearrangement { Complete, Narrowing };

    void narrow() {
        std::erase_if(rows_, [this](std::size_t row) { return !filter_((*content_)[row]); });
    }

    void rearrange() {
        rows_.clear();
        rows_.reserve(content_->size());
        for (std::size_t index = 0; index < content_->size(); ++index) {
            if (!filter_ || filter_((*content_)[index])) {
                rows_.push_back(index);
            }
        }
        if (sorter_) {
            sorter_(*content_, rows_);
        }
    }

    void rearrangeKeepingSelection(Rearrangement rearrangement) {
        Q_EMIT arrangedObjectsWillChange();
        std::vector<std::size_t> selectedIndexes;
        selectedIndexes.reserve(selectedRows_.size());
        for (const std::size_t row : selectedRows_) {
            selectedIndexes.push_back(rows_[row]);
        }
        std::ranges::sort(selectedIndexes);
        if (rearrangement == Rearrangement::Narrowing) {
            narrow();
        } else {
            rearrange();
        }
        selectedRows_.clear();
        for (std::size_t row = 0; row < rows_.size() && !selectedIndexes.empty(); ++row) {
            if (std::ranges::binary_search(selectedIndexes, rows_[row])) {
                selectedRows_.push_back(row);
            }
        }
        Q_EMIT arrangedObjectsChanged();
        Q_EMIT selectedObjectsChanged();
    }

    void restoreSelection(const std::vector<Record>& selected) {
        selectedRows_.clear();
        if (selected.empty() || !hash_) {
            return;
        }
        // Hashing every record costs more than comparing each with a few.
        constexpr std::size_t fewRecords = 4;
        if (selected.size() <= fewRecords) {
            for (std::size_t row = 0; row < rows_.size(); ++row) {
                if (std::ranges::any_of(selected, [&](const Record& record) {
                        return same_(record, arranged(row));
                    })) {
                    selectedRows_.push_back(row);
                }
            }
            return;
        }
        std::vector<std::pair<std::size_t, const Record*>> wanted;
        wanted.reserve(selected.size());
        for (const Record& record : selected) {
            wanted.emplace_back(hash_(record), &record);
        }
        std::ranges::sort(wanted, {}, &std::pair<std::size_t, const Record*>::first);
        for (std::size_t row = 0; row < rows_.size(); ++row) {
            const auto range = std::ranges::equal_range(
                wanted, hash_(arranged(row)), {}, &std::pair<std::size_t, const Record*>::first);
            if (std::ranges::any_of(range, [&](const auto& entry) {
                    return same_(*entry.second, arranged(row));
                })) {
                selectedRows_.push_back(row);
            }
        }
    }

    Content content_ = std::make_shared<const std::vector<Record>>();
    QString filterName_;
    Filter filter_;
    Sorter sorter_;
    Identity hash_;
    SameRecord same_;
    std::vector<std::size_t> rows_;
    std::vector<std::size_t> selectedRows_;
};

} // namespace quillet
