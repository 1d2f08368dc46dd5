#include "backends/icu/IcuCollator.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

namespace quillet {

namespace {

QStringList sorted(const char* locale, QStringList texts) {
    const IcuCollator collator(QString::fromLatin1(locale));
    std::ranges::stable_sort(texts, {},
                             [&](const QString& text) { return collator.sortKey(text); });
    return texts;
}

} // namespace

TEST(IcuCollatorTest, LettersWithAccentsStandWhereTheLanguagePutsThem) {
    const QStringList texts{"Zebra", "Ärger", "apfel", "Öl", "Oma", "Ost"};
    EXPECT_EQ(sorted("de_DE", texts), (QStringList{"apfel", "Ärger", "Öl", "Oma", "Ost", "Zebra"}));
    EXPECT_EQ(sorted("sv_SE", texts), (QStringList{"apfel", "Oma", "Ost", "Zebra", "Ärger", "Öl"}));
}

TEST(IcuCollatorTest, LowerCaseStandsBeforeUpperCaseOfTheSameWordOnly) {
    EXPECT_EQ(sorted("en_US", {"beta", "Alpha", "alpha", "Beta", "alphabet"}),
              (QStringList{"alpha", "Alpha", "alphabet", "beta", "Beta"}));
}

TEST(IcuCollatorTest, TheEmptyTextIsSmallestAndLongTextsAreTold) {
    const IcuCollator collator("en_US");
    EXPECT_LT(collator.sortKey(QString()), collator.sortKey("a"));
    EXPECT_EQ(collator.sortKey(QString()), collator.sortKey(""));
    const QString longText(5000, u'x');
    EXPECT_LT(collator.sortKey(longText + 'a'), collator.sortKey(longText + 'b'));
    EXPECT_LT(collator.sortKey(longText), collator.sortKey(longText + 'a'));
}

TEST(IcuCollatorTest, WritingsOfOneTextAreTheSame) {
    const IcuCollator collator("fr_FR");
    EXPECT_EQ(collator.sortKey(QString::fromUtf8("caf\u00e9")),
              collator.sortKey(QString::fromUtf8("cafe\u0301")));
}

TEST(IcuCollatorTest, AnUnknownLocaleStillSorts) {
    EXPECT_EQ(sorted("xx_YY", {"b", "A", "a"}), (QStringList{"a", "A", "b"}));
}

} // namespace quillet
