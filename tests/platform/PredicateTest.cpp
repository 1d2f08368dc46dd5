#include "platform/Predicate.h"

#include "support/CpuTimer.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace quillet {

namespace {

bool matches(const char* condition, const QVariantMap& record) {
    const auto predicate = Predicate::parse(QString::fromUtf8(condition));
    if (!predicate) {
        ADD_FAILURE() << "does not parse: " << condition;
        return false;
    }
    return predicate->matches([&](const QString& key) { return record.value(key); });
}

} // namespace

TEST(PredicateTest, ComparesTextsExactly) {
    const QVariantMap record{{"calendarIdentifier", "Work"}};
    EXPECT_TRUE(matches(R"((calendarIdentifier == "Work"))", record));
    EXPECT_TRUE(matches(R"(calendarIdentifier = "Work")", record));
    EXPECT_FALSE(matches(R"(calendarIdentifier = "work")", record));
    EXPECT_FALSE(matches(R"(calendarIdentifier = "000")", record));
}

TEST(PredicateTest, JoinsWithOrAndWithAndBindingTighter) {
    const QVariantMap record{{"a", "1"}, {"b", "2"}};
    EXPECT_TRUE(matches(R"((a == "x") OR (b == "2"))", record));
    EXPECT_TRUE(matches(R"(a = "1" OR a = "x" AND b = "x")", record));
    EXPECT_FALSE(matches(R"((a = "1" OR a = "x") AND b = "x")", record));
    EXPECT_TRUE(matches(R"(a = "1" or b = "x")", record));
    EXPECT_TRUE(matches(R"(a = "1" and b = "2")", record));
}

TEST(PredicateTest, ContainsIgnoresCaseAsUnicodeFolds) {
    EXPECT_TRUE(matches(R"((title contains[c] "MEET"))", {{"title", "Team meeting"}}));
    EXPECT_TRUE(matches(R"(title contains[c] "Σ")", {{"title", "ος"}}));
    EXPECT_FALSE(matches(R"(title contains "MEET")", {{"title", "Team meeting"}}));
    EXPECT_TRUE(matches(R"(title contains[c] "")", {{"title", "anything"}}));
}

TEST(PredicateTest, ReadsTruthValues) {
    EXPECT_TRUE(matches("isAllDay == NO", {{"isAllDay", false}}));
    EXPECT_FALSE(matches("isAllDay == NO", {{"isAllDay", true}}));
    EXPECT_TRUE(matches("isAllDay = yes", {{"isAllDay", true}}));
    EXPECT_TRUE(matches("isSelected = 1", {{"isSelected", true}}));
}

TEST(PredicateTest, MissingFieldsMatchNothing) {
    EXPECT_FALSE(matches(R"(notes contains[c] "a")", {}));
    EXPECT_FALSE(matches(R"(notes contains[c] "")", {{"notes", QString()}}));
    EXPECT_FALSE(matches("isAllDay == NO", {}));
}

TEST(PredicateTest, BackslashEscapesTheNextCharacter) {
    EXPECT_TRUE(matches(R"(title contains[c] "say \"hi\"")", {{"title", R"(Say "Hi" now)"}}));
    EXPECT_TRUE(matches(R"(title contains[c] "a\\b")", {{"title", R"(a\b)"}}));
    EXPECT_TRUE(matches(R"(title contains[c] "100%")", {{"title", "100% sure"}}));
}

TEST(PredicateTest, ReadsTextsWhereTheyLie) {
    const auto predicate = Predicate::parse(
        R"((title contains[c] "MEET") or (notes contains "x") or (title = "Lunch"))");
    ASSERT_TRUE(predicate);
    ASSERT_EQ(predicate->keys(), (QStringList{"title", "notes"}));
    const auto matchesTexts = [&](const QString& title, const QString& notes) {
        const std::vector<QString> texts{title, notes};
        return predicate->matchesTexts([&](std::size_t key) { return QStringView(texts[key]); });
    };
    EXPECT_TRUE(matchesTexts("Team meeting", "missing"));
    EXPECT_TRUE(matchesTexts("Lunch", QString()));
    EXPECT_TRUE(matchesTexts(QString(), "x"));
    EXPECT_FALSE(matchesTexts("lunch", "X"));
    EXPECT_FALSE(matchesTexts(QString(), QString()));
}

TEST(PredicateTest, TextsAreNoTruthValues) {
    const auto predicate = Predicate::parse("isAllDay = NO");
    EXPECT_FALSE(predicate->matchesTexts([](std::size_t) { return QStringView(u"0"); }));
}

TEST(PredicateTest, MalformedTextsDoNotParse) {
    for (const char* wrong :
         {"", "(", "title", "title ==", R"(title == "open)", R"(== "x")", R"((title == "x")",
          R"(title == "x" OR)", R"(title == "x" trailing)", R"(title contains[c] "a"b")",
          "title contains[c] YES", R"(title contains[c] "\)", R"(title ! "x")", "OR", ")"}) {
        EXPECT_FALSE(Predicate::parse(QString::fromUtf8(wrong))) << wrong;
    }
}

TEST(PredicateTest, RefusesNestingThatWouldExhaustTheStack) {
    const QString deep = QString(100'000, u'(') + R"(a = "1")" + QString(100'000, u')');
    EXPECT_FALSE(Predicate::parse(deep));
}

TEST(PredicateTest, LooksThroughThousandsOfTextsInOneStep) {
    QString condition = QStringLiteral("(a == YES) OR (b == \"x\")");
    for (int number = 0; number < 20'000; ++number) {
        condition += QStringLiteral(" OR (id == \"calendar %1\")").arg(number);
    }
    const auto predicate = Predicate::parse(condition);
    ASSERT_TRUE(predicate);
    const test::CpuTimer timer(test::CpuTimer::Of::Process);
    for (int number = -20'000; number < 20'000; ++number) {
        const QString id = QStringLiteral("calendar %1").arg(number);
        const bool isMatch = predicate->matches(
            [&](const QString& key) { return key == u"id" ? QVariant(id) : QVariant(); });
        ASSERT_EQ(isMatch, number >= 0);
    }
    EXPECT_LT(timer.milliseconds(), 1000);
    const auto record = [](const QVariantMap& fields) {
        return [fields](const QString& key) { return fields.value(key); };
    };
    EXPECT_TRUE(predicate->matches(record({{"a", true}})));
    EXPECT_TRUE(predicate->matches(record({{"b", "x"}})));
    EXPECT_FALSE(predicate->matches(record({{"id", 7}})));
    EXPECT_FALSE(predicate->matches(record({})));
}

TEST(PredicateTest, EqualTextsMakeEqualPredicates) {
    EXPECT_TRUE(Predicate::parse(R"(a = "1")") == Predicate::parse(R"(a = "1")"));
    EXPECT_FALSE(Predicate::parse(R"(a = "1")") == Predicate::parse(R"(a = "2")"));
    EXPECT_EQ(Predicate::parse(R"(a = "1")")->text(), QStringLiteral(R"(a = "1")"));
}

TEST(PredicateTest, NoTextWhateverItIsBreaksTheParser) {
    EXPECT_TRUE(rc::check("what parses has that text", [] {
        const auto bytes = *rc::gen::container<std::string>(
            rc::gen::elementOf(std::string("ab =()\"\\[c]ORANDYES01contains")));
        const QString text = QString::fromStdString(bytes);
        const auto predicate = Predicate::parse(text);
        RC_ASSERT((!predicate || predicate->text() == text));
    }));
}

} // namespace quillet
