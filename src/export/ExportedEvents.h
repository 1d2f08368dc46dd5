#pragma once

#include "export/ExportSelection.h"
#include "platform/Event.h"
#include "platform/ListController.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace quillet {

/// The events of one export, in the order of the list, as they were when it was made: later changes
/// of the list, its order or its selection do not show. No event is copied.
class ExportedEvents {
public:
    using Content = ListController<Event>::Content;

    ExportedEvents() = default;
    /// The rows are indexes into the content.
    ExportedEvents(Content content, std::vector<std::size_t> rows)
        : content_(std::move(content))
        , rows_(std::move(rows)) {}

    [[nodiscard]] static ExportedEvents arranged(const ListController<Event>& list) {
        std::vector<std::size_t> rows(list.arrangedCount());
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row] = list.contentIndex(row);
        }
        return {list.content(), std::move(rows)};
    }
    /// In arranged order.
    [[nodiscard]] static ExportedEvents selected(const ListController<Event>& list) {
        std::vector<std::size_t> rows;
        rows.reserve(list.selectedRows().size());
        for (const std::size_t row : list.selectedRows()) {
            rows.push_back(list.contentIndex(row));
        }
        return {list.content(), std::move(rows)};
    }
    /// The selected ones where the chosen tab says so, else all that are arranged.
    [[nodiscard]] static ExportedEvents chosen(const ListController<Event>& list,
                                               const SettingsStore& settings) {
        return areOnlySelectedEventsExported(settings) ? selected(list) : arranged(list);
    }

    [[nodiscard]] std::size_t size() const { return rows_.size(); }
    [[nodiscard]] bool isEmpty() const { return rows_.empty(); }
    /// Positions outside [0, size) are not allowed.
    [[nodiscard]] const Event& operator[](std::size_t position) const {
        return (*content_)[rows_[position]];
    }

private:
    Content content_ = std::make_shared<const std::vector<Event>>();
    std::vector<std::size_t> rows_;
};

} // namespace quillet
