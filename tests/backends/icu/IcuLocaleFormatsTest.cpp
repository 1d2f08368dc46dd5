#include "backends/icu/IcuLocaleFormats.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <map>

namespace quillet {

namespace {

using test::utc;

IcuLocaleFormats formats(const char* locale, const char* zone = "UTC") {
    const QString name = QString::fromLatin1(locale);
    return {{name, name, name}, QString::fromLatin1(zone)};
}

Decimal decimal(const char* text) {
    return Decimal::fromString(QString::fromLatin1(text));
}

std::string number(const char* locale, const char* value) {
    return formats(locale).number(decimal(value), 2).toStdString();
}

} // namespace

TEST(IcuLocaleFormatsTest, NumbersHaveAtMostTwoDecimalsNoGroupingAndNoMinus) {
    EXPECT_EQ(number("en_US", "1.5"), "1.5");
    EXPECT_EQ(number("en_US", "0"), "0");
    EXPECT_EQ(number("en_US", "-1.5"), "1.5");
    EXPECT_EQ(number("en_US", "1234567.891"), "1234567.89");
    EXPECT_EQ(number("de_DE", "1234.5"), "1234,5");
    EXPECT_EQ(number("fr_FR", "0.25"), "0,25");
}

TEST(IcuLocaleFormatsTest, NumbersRoundHalfEven) {
    EXPECT_EQ(number("en_US", "0.125"), "0.12");
    EXPECT_EQ(number("en_US", "0.135"), "0.14");
    EXPECT_EQ(number("en_US", "0.005"), "0");
}

TEST(IcuLocaleFormatsTest, NumbersAreExactToTheLastDigit) {
    EXPECT_EQ(number("en_US", "123456789012345678901234567890123456.78"),
              "123456789012345678901234567890123456.78");
    EXPECT_EQ(formats("en_US").number(decimal("1.666666666666666666"), 15).toStdString(),
              "1.666666666666667");
}

TEST(IcuLocaleFormatsTest, NotANumberReadsAsTheLocaleWritesIt) {
    EXPECT_EQ(formats("en_US").number(Decimal::notANumber(), 2), QStringLiteral("NaN"));
}

TEST(IcuLocaleFormatsTest, MoneyFollowsTheCurrencyOfTheLocale) {
    EXPECT_EQ(formats("en_US").currency(decimal("1234.5")), QStringLiteral("$1,234.50"));
    EXPECT_EQ(formats("de_DE").currency(decimal("1234.5")), QString::fromUtf8("1.234,50\u00a0€"));
    EXPECT_EQ(formats("ja_JP").currency(decimal("1234.5")), QString::fromUtf8("￥1,234"));
    EXPECT_EQ(formats("en_US").currencySymbol(), QStringLiteral("$"));
    EXPECT_EQ(formats("de_DE").decimalSeparator(), QStringLiteral(","));
}

TEST(IcuLocaleFormatsTest, DatesAndTimesFollowLocaleAndZone) {
    const auto american = formats("en_US", "America/New_York");
    EXPECT_EQ(american.shortDate(utc(2024, 3, 1, 2)), QStringLiteral("2/29/24"));
    EXPECT_EQ(american.longDate(utc(2024, 3, 1, 2)), QStringLiteral("February 29, 2024"));
    EXPECT_EQ(american.shortTime(utc(2024, 3, 1, 2)), QString::fromUtf8("9:00\u202fPM"));
    EXPECT_EQ(american.weekdayName(utc(2024, 3, 1, 2)), QStringLiteral("Thursday"));
    const auto german = formats("de_DE", "Europe/Berlin");
    EXPECT_EQ(german.shortDate(utc(2024, 3, 1, 2)), QStringLiteral("01.03.24"));
    EXPECT_EQ(german.longDate(utc(2024, 3, 1, 2)), QString::fromUtf8("1. März 2024"));
    EXPECT_EQ(german.shortTime(utc(2024, 3, 1, 2)), QStringLiteral("03:00"));
    EXPECT_EQ(formats("fr_FR").weekdayName(utc(2024, 3, 1)), QStringLiteral("vendredi"));
}

TEST(IcuLocaleFormatsTest, NamesAMonthWithItsYear) {
    const Instant inMarch = utc(2024, 3, 1, 2);
    EXPECT_EQ(formats("en_US", "America/New_York").monthAndYear(inMarch), "February 2024");
    EXPECT_EQ(formats("de_DE", "Europe/Berlin").monthAndYear(inMarch),
              QString::fromUtf8("März 2024"));
    EXPECT_EQ(formats("fr_FR").monthAndYear(inMarch), "mars 2024");
    EXPECT_EQ(formats("ja_JP").monthAndYear(inMarch), QString::fromUtf8("2024年3月"));
}

TEST(IcuLocaleFormatsTest, ReadsOnlyWhatTheLocaleWrites) {
    EXPECT_EQ(formats("de_DE").parsedNumber("12,5"), decimal("12.5"));
    EXPECT_TRUE(formats("de_DE").parsedNumber("12.5x").isNaN());
    EXPECT_TRUE(formats("en_US").parsedNumber("").isNaN());
    EXPECT_TRUE(formats("en_US").parsedNumber("abc").isNaN());
    EXPECT_EQ(formats("en_US").parsedNumber("12345678901234567890123456.78"),
              decimal("12345678901234567890123456.78"));
}

TEST(IcuLocaleFormatsTest, WhatIsWrittenReadsBackAsTheRoundedMagnitudeInEveryLocale) {
    // The arithmetic of an event relies on this: it rounds instead of writing and reading.
    for (const char* locale : {"en_US", "de_DE", "fr_FR", "ja_JP", "ar_EG", "de_CH", "hi_IN"}) {
        const auto texts = formats(locale);
        EXPECT_TRUE(rc::check(locale, [&] {
            const Decimal value = Decimal::fromInteger(*rc::gen::arbitrary<std::int64_t>()) /
                                  Decimal::fromInteger(*rc::gen::inRange(1, 100'000));
            const int digits = *rc::gen::element(2, 15);
            RC_ASSERT(texts.parsedNumber(texts.number(value, digits)) ==
                      value.rounded(digits, Rounding::HalfEven).absolute());
        }));
    }
}

TEST(LocaleNamesTest, TheMostSpecificVariableDecides) {
    std::map<std::string, QString> environment{{"LANG", "de_DE.UTF-8"}, {"LC_TIME", "fr_FR@euro"}};
    const auto reader = [&](const char* name) { return environment[name]; };
    EXPECT_EQ(localeNames(reader), (LocaleNames{"fr_FR", "de_DE", "de_DE", "de_DE"}));
    environment["LC_COLLATE"] = "sv_SE.UTF-8";
    EXPECT_EQ(localeNames(reader).collation, QStringLiteral("sv_SE"));
    environment["LC_ALL"] = "ja_JP.UTF-8";
    EXPECT_EQ(localeNames(reader), (LocaleNames{"ja_JP", "ja_JP", "ja_JP", "ja_JP"}));
}

TEST(LocaleNamesTest, NeutralAndUnknownLocalesCountAsAmerican) {
    for (const char* name : {"", "C", "POSIX", "C.UTF-8", "xx_YY", "klingon"}) {
        const auto reader = [&](const char*) { return QString::fromLatin1(name); };
        EXPECT_EQ(localeNames(reader).time, QStringLiteral("en_US")) << name;
    }
}

} // namespace quillet
