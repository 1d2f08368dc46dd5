#include "window/calendars/RateEditing.h"

#include "backends/icu/IcuLocaleFormats.h"
#include "support/MemorySettings.h"
#include "window/calendars/HourlyRateField.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

const QString rateKey = QStringLiteral("hourlyRate");

class RateEditingTest : public testing::Test {
protected:
    RateEditingTest() {
        settings.setObject(rateKey, 90);
        rate.emplace(settings, formats, nullptr);
        rate->show();
        edit().selectAll();
    }

    [[nodiscard]] QLineEdit& edit() const { return rate->edit(); }
    [[nodiscard]] QString complaint() const {
        return rate->findChild<QLabel*>("hourlyRateProblem")->text();
    }
    [[nodiscard]] std::string inEffect() const {
        return decimalFromValue(settings.object(rateKey)).toString().toStdString();
    }
    /// The rates in effect after each key.
    std::vector<std::string> afterEach(const QString& keys) const {
        std::vector<std::string> rates;
        for (const QChar key : keys) {
            QTest::keyClicks(&edit(), key);
            rates.push_back(inEffect());
        }
        return rates;
    }

    using Rates = std::vector<std::string>;

    test::MemorySettings settings;
    const IcuLocaleFormats formats{{"en_US", "en_US", "en_US"}, "UTC"};
    std::optional<HourlyRateField> rate;
};

} // namespace

TEST_F(RateEditingTest, ARateTakesEffectWithEveryKeyAndTheTextStaysAsItIsTyped) {
    EXPECT_EQ(afterEach("82.50"), (Rates{"8", "82", "82", "82.5", "82.5"}));
    EXPECT_EQ(edit().text(), "82.50");
    EXPECT_EQ(edit().cursorPosition(), 5);
    QTest::keyClick(&edit(), Qt::Key_Left);
    QTest::keyClick(&edit(), Qt::Key_Left);
    QTest::keyClick(&edit(), Qt::Key_Left);
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    EXPECT_EQ(inEffect(), "8.5");
    EXPECT_EQ(edit().text(), "8.50");
    EXPECT_EQ(edit().cursorPosition(), 1);
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(edit().text(), "8.5");
}

TEST_F(RateEditingTest, WhileTheTextIsNoRateTheOneFromBeforeTheTypingHolds) {
    EXPECT_EQ(afterEach("1x2"), (Rates{"1", "90", "90"}));
    EXPECT_EQ(complaint(), "") << "still typing";
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(edit().text(), "90");
    EXPECT_EQ(complaint(), "“1x2” is not a rate; the old one was kept.");
    edit().selectAll();
    EXPECT_EQ(afterEach("-5"), (Rates{"90", "90"}));
    EXPECT_EQ(complaint(), "") << "typing again";
}

TEST_F(RateEditingTest, ARateThatIsWipedOutLetterByLetterIsKept) {
    edit().end(false);
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    EXPECT_EQ(inEffect(), "9");
    QTest::keyClick(&edit(), Qt::Key_Backspace);
    EXPECT_EQ(edit().text(), "");
    EXPECT_EQ(inEffect(), "90");
    rate->hide();
    EXPECT_EQ(inEffect(), "90");
    EXPECT_EQ(edit().text(), "90");
}

TEST_F(RateEditingTest, TypingCanBeUndoneAndRoundsNothingThen) {
    settings.setObject(rateKey, 99.999);
    edit().end(false);
    ASSERT_EQ(edit().text(), "100");
    QTest::keyClicks(&edit(), "7");
    EXPECT_EQ(inEffect(), "1007");
    QTest::keySequence(&edit(), QKeySequence::Undo);
    EXPECT_EQ(edit().text(), "100");
    EXPECT_EQ(inEffect(), "99.999");
    QTest::keySequence(&edit(), QKeySequence::Redo);
    EXPECT_EQ(inEffect(), "1007");
    QTest::keyClick(&edit(), Qt::Key_Return);
    QTest::keySequence(&edit(), QKeySequence::Undo);
    EXPECT_EQ(edit().text(), "100") << "also after Return";
}

TEST_F(RateEditingTest, WhatAnotherControlSetsMeanwhileIsWhatARefusedTextLeaves) {
    QTest::keyClicks(&edit(), "75");
    settings.setObject(rateKey, 60);
    EXPECT_EQ(edit().text(), "75");
    QTest::keyClicks(&edit(), "x");
    EXPECT_EQ(inEffect(), "60");
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(edit().text(), "60");
}

TEST_F(RateEditingTest, EachTypedRateIsWrittenOnce) {
    settings.writes.clear();
    QTest::keyClicks(&edit(), "82.50");
    QTest::keyClick(&edit(), Qt::Key_Return);
    QTest::keyClick(&edit(), Qt::Key_Return);
    rate->hide();
    EXPECT_EQ(settings.writes.size(), 3) << "8, 82, 82.5";
}

TEST_F(RateEditingTest, TheSignOfAStoredRateIsNotShownForItDoesNotCount) {
    settings.setObject(rateKey, -45);
    EXPECT_EQ(edit().text(), "45");
    QTest::keyClick(&edit(), Qt::Key_Return);
    EXPECT_EQ(inEffect(), "-45") << "looking at it writes nothing";
}

} // namespace quillet
