#include "window/exports/StyledTextView.h"

#include <QApplication>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// Long enough to be filled in bit by bit.
StyledText longText() {
    StyledText text;
    for (int number = 0; number < 6'000; ++number) {
        text.parts.push_back({QStringLiteral("Heading %1").arg(number), StyledText::Style::Bold});
        text.parts.push_back({QStringLiteral("\nNotes\n\n\n"), StyledText::Style::Regular});
    }
    return text;
}

class StyledTextViewTest : public testing::Test {
protected:
    StyledTextViewTest() {
        view.resize(400, 200);
        view.QWidget::show();
        view.show(text);
    }
    [[nodiscard]] bool isFilled() const {
        return view.document()->characterCount() > text.text().size();
    }
    void fill() {
        while (!isFilled()) {
            QApplication::processEvents();
        }
        QApplication::processEvents();
    }

    const StyledText text = longText();
    StyledTextView view;
};

} // namespace

TEST_F(StyledTextViewTest, ALongTextIsFilledInWhileTheWindowStaysAlive) {
    EXPECT_FALSE(isFilled());
    EXPECT_TRUE(view.toPlainText().startsWith("Heading 0")) << "it begins at once";
    fill();
    EXPECT_EQ(view.toPlainText(), text.text());
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(StyledTextViewTest, ANewTextStaysWhereTheOldOneWasScrolledTo) {
    fill();
    view.verticalScrollBar()->setValue(9'000);
    view.show(text);
    fill();
    EXPECT_EQ(view.verticalScrollBar()->value(), 9'000);
}

TEST_F(StyledTextViewTest, WhoScrollsByKeyboardWhileItIsFilledInIsNotTakenBack) {
    while (view.verticalScrollBar()->maximum() == 0) {
        QApplication::processEvents();
    }
    ASSERT_FALSE(isFilled());
    QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
    ASSERT_GT(view.verticalScrollBar()->value(), 0);
    fill();
    EXPECT_GT(view.verticalScrollBar()->value(), 0);
}

} // namespace quillet
