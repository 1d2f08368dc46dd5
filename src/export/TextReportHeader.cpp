#include "export/TextReportHeader.h"

#include "eventdata/Duration.h"
#include "texts/Localized.h"

#include <algorithm>

namespace quillet {

namespace {

/// Which of a report's figures of time is meant: each in hours and in minutes.
struct TimeFigure {
    std::optional<Decimal> hours;
    std::optional<Decimal> minutes;
};

class Header {
public:
    Header(const TextReportContent& content, const EventTotals& totals)
        : content_(content)
        , totals_(totals) {}

    [[nodiscard]] QString text() {
        appendPeriod();
        appendTimes();
        appendCounts();
        if (content_.billing.isMoneyOn && content_.header.hasMoney) {
            appendMoney();
        }
        return text_;
    }

private:
    void appendLine(const QString& label, const QString& value) {
        text_ += label + QStringLiteral(": ") + value + u'\n';
    }
    void appendDate(const QString& label, const std::optional<Instant>& date) {
        appendLine(label, date ? content_.formats->shortDate(*date) : QStringLiteral("(null)"));
    }
    void appendTime(const QString& label, const TimeFigure& figure) {
        const auto number = [this](const std::optional<Decimal>& value) {
            return content_.formats->number(value.value_or(Decimal()));
        };
        switch (content_.timeType) {
        case 1:
            appendLine(label, number(figure.hours));
            break;
        case 2:
            appendLine(label, number(figure.minutes));
            break;
        case 3:
            appendLine(label,
                       makeDurationFromMinutes(figure.minutes.value_or(Decimal()).toInteger()));
            break;
        default:
            break;
        }
    }

    void appendPeriod() {
        if (!content_.headerText.isEmpty()) {
            text_ += content_.headerText + QStringLiteral("\n\n");
        }
        if (content_.header.hasCalendarTitles) {
            QStringList titles = content_.calendarTitles;
            std::ranges::sort(titles);
            text_ += titles.join(QStringLiteral(", ")) + u'\n';
        }
        if (content_.header.hasBeginDate) {
            appendDate(localized("Beginning Date"), content_.periodStart);
        }
        if (content_.header.hasEndDate) {
            appendDate(localized("Ending Date"), content_.periodEnd);
        }
    }

    [[nodiscard]] QString totalLabel() const {
        switch (content_.timeType) {
        case 1:
            return localized("Hours");
        case 2:
            return localized("Minutes");
        default:
            return localized("Duration");
        }
    }

    void appendTimes() {
        const ReportHeaderSwitches& switches = content_.header;
        if (switches.hasTotalHours) {
            appendTime(totalLabel(), {totals_.sumHours(), totals_.sumMinutes()});
        }
        if (switches.hasMinimum) {
            appendTime(localized("Min"), {totals_.minHours(), totals_.minMinutes()});
        }
        if (switches.hasMaximum) {
            appendTime(localized("Max"), {totals_.maxHours(), totals_.maxMinutes()});
        }
        if (switches.hasAverage) {
            appendTime(localized("Avg"), {totals_.avgHours(), totals_.avgMinutes()});
        }
    }

    void appendCounts() {
        if (content_.header.hasTotalDays) {
            appendLine(localized("Days"), QString::number(reportedDays(content_)));
        }
        if (content_.header.hasTotalEvents) {
            appendLine(localized("Events"), QString::number(content_.events.size()));
        }
    }

    void appendMoney() {
        if (!content_.billing.isSingleRate) {
            appendLine(localized("Hourly Rate"),
                       content_.calendarColumnTitle + u' ' + localized("Rates"));
        } else if (content_.hourlyRate) {
            appendLine(localized("Hourly Rate"), content_.formats->currency(*content_.hourlyRate));
        }
        appendLine(localized("Cost"),
                   content_.formats->currency(totals_.sumCost().value_or(Decimal())));
    }

    const TextReportContent& content_;
    const EventTotals& totals_;
    QString text_;
};

} // namespace

QString reportHeader(const TextReportContent& content, const EventTotals& totals) {
    return content.events.isEmpty() ? QString() : Header(content, totals).text();
}

} // namespace quillet
