#include "backends/icsfolder/WrittenLength.h"

#include <algorithm>

namespace quillet {

using std::chrono::days;
using std::chrono::seconds;

namespace {

constexpr std::int64_t secondsInDay = 86400;
/// Far more than fits, and far from what overflows.
constexpr std::int64_t largestNumber = 100'000'000'000;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

char upper(char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 32) : character;
}

/// A number with its fraction in millionths.
struct Amount {
    std::int64_t whole = 0;
    std::int64_t millionths = 0;

    [[nodiscard]] std::int64_t times(std::int64_t unit) const {
        return whole * unit + millionths * unit / 1'000'000;
    }
};

class LengthReader {
public:
    explicit LengthReader(std::string_view text)
        : rest_(text) {}

    [[nodiscard]] std::optional<WrittenLength> read() {
        WrittenLength written;
        written.isNegative = skip('-');
        (void)(!written.isNegative && skip('+'));
        if (!(rest_.contains(':') ? readClock() : readParts())) {
            return std::nullopt;
        }
        written.isCut =
            days_ > longestEvent.count() || seconds_ > longestEvent.count() * secondsInDay;
        written.length.days = days(std::min<std::int64_t>(days_, longestEvent.count()));
        written.length.seconds =
            seconds(std::min<std::int64_t>(seconds_, longestEvent.count() * secondsInDay));
        return written;
    }

private:
    /// "1:30" and "1:30:00".
    bool readClock() {
        std::int64_t unit = 3600;
        bool isComplete = false;
        while (unit > 0) {
            const auto amount = number();
            if (!amount || amount->millionths != 0 || (unit < 3600 && amount->whole > 59)) {
                return false;
            }
            seconds_ += amount->times(unit);
            isComplete = unit < 3600;
            unit = unit == 1 ? 0 : unit / 60;
            if (!skip(':')) {
                break;
            }
        }
        return isComplete && rest_.empty();
    }

    bool readParts() {
        skip('P');
        bool isAnyPart = false;
        while (!rest_.empty()) {
            if (skip('T')) {
                continue;
            }
            if (!readPart()) {
                return false;
            }
            isAnyPart = true;
        }
        return isAnyPart;
    }

    bool readPart() {
        const auto amount = number();
        if (!amount) {
            return false;
        }
        // What follows hours without a unit are minutes, what follows minutes are seconds.
        char unit = '\0';
        if (!rest_.empty()) {
            unit = upper(rest_.front());
        } else if (lastUnit_ == 'H') {
            unit = 'M';
        } else if (lastUnit_ == 'M') {
            unit = 'S';
        }
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        static constexpr std::string_view order = "WDHMS";
        const std::size_t place = order.find(unit);
        if (unit == '\0' || place == std::string_view::npos ||
            (lastUnit_ != '\0' && place <= order.find(lastUnit_))) {
            return false;
        }
        lastUnit_ = unit;
        return addPart(*amount, unit);
    }

    bool addPart(const Amount& amount, char unit) {
        switch (unit) {
        case 'W':
            days_ += amount.whole * 7;
            return amount.millionths == 0;
        case 'D':
            days_ += amount.whole;
            seconds_ += Amount{0, amount.millionths}.times(secondsInDay);
            return true;
        case 'H':
            seconds_ += amount.times(3600);
            return true;
        case 'M':
            seconds_ += amount.times(60);
            return true;
        default:
            seconds_ += amount.whole;
            return true;
        }
    }

    std::optional<Amount> number() {
        if (rest_.empty() || !isDigit(rest_.front())) {
            return std::nullopt;
        }
        Amount amount;
        for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
            amount.whole = std::min(largestNumber, amount.whole * 10 + (rest_.front() - '0'));
        }
        if (skip('.') || skip(',')) {
            std::int64_t unit = 100'000;
            for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1)) {
                amount.millionths += (rest_.front() - '0') * unit;
                unit /= 10;
            }
        }
        return amount;
    }

    bool skip(char wanted) {
        const bool isThere = !rest_.empty() && upper(rest_.front()) == wanted;
        rest_.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    std::string_view rest_;
    char lastUnit_ = '\0';
    std::int64_t days_ = 0;
    std::int64_t seconds_ = 0;
};

} // namespace

std::optional<WrittenLength> writtenLengthFrom(std::string_view text) {
    return LengthReader(text).read();
}

std::string standardForm(const EventLength& length) {
    return "P" + std::to_string(length.days.count()) + "DT" +
           std::to_string(length.seconds.count()) + "S";
}

} // namespace quillet
