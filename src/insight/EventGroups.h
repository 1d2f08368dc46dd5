#pragma once

#include "platform/Event.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillet {

/// Numbers the calendars of events from 0 in order of their appearance; calendars of the same
/// identifier are one. The events must outlive this.
class CalendarNumbers {
public:
    [[nodiscard]] std::uint32_t of(const Event& event);
    /// By number.
    [[nodiscard]] const std::vector<const StoreCalendar*>& calendars() const { return calendars_; }

private:
    std::unordered_map<const StoreCalendar*, std::uint32_t> numbers_;
    std::unordered_map<std::u16string_view, std::uint32_t> byIdentifier_;
    std::vector<const StoreCalendar*> calendars_;
    const StoreCalendar* lastCalendar_ = nullptr;
    std::uint32_t lastNumber_ = 0;
};

/// Numbers texts from 0 in order of their appearance; a missing text is an empty one. The texts
/// must outlive this.
class TextNumbers {
public:
    [[nodiscard]] std::uint32_t of(const QString& text);
    /// By number.
    [[nodiscard]] const std::vector<const QString*>& texts() const { return texts_; }

private:
    std::unordered_map<std::u16string_view, std::uint32_t> numbers_;
    std::vector<const QString*> texts_;
};

} // namespace quillet
