#include "window/exports/ReportView.h"

#include "support/CpuTimer.h"
#include "window/exports/ReportViewAccessible.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class ReportViewTest : public testing::Test {
protected:
    ReportViewTest() {
        installReportViewAccessibility();
        view.resize(400, 200);
        view.show();
        view.setFocus();
    }
    void showText(const QString& text) { view.setLines(TextLines(text)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }

    ReportView view;
};

QString manyLines(int count) {
    QString text;
    for (int number = 0; number < count; ++number) {
        text += QStringLiteral("line %1\n").arg(number);
    }
    return text;
}

} // namespace

TEST(TextLinesTest, FindsTheLinesOfAText) {
    const TextLines lines(QStringLiteral("one\n\nthree\n"));
    ASSERT_EQ(lines.count(), 4);
    EXPECT_EQ(lines.line(0), QStringLiteral("one"));
    EXPECT_EQ(lines.line(1), QString(""));
    EXPECT_EQ(lines.line(2), QStringLiteral("three"));
    EXPECT_EQ(lines.line(3), QString(""));
    EXPECT_EQ(lines.longestLength(), 5);
    EXPECT_EQ(lines.lineAt(0), 0);
    EXPECT_EQ(lines.lineAt(3), 0);
    EXPECT_EQ(lines.lineAt(4), 1);
    EXPECT_EQ(lines.lineAt(5), 2);
    EXPECT_EQ(lines.lineAt(11), 3);
}

TEST(TextLinesTest, AnEmptyTextIsOneEmptyLine) {
    const TextLines lines;
    EXPECT_EQ(lines.count(), 1);
    EXPECT_EQ(lines.line(0).size(), 0);
    EXPECT_EQ(TextLines(QStringLiteral("x")).longestLength(), 1);
}

TEST_F(ReportViewTest, TheCaretMovesByCharactersLinesAndEnds) {
    showText(QStringLiteral("first line\nab\nlast line"));
    press(Qt::Key_End);
    EXPECT_EQ(view.caret(), 10);
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 11);
    press(Qt::Key_Left);
    EXPECT_EQ(view.caret(), 10);
    press(Qt::Key_Down);
    EXPECT_EQ(view.caret(), 13);
    press(Qt::Key_Down);
    EXPECT_EQ(view.caret(), 16);
    press(Qt::Key_Home);
    EXPECT_EQ(view.caret(), 14);
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.caret(), 23);
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 23);
    press(Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_Left);
    EXPECT_EQ(view.caret(), 0);
}

TEST_F(ReportViewTest, TheCaretStepsOverWholeCharacters) {
    showText(QString::fromUtf8("a😀e\u0301z"));
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 3);
    press(Qt::Key_Right);
    EXPECT_EQ(view.caret(), 5);
}

TEST_F(ReportViewTest, ShiftSelectsAndCopyTakesWhatIsSelected) {
    showText(QStringLiteral("first\nsecond\n"));
    QApplication::clipboard()->setText(QStringLiteral("before"));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("before"));
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(view.selectedText(), QStringLiteral("first\ns"));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("first\ns"));
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(view.selectedText(), QStringLiteral("first\nsecond\n"));
}

TEST_F(ReportViewTest, TheMouseSelectsAndADoubleClickTakesAWord) {
    showText(QStringLiteral("first second\nthird"));
    const auto middle = [&](qsizetype position) { return view.characterRect(position).center(); };
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, middle(8));
    EXPECT_EQ(view.selectedText(), QStringLiteral("second"));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.characterRect(6).topLeft());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      view.characterRect(14).topLeft());
    EXPECT_EQ(view.selectedText(), QStringLiteral("second\nt"));
}

TEST_F(ReportViewTest, OnlyLineFeedsEndALine) {
    showText(u"one\u2028two\u2029three\rfour\vfive\fsix"_qs);
    ASSERT_EQ(view.lines().count(), 1);
    for (qsizetype position = 1; position < view.text().size(); ++position) {
        EXPECT_GE(view.characterRect(position).left(), view.characterRect(position - 1).left());
    }
    const qsizetype last = view.text().size() - 1;
    EXPECT_GT(view.characterRect(last).left(), view.characterRect(4).left());
    EXPECT_GT(view.characterRect(4).left(), view.characterRect(2).left());
    EXPECT_EQ(view.positionAt(view.characterRect(last).center()), last);
}

TEST_F(ReportViewTest, ATabTakesTheRoomOfOneCharacterAndIsCopiedAsItIs) {
    showText(QStringLiteral("a\tb\nc d"));
    EXPECT_EQ(view.characterRect(2).left(), view.characterRect(6).left());
    view.select(0, 3);
    EXPECT_EQ(view.selectedText(), QStringLiteral("a\tb"));
}

TEST_F(ReportViewTest, ANewTextStaysWhereTheOldOneWasScrolledTo) {
    showText(manyLines(500));
    view.verticalScrollBar()->setValue(300);
    showText(manyLines(499));
    EXPECT_EQ(view.verticalScrollBar()->value(), 300);
    showText(manyLines(3));
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(ReportViewTest, TheCaretIsScrolledIntoView) {
    showText(manyLines(500) + QString(400, u'x'));
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
    EXPECT_GT(view.horizontalScrollBar()->value(), 0);
    EXPECT_TRUE(view.viewport()->rect().contains(view.characterRect(view.caret()).topLeft()));
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
    press(Qt::Key_PageDown);
    EXPECT_GT(view.caret(), 0);
}

TEST_F(ReportViewTest, ThreeHundredThousandLinesAreShownAtOnce) {
    TextLines lines(manyLines(300'000));
    const test::CpuTimer timer;
    view.setLines(std::move(lines));
    view.grab();
    // A text edit takes more than half a second on the same machine.
    EXPECT_LT(timer.milliseconds(), 200);
}

TEST_F(ReportViewTest, AssistiveProgramsReadTheTextAndSelectInIt) {
    showText(QStringLiteral("first\nsecond"));
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::EditableText);
    EXPECT_TRUE(accessible->state().readOnly);
    QAccessibleTextInterface* text = accessible->textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 12);
    EXPECT_EQ(text->text(0, -1), QStringLiteral("first\nsecond"));
    EXPECT_EQ(text->text(6, 99), QStringLiteral("second"));
    text->setSelection(0, 2, 8);
    EXPECT_EQ(view.selectedText(), QStringLiteral("rst\nse"));
    EXPECT_EQ(text->selectionCount(), 1);
    text->setCursorPosition(3);
    EXPECT_EQ(text->cursorPosition(), 3);
    EXPECT_EQ(text->selectionCount(), 0);
    int start = 0;
    int end = 0;
    EXPECT_EQ(text->textAtOffset(7, QAccessible::LineBoundary, &start, &end),
              QStringLiteral("second"));
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(9).center()), 9);
}

} // namespace quillet
