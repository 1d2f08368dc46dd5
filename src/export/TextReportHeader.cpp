#include "export/TextReportHeader.h"

#include "eventdata/Duration.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Content = TextReportContent;

QString line(const QString& label, const QString& value) {
    return label + QStringLiteral(": ") + value + u'\n';
}

QString dateLine(const QString& label, const std::optional<Instant>& date, const Content& content) {
    return line(label, date ? content.formats->shortDate(*date) : QStringLiteral("(null)"));
}

/// Which of a report's figures of time is meant: each in hours and in minutes.
struct TimeFigure {
    std::optional<Decimal> hours;
    std::optional<Decimal> minutes;
};

QString timeLine(const QString& label, const TimeFigure& figure, const Content& content) {
    const auto number = [&](const std::optional<Decimal>& value) {
        return content.formats->number(value.value_or(Decimal()));
    };
    switch (content.timeType) {
    case 1:
        return line(label, number(figure.hours));
    case 2:
        return line(label, number(figure.minutes));
    case 3:
        return line(label, makeDurationFromMinutes(figure.minutes.value_or(Decimal()).toInteger()));
    default:
        return {};
    }
}

QString totalLabel(const Content& content) {
    switch (content.timeType) {
    case 1:
        return localized("Hours");
    case 2:
        return localized("Minutes");
    default:
        return localized("Duration");
    }
}

QString calendarTitles(const Content& content, const EventTotals&) {
    QStringList titles = content.calendarTitles;
    std::ranges::sort(titles);
    return titles.join(QStringLiteral(", ")) + u'\n';
}

QString beginDate(const Content& content, const EventTotals&) {
    return dateLine(localized("Beginning Date"), content.periodStart, content);
}

QString endDate(const Content& content, const EventTotals&) {
    return dateLine(localized("Ending Date"), content.periodEnd, content);
}

QString totalTime(const Content& content, const EventTotals& totals) {
    return timeLine(totalLabel(content), {totals.sumHours(), totals.sumMinutes()}, content);
}

QString minimum(const Content& content, const EventTotals& totals) {
    return timeLine(localized("Min"), {totals.minHours(), totals.minMinutes()}, content);
}

QString maximum(const Content& content, const EventTotals& totals) {
    return timeLine(localized("Max"), {totals.maxHours(), totals.maxMinutes()}, content);
}

QString average(const Content& content, const EventTotals& totals) {
    return timeLine(localized("Avg"), {totals.avgHours(), totals.avgMinutes()}, content);
}

QString totalDays(const Content& content, const EventTotals&) {
    return line(localized("Days"), QString::number(reportedDays(content)));
}

QString totalEvents(const Content& content, const EventTotals&) {
    return line(localized("Events"), QString::number(content.events.size()));
}

QString hourlyRate(const Content& content) {
    if (!content.billing.isSingleRate) {
        return line(localized("Hourly Rate"),
                    content.calendarColumnTitle + u' ' + localized("Rates"));
    }
    return content.hourlyRate
               ? line(localized("Hourly Rate"), content.formats->currency(*content.hourlyRate))
               : QString();
}

QString money(const Content& content, const EventTotals& totals) {
    if (!content.billing.isMoneyOn) {
        return {};
    }
    return hourlyRate(content) +
           line(localized("Cost"), content.formats->currency(totals.sumCost().value_or(Decimal())));
}

} // namespace

std::span<const ReportHeaderLine> reportHeaderLines() {
    using namespace settings;
    static constexpr auto lines = std::to_array<ReportHeaderLine>({
        {isTXTCalTitle, localizable("&Calendars"),
         localizable("The titles of the ticked calendars"), calendarTitles},
        {isTXTBeginDate, localizable("&Beginning date"), localizable("The first day of the period"),
         beginDate},
        {isTXTEndDate, localizable("E&nding date"), localizable("The last day of the period"),
         endDate},
        {isTXTTotalHours, localizable("&Total time"),
         localizable("The sum in hours, minutes or as a duration"), totalTime},
        {isTXTMin, localizable("S&hortest event"), nullptr, minimum},
        {isTXTMax, localizable("&Longest event"), nullptr, maximum},
        {isTXTAverage, localizable("&Average time"), localizable("The mean of an event"), average},
        {isTXTTotalDays, localizable("&Days"), localizable("On how many days there are events"),
         totalDays},
        {isTXTTotalEvents, localizable("N&umber of events"), nullptr, totalEvents},
        {isTXTDollars, localizable("&Money"), localizable("Rate and cost, while money is shown"),
         money},
    });
    return lines;
}

QString reportHeader(const TextReportContent& content, const EventTotals& totals) {
    if (content.events.isEmpty()) {
        return {};
    }
    QString text;
    if (!content.headerText.isEmpty()) {
        text += content.headerText + QStringLiteral("\n\n");
    }
    for (const ReportHeaderLine* each : content.headerLines) {
        text += each->text(content, totals);
    }
    return text;
}

} // namespace quillet
