#include "insight/Amounts.h"

#include "eventdata/Duration.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

const Decimal minutesOfAnHour = Decimal::fromInteger(60);
constexpr int decimalsOfNumbers = 2;

Decimal hoursOf(std::int64_t minutes) {
    return Decimal::fromInteger(minutes) / minutesOfAnHour;
}

} // namespace

void Amounts::add(std::int64_t moreMinutes, const std::optional<Decimal>& moreCost) {
    minutes += moreMinutes;
    if (moreCost) {
        cost = cost ? *cost + *moreCost : *moreCost;
    }
}

QString timeText(std::int64_t minutes, TimeUnit unit, const LocaleFormats& formats) {
    switch (unit) {
    case TimeUnit::Minutes:
        return formats.number(Decimal::fromInteger(minutes));
    case TimeUnit::Duration:
        return makeDurationFromMinutes(minutes);
    case TimeUnit::Hours:
        break;
    }
    return formats.number(hoursOf(minutes));
}

QString timeWithUnit(std::int64_t minutes, TimeUnit unit, const LocaleFormats& formats) {
    QString number = timeText(minutes, unit, formats);
    switch (unit) {
    case TimeUnit::Minutes:
        return localized("%1 min").arg(number);
    case TimeUnit::Duration:
        return number;
    case TimeUnit::Hours:
        break;
    }
    return localized("%1 h").arg(number);
}

QString moneyText(const std::optional<Decimal>& cost, const LocaleFormats& formats) {
    return cost ? formats.currency(*cost) : QString();
}

Decimal shownTime(std::int64_t minutes, TimeUnit unit) {
    return unit == TimeUnit::Hours ? hoursOf(minutes).rounded(decimalsOfNumbers, Rounding::HalfEven)
                                   : Decimal::fromInteger(minutes);
}

Decimal shownMoney(const Decimal& cost, int currencyDecimals) {
    return cost.rounded(currencyDecimals, Rounding::HalfEven);
}

int currencyDecimals(const LocaleFormats& formats) {
    const QString zero = formats.currency(Decimal());
    const auto digits = std::ranges::count_if(zero, [](QChar each) { return each.isDigit(); });
    return std::max(0, static_cast<int>(digits) - 1);
}

std::optional<Decimal> shareOfTime(const Amounts& part, const Amounts& whole) {
    if (whole.minutes == 0) {
        return std::nullopt;
    }
    return Decimal::fromInteger(part.minutes) / Decimal::fromInteger(whole.minutes);
}

std::optional<Decimal> shareOfMoney(const Amounts& part, const Amounts& whole) {
    if (!part.cost || !whole.cost || part.cost->isNaN() || whole.cost->isNaN() ||
        whole.cost->isZero()) {
        return std::nullopt;
    }
    return *part.cost / *whole.cost;
}

QString shareText(const std::optional<Decimal>& share, const LocaleFormats& formats) {
    if (!share) {
        return {};
    }
    return localized("%1%").arg(formats.number(*share * Decimal::fromInteger(100), 1));
}

QString inOneCell(QString text) {
    for (QChar& each : text) {
        if (each == u'\t' || each == u'\n' || each == u'\r' || each == QChar::LineSeparator ||
            each == QChar::ParagraphSeparator) {
            each = u' ';
        }
    }
    return text;
}

} // namespace quillet
