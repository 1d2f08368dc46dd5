#include "backends/icu/IcuLocaleFormats.h"

#include <unicode/datefmt.h>
#include <unicode/dcfmtsym.h>
#include <unicode/decimfmt.h>
#include <unicode/dtitvfmt.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>
#include <unicode/ucurr.h>

#include <array>
#include <limits>
#include <mutex>

namespace quillet {

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::NumberFormatter;
using icu::number::Precision;

QString fromIcu(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

icu::UnicodeString toIcu(const QString& text) {
    return {text.utf16(), static_cast<int32_t>(text.size())};
}

icu::Locale toLocale(const QString& name) {
    return icu::Locale(name.toLatin1().constData());
}

icu::CurrencyUnit currencyOf(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::array<char16_t, 4> code{u'X', u'X', u'X', 0};
    ucurr_forLocale(locale.getName(), code.data(), static_cast<int32_t>(code.size()), &status);
    UErrorCode unitStatus = U_ZERO_ERROR;
    return {U_SUCCESS(status) ? code.data() : u"XXX", unitStatus};
}

QString formatted(const LocalizedNumberFormatter& formatter, const Decimal& value) {
    UErrorCode status = U_ZERO_ERROR;
    if (value.isNaN()) {
        return fromIcu(formatter.formatDouble(std::numeric_limits<double>::quiet_NaN(), status)
                           .toString(status));
    }
    const QByteArray text = value.toString().toLatin1();
    return fromIcu(formatter.formatDecimal(text.constData(), status).toString(status));
}

} // namespace

struct IcuLocaleFormats::Formatters {
    /// ICU's date formatters and its parser change while they work.
    mutable std::mutex mutex;
    std::shared_ptr<const UserTimeZone> zone;
    std::unique_ptr<icu::DateFormat> shortDate;
    std::unique_ptr<icu::DateFormat> longDate;
    std::unique_ptr<icu::DateFormat> shortTime;
    std::unique_ptr<icu::DateFormat> weekday;
    std::unique_ptr<icu::DateFormat> fullDate;
    std::unique_ptr<icu::DateFormat> month;
    std::unique_ptr<icu::DateFormat> year;
    std::unique_ptr<icu::DateIntervalFormat> days;
    std::unique_ptr<icu::DecimalFormat> parser;
    /// Unchangeable, and so safe from any thread.
    icu::number::UnlocalizedNumberFormatter plainNumber;
    LocalizedNumberFormatter twoDecimals;
    LocalizedNumberFormatter currency;
    icu::Locale numericLocale;
    QString decimalSeparator;
    QString currencySymbol;

    /// What ICU takes for the instant, told no zone: the time on the wall. Added as the doubles
    /// that these are, which the ends of all instants do not overflow.
    [[nodiscard]] UDate wallTime(Instant instant) const {
        const std::chrono::seconds offset =
            zone->rules().offsetAt(std::chrono::floor<std::chrono::seconds>(instant));
        return static_cast<UDate>(instant.time_since_epoch().count()) +
               static_cast<UDate>(offset.count()) * 1000.0;
    }
    [[nodiscard]] QString text(const icu::DateFormat& format, Instant instant) const {
        const UDate date = wallTime(instant);
        const std::scoped_lock lock(mutex);
        icu::UnicodeString result;
        format.format(date, result);
        return fromIcu(result);
    }
    [[nodiscard]] QString daysText(Instant first, Instant last) const {
        const icu::DateInterval interval(wallTime(first), wallTime(last));
        const std::scoped_lock lock(mutex);
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString result;
        icu::FieldPosition position;
        days->format(&interval, result, position, status);
        return fromIcu(result);
    }
};

IcuLocaleFormats::IcuLocaleFormats(const LocaleNames& locales, const QString& timeZone)
    : IcuLocaleFormats(locales, UserTimeZone::named(timeZone)) {}

IcuLocaleFormats::IcuLocaleFormats(const LocaleNames& locales,
                                   std::shared_ptr<const UserTimeZone> zone)
    : formatters_(std::make_unique<Formatters>()) {
    UErrorCode status = U_ZERO_ERROR;
    Formatters& formatters = *formatters_;
    formatters.zone = std::move(zone);
    const icu::Locale time = toLocale(locales.time);
    const icu::Locale monetary = toLocale(locales.monetary);
    formatters.numericLocale = toLocale(locales.numeric);

    formatters.shortDate.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kShort, time));
    formatters.longDate.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kLong, time));
    formatters.shortTime.reset(icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, time));
    formatters.weekday =
        std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(u"EEEE"), time, status);
    formatters.month.reset(
        icu::DateFormat::createInstanceForSkeleton(UDAT_YEAR_MONTH, time, status));
    formatters.fullDate.reset(icu::DateFormat::createDateInstance(icu::DateFormat::kFull, time));
    formatters.year.reset(icu::DateFormat::createInstanceForSkeleton(UDAT_YEAR, time, status));
    formatters.days.reset(icu::DateIntervalFormat::createInstance(u"yMMMd", time, status));
    for (icu::DateFormat* format :
         {formatters.shortDate.get(), formatters.longDate.get(), formatters.shortTime.get(),
          formatters.weekday.get(), formatters.fullDate.get(), formatters.month.get(),
          formatters.year.get()}) {
        format->setTimeZone(*icu::TimeZone::getGMT());
    }
    formatters.days->setTimeZone(*icu::TimeZone::getGMT());

    const icu::DecimalFormatSymbols symbols(formatters.numericLocale, status);
    formatters.decimalSeparator =
        fromIcu(symbols.getConstSymbol(icu::DecimalFormatSymbols::kDecimalSeparatorSymbol));
    formatters.parser = std::make_unique<icu::DecimalFormat>(u"0.##;0.##", symbols, status);
    formatters.plainNumber = NumberFormatter::with()
                                 .grouping(UNUM_GROUPING_OFF)
                                 .sign(UNUM_SIGN_NEVER)
                                 .roundingMode(UNUM_ROUND_HALFEVEN);
    formatters.twoDecimals = formatters.plainNumber.precision(Precision::minMaxFraction(0, 2))
                                 .locale(formatters.numericLocale);
    const icu::CurrencyUnit unit = currencyOf(monetary);
    formatters.currency =
        NumberFormatter::withLocale(monetary).unit(unit).roundingMode(UNUM_ROUND_HALFEVEN);
    const icu::DecimalFormatSymbols moneySymbols(monetary, status);
    formatters.currencySymbol =
        fromIcu(moneySymbols.getConstSymbol(icu::DecimalFormatSymbols::kCurrencySymbol));
}

IcuLocaleFormats::~IcuLocaleFormats() = default;

QString IcuLocaleFormats::shortDate(Instant instant) const {
    return formatters_->text(*formatters_->shortDate, instant);
}

QString IcuLocaleFormats::longDate(Instant instant) const {
    return formatters_->text(*formatters_->longDate, instant);
}

QString IcuLocaleFormats::shortTime(Instant instant) const {
    return formatters_->text(*formatters_->shortTime, instant);
}

QString IcuLocaleFormats::weekdayName(Instant instant) const {
    return formatters_->text(*formatters_->weekday, instant);
}

QString IcuLocaleFormats::dateSpan(SpanUnit unit, Instant first, Instant last) const {
    switch (unit) {
    case SpanUnit::Month:
        return formatters_->text(*formatters_->month, first);
    case SpanUnit::Year:
        return formatters_->text(*formatters_->year, first);
    case SpanUnit::Days:
        break;
    }
    const QString firstDay = formatters_->text(*formatters_->fullDate, first);
    return firstDay == formatters_->text(*formatters_->fullDate, last)
               ? firstDay
               : formatters_->daysText(first, last);
}

QString IcuLocaleFormats::number(const Decimal& value, int maximumFractionDigits) const {
    if (maximumFractionDigits == 2) {
        return formatted(formatters_->twoDecimals, value);
    }
    return formatted(
        formatters_->plainNumber.precision(Precision::minMaxFraction(0, maximumFractionDigits))
            .locale(formatters_->numericLocale),
        value);
}

QString IcuLocaleFormats::currency(const Decimal& value) const {
    return formatted(formatters_->currency, value);
}

Decimal IcuLocaleFormats::parsedNumber(const QString& text) const {
    const icu::UnicodeString source = toIcu(text);
    icu::ParsePosition position(0);
    icu::Formattable result;
    const std::scoped_lock lock(formatters_->mutex);
    formatters_->parser->parse(source, result, position);
    if (source.isEmpty() || position.getIndex() != source.length()) {
        return Decimal::notANumber();
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::StringPiece digits = result.getDecimalNumber(status);
    return U_FAILURE(status)
               ? Decimal::notANumber()
               : Decimal::fromString(QString::fromLatin1(digits.data(), digits.size()));
}

QString IcuLocaleFormats::decimalSeparator() const {
    return formatters_->decimalSeparator;
}

QString IcuLocaleFormats::currencySymbol() const {
    return formatters_->currencySymbol;
}

} // namespace quillet
