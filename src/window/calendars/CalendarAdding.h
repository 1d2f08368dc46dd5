#pragma once

#include <QString>

#include <expected>
#include <functional>

class QWidget;

namespace quillet {

/// Asks which calendars to add, and tells when one cannot be added.
class CalendarAdding {
public:
    /// Adds a folder or file of calendars; the error is a sentence for the user.
    using AddCalendar = std::function<std::expected<void, QString>(const QString& path)>;

    /// Dialogs are shown over the window.
    CalendarAdding(AddCalendar addCalendar, QWidget& window)
        : addCalendar_(std::move(addCalendar))
        , window_(window) {}

    void choose() const;
    void add(const QString& path) const;

private:
    [[nodiscard]] QString chosenPath() const;

    AddCalendar addCalendar_;
    QWidget& window_;
};

} // namespace quillet
