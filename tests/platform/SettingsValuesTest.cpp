#include "platform/SettingsStore.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillet {

TEST(SettingsValuesTest, ATextReadAsAnIntegerIsItsLeadingNumber) {
    EXPECT_EQ(integerFromValue("8"), 8);
    EXPECT_EQ(integerFromValue(" -12abc"), -12);
    EXPECT_EQ(integerFromValue("abc"), 0);
    EXPECT_EQ(integerFromValue("3.9"), 3);
    EXPECT_EQ(integerFromValue("99999999999999999999"), std::numeric_limits<qint64>::max());
}

TEST(SettingsValuesTest, ValuesOfAnotherKindReadAsZero) {
    EXPECT_EQ(integerFromValue(QVariant()), 0);
    EXPECT_EQ(integerFromValue(QVariantList{1, 2}), 0);
    EXPECT_FALSE(boolFromValue(QVariantMap{{"a", 1}}));
    EXPECT_EQ(stringFromValue(QVariantList{1}), QString());
    EXPECT_TRUE(decimalFromValue("abc").isNaN());
    EXPECT_FALSE(dateFromValue("2024-03-01").has_value());
    EXPECT_FALSE(dateFromValue(17).has_value());
}

TEST(SettingsValuesTest, TextsReadAsTruthByTheirFirstLetter) {
    for (const char* yes : {"YES", "y", "true", "T", "1", "007", "+3", "2"}) {
        EXPECT_TRUE(boolFromValue(yes)) << yes;
    }
    for (const char* no : {"NO", "false", "0", "", "off", "on", "-0"}) {
        EXPECT_FALSE(boolFromValue(no)) << no;
    }
}

TEST(SettingsValuesTest, NumbersReadAsEachOther) {
    EXPECT_TRUE(boolFromValue(2));
    EXPECT_FALSE(boolFromValue(0.0));
    EXPECT_EQ(integerFromValue(true), 1);
    EXPECT_EQ(integerFromValue(7.9), 7);
    EXPECT_EQ(integerFromValue(-1e30), std::numeric_limits<qint64>::min());
    EXPECT_EQ(integerFromValue(std::numeric_limits<double>::quiet_NaN()), 0);
    EXPECT_EQ(integerFromValue(QVariant::fromValue(Decimal::fromDouble(100.5))), 100);
    EXPECT_EQ(doubleFromValue("12.5 EUR"), 12.5);
    EXPECT_EQ(decimalFromValue(0.1).toString(), QStringLiteral("0.1"));
    EXPECT_EQ(decimalFromValue("100.50").toString(), QStringLiteral("100.5"));
    EXPECT_EQ(decimalFromValue(true).toString(), QStringLiteral("1"));
    EXPECT_EQ(stringFromValue(QVariant::fromValue(Decimal::fromDouble(100.5))),
              QStringLiteral("100.5"));
    EXPECT_EQ(stringFromValue(true), QStringLiteral("1"));
}

TEST(SettingsValuesTest, FlippingWritesTheNegationAndTreatsAbsentAsFalse) {
    test::MemorySettings settings;
    flipBool(settings, "datesChangedTrigger");
    EXPECT_EQ(settings.object("datesChangedTrigger"), QVariant(true));
    flipBool(settings, "datesChangedTrigger");
    EXPECT_EQ(settings.object("datesChangedTrigger"), QVariant(false));
}

} // namespace quillet
