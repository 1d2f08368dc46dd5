#include "window/WindowFixture.h"

#include "window/widgets/ProblemFoot.h"

#include <QLabel>
#include <QScrollBar>
#include <QTableView>

namespace quillet {

namespace {

class ProblemFootTest : public test::WindowFixture {
protected:
    ProblemFootTest() { open(); }

    void show(const QStringList& some) {
        problems = some;
        window->refreshProblems();
        QApplication::processEvents();
    }
    static QStringList badFiles(int count) {
        QStringList lines;
        for (int number = 1; number <= count; ++number) {
            lines += QStringLiteral("Work/bad-%1.ics: not a calendar file").arg(number);
        }
        return lines;
    }
    [[nodiscard]] ProblemFoot* foot() const { return window->findChild<ProblemFoot*>(); }
    [[nodiscard]] QString text() const { return named<QLabel>("calendarProblems")->text(); }
};

} // namespace

TEST_F(ProblemFootTest, FewProblemsStandThereWholeAndTakeNoFocus) {
    show(badFiles(2));
    EXPECT_TRUE(foot()->isVisible());
    EXPECT_EQ(text(), badFiles(2).join(u'\n'));
    EXPECT_EQ(foot()->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(foot()->focusPolicy(), Qt::NoFocus);
}

TEST_F(ProblemFootTest, ManyProblemsLeaveTheWindowItsSizeAndAreScrolled) {
    const QSize size = window->size();
    const QSize smallest = window->minimumSizeHint();
    show(badFiles(100));
    EXPECT_EQ(window->size(), size);
    EXPECT_LT(window->minimumSizeHint().height(), smallest.height() + size.height() / 2);
    EXPECT_LT(foot()->height(), named<QTableView>("Calendars")->height());
    EXPECT_EQ(text(), badFiles(100).join(u'\n'));
    EXPECT_GT(foot()->verticalScrollBar()->maximum(), foot()->height());
    EXPECT_EQ(foot()->focusPolicy(), Qt::StrongFocus) << "so that keys scroll it";
    EXPECT_FALSE(foot()->accessibleName().isEmpty());
}

TEST_F(ProblemFootTest, OfVeryManyProblemsTheLastAreCounted) {
    show(badFiles(20'000));
    EXPECT_EQ(text(), badFiles(200).join(u'\n') + QStringLiteral("\nand 19800 more"));
    show(badFiles(202));
    EXPECT_EQ(text(), badFiles(200).join(u'\n') + QStringLiteral("\nand 2 more"));
    show(badFiles(201));
    EXPECT_EQ(text(), badFiles(201).join(u'\n')) << "one more line takes one line";
}

TEST_F(ProblemFootTest, ANameWithoutBlanksMakesThePaneNoWider) {
    const int width = named<QTableView>("Calendars")->width();
    show({QString(250, u'x') + QStringLiteral(".ics: not a calendar file")});
    EXPECT_EQ(named<QTableView>("Calendars")->width(), width);
}

TEST_F(ProblemFootTest, GoesWhenTheProblemsAreGone) {
    show(badFiles(100));
    show({});
    EXPECT_FALSE(foot()->isVisible());
}

} // namespace quillet
