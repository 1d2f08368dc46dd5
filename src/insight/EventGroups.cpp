#include "insight/EventGroups.h"

namespace quillet {

namespace {

/// Hashes several times as fast as the toolkit's texts.
std::u16string_view unitsOf(const QString& text) {
    const QStringView view(text);
    return {view.utf16(), static_cast<std::size_t>(view.size())};
}

} // namespace

std::uint32_t CalendarNumbers::of(const Event& event) {
    const StoreCalendar* calendar = event.details->calendar.get();
    if (calendar == lastCalendar_) {
        return lastNumber_;
    }
    const auto [known, isNew] = numbers_.try_emplace(calendar);
    if (isNew) {
        const auto number = static_cast<std::uint32_t>(calendars_.size());
        const auto [same, isFirst] =
            byIdentifier_.try_emplace(unitsOf(calendar->calendarIdentifier), number);
        if (isFirst) {
            calendars_.push_back(calendar);
        }
        known->second = same->second;
    }
    lastCalendar_ = calendar;
    lastNumber_ = known->second;
    return lastNumber_;
}

std::uint32_t TextNumbers::of(const QString& text) {
    const auto [known, isNew] =
        numbers_.try_emplace(unitsOf(text), static_cast<std::uint32_t>(texts_.size()));
    if (isNew) {
        texts_.push_back(&text);
    }
    return known->second;
}

} // namespace quillet
