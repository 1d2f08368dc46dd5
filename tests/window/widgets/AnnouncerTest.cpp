#include "window/widgets/Announcer.h"

#include <QAccessible>
#include <QApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace quillet::test {

namespace {

class AnnouncerTest : public testing::Test {
protected:
    AnnouncerTest() { window.show(); }
    QStringList said() {
        QApplication::processEvents();
        QStringList sentences;
        for (const QList<QVariant>& call : spy) {
            sentences << call.first().toString();
        }
        spy.clear();
        return sentences;
    }

    QWidget window;
    Announcer announcer{window};
    QSignalSpy spy{&announcer, &Announcer::announced};
};

TEST_F(AnnouncerTest, IsANotificationThatBearsTheSentence) {
    announcer.announce("March 2024: 36 events");
    EXPECT_EQ(said(), QStringList{"March 2024: 36 events"});
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&announcer);
    EXPECT_EQ(spoken->role(), QAccessible::Notification);
    EXPECT_EQ(spoken->text(QAccessible::Name), "March 2024: 36 events");
}

TEST_F(AnnouncerTest, SaysWhereItEndedWhenThereWereManyAtOnce) {
    announcer.announce("February 2024");
    announcer.announce("January 2024");
    EXPECT_EQ(said(), QStringList{"January 2024"});
}

TEST_F(AnnouncerTest, SaysNothingTwiceUnlessItIsAsked) {
    announcer.announce("March 2024");
    said();
    announcer.announce("March 2024");
    EXPECT_EQ(said(), QStringList());
    announcer.repeat();
    EXPECT_EQ(said(), QStringList{"March 2024"});
}

} // namespace

} // namespace quillet::test
