#include "backends/icsfolder/WrittenTime.h"

#include <array>
#include <cstdio>

namespace quillet {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Takes a text apart from its front.
class TimeReader {
public:
    explicit TimeReader(std::string_view text)
        : rest_(text) {}

    [[nodiscard]] std::optional<WrittenTime> read() {
        WrittenTime time;
        if (!readDate(time.local)) {
            return std::nullopt;
        }
        time.isDate = rest_.empty();
        if (!time.isDate && !(skipTimeMark() && readClock(time.local) && readZone(time))) {
            return std::nullopt;
        }
        return time;
    }

private:
    bool readDate(LocalSeconds& local) {
        const auto year = number(4);
        const bool hasDashes = skip('-');
        const auto month = number(2);
        if (hasDashes && !skip('-')) {
            return false;
        }
        const auto day = number(2);
        if (!year || !month || !day || *year == 0) {
            return false;
        }
        const std::chrono::year_month_day date(std::chrono::year(*year),
                                               std::chrono::month(static_cast<unsigned>(*month)),
                                               std::chrono::day(static_cast<unsigned>(*day)));
        local = date.ok() ? LocalSeconds(std::chrono::local_days(date)) : LocalSeconds();
        return date.ok();
    }

    bool skipTimeMark() { return skip('T') || skip('t') || skip(' '); }

    bool readClock(LocalSeconds& local) {
        const auto hour = number(2);
        skip(':');
        const auto minute = number(2);
        if (!hour || !minute) {
            return false;
        }
        const bool hasColon = skip(':');
        const bool hasSeconds = hasColon || (!rest_.empty() && isDigit(rest_.front()));
        const auto second = hasSeconds ? number(2) : std::optional(0);
        if (!second || *hour > 24 || *minute > 59 || *second > 60) {
            return false;
        }
        if (skip('.')) {
            while (!rest_.empty() && isDigit(rest_.front())) {
                rest_.remove_prefix(1);
            }
        }
        local += hours(*hour) + minutes(*minute) + seconds(*second);
        return true;
    }

    bool readZone(WrittenTime& time) {
        if (rest_.empty()) {
            return true;
        }
        time.isUtc = true;
        const bool isEast = rest_.front() == '+';
        if (skip('+') || skip('-')) {
            const auto offsetHours = number(2);
            skip(':');
            const auto offsetMinutes = number(2);
            if (!offsetHours || !offsetMinutes || *offsetHours > 18 || *offsetMinutes > 59) {
                return false;
            }
            const auto offset = hours(*offsetHours) + minutes(*offsetMinutes);
            time.local += isEast ? -offset : offset;
            return rest_.empty();
        }
        while (skip('Z') || skip('z')) {
        }
        return rest_.empty();
    }

    bool skip(char wanted) {
        const bool isThere = !rest_.empty() && rest_.front() == wanted;
        rest_.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    std::optional<int> number(std::size_t digits) {
        if (rest_.size() < digits) {
            return std::nullopt;
        }
        int value = 0;
        for (const char character : rest_.substr(0, digits)) {
            if (!isDigit(character)) {
                return std::nullopt;
            }
            value = value * 10 + (character - '0');
        }
        rest_.remove_prefix(digits);
        return value;
    }

    std::string_view rest_;
};

} // namespace

std::optional<WrittenTime> writtenTimeFrom(std::string_view text) {
    return TimeReader(text).read();
}

std::string standardForm(const WrittenTime& time) {
    const auto day = std::chrono::floor<std::chrono::days>(time.local);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(time.local - day);
    std::array<char, 40> text{};
    int size =
        std::snprintf(text.data(), text.size(), "%04d%02u%02u", static_cast<int>(date.year()),
                      static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
    if (!time.isDate) {
        size += std::snprintf(text.data() + size, text.size() - static_cast<std::size_t>(size),
                              "T%02d%02d%02d%s", static_cast<int>(clock.hours().count()),
                              static_cast<int>(clock.minutes().count()),
                              static_cast<int>(clock.seconds().count()), time.isUtc ? "Z" : "");
    }
    return {text.data(), static_cast<std::size_t>(size)};
}

} // namespace quillet
