#include "window/WindowFixture.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

namespace quillet {

namespace {

class RatePaneTest : public test::WindowFixture {
protected:
    void SetUp() override {
        open();
        field = named<QLineEdit>("Hourly Rate");
    }
    /// As a screen reader puts a text in: all at once, without a key.
    void putIn(const QString& text) const {
        QAccessible::queryAccessibleInterface(field)->setText(QAccessible::Value, text);
    }
    [[nodiscard]] Decimal sharedRate() const {
        return decimalFromValue(settings.object("hourlyRate"));
    }

    QLineEdit* field = nullptr;
};

} // namespace

TEST_F(RatePaneTest, TakesATextThatAnAssistiveProgramPutsIn) {
    putIn("45.5");
    EXPECT_EQ(sharedRate(), Decimal::fromDouble(45.5));
    putIn("ten");
    EXPECT_EQ(sharedRate(), Decimal::fromDouble(45.5));
    EXPECT_EQ(field->text(), QStringLiteral("45.5"));
    EXPECT_TRUE(named<QLabel>("hourlyRateProblem")->text().contains("ten"));
}

TEST_F(RatePaneTest, AnAssistiveProgramSetsTheRateOfTheSelectedCalendar) {
    settings.setObject("isSingleRate", false);
    named<QTableView>("Calendars")->selectRow(1);
    putIn("70");
    EXPECT_EQ(calendars.arranged(1).rate, Decimal::fromInteger(70));
    EXPECT_EQ(calendars.arranged(0).rate, Decimal());
}

TEST_F(RatePaneTest, WhatIsBeingTypedStaysWhenTheCalendarsChange) {
    field->selectAll();
    QTest::keyClicks(field, "12");
    calendars.setRate(0, Decimal::fromInteger(5));
    calendars.syncCalendars();
    EXPECT_EQ(field->text(), QStringLiteral("12"));
    QTest::keyClicks(field, "0");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(sharedRate(), Decimal::fromInteger(120));
}

TEST_F(RatePaneTest, LookingAtARateRoundsNothing) {
    settings.setObject("hourlyRate", 99.999);
    EXPECT_EQ(field->text(), QStringLiteral("100"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(sharedRate(), Decimal::fromDouble(99.999));
}

TEST_F(RatePaneTest, ARateOfTheSelectedCalendarsTakesEffectWhileItIsTyped) {
    settings.setObject("isSingleRate", false);
    calendars.setRate(0, Decimal::fromInteger(10));
    calendars.setRate(1, Decimal::fromInteger(20));
    named<QTableView>("Calendars")->selectAll();
    field->selectAll();
    QTest::keyClicks(field, "75");
    EXPECT_EQ(calendars.arranged(0).rate, Decimal::fromInteger(75));
    EXPECT_EQ(calendars.arranged(1).rate, Decimal::fromInteger(75));
    EXPECT_EQ(field->text(), QStringLiteral("75"));
    EXPECT_EQ(field->cursorPosition(), 2);
    QTest::keyClicks(field, "x");
    EXPECT_EQ(calendars.arranged(0).rate, Decimal::fromInteger(10));
    EXPECT_EQ(calendars.arranged(1).rate, Decimal::fromInteger(20));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(field->text(), QStringLiteral("10"));
    EXPECT_EQ(settings.object("hourlyRate"), QVariant(90)) << "the one rate is another";
}

TEST_F(RatePaneTest, AnotherSelectionEndsTheTyping) {
    settings.setObject("isSingleRate", false);
    calendars.setRate(1, Decimal::fromInteger(20));
    calendars.setSelectedRows({0});
    field->selectAll();
    QTest::keyClicks(field, "75");
    calendars.setSelectedRows({1});
    EXPECT_EQ(field->text(), QStringLiteral("20"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(calendars.arranged(0).rate, Decimal::fromInteger(75));
    EXPECT_EQ(calendars.arranged(1).rate, Decimal::fromInteger(20));
}

} // namespace quillet
