#include "platform/StyledText.h"

#include <gtest/gtest.h>

namespace quillet {

TEST(StyledText, JoinsItsParts) {
    using enum StyledText::Style;
    EXPECT_EQ(StyledText().text(), "");
    const StyledText text{
        .parts = {{"\n", Plain}, {"Work", Bold}, {"", Regular}, {" 1.5", Monospaced}},
        .hasTextColor = true};
    EXPECT_EQ(text.text(), "\nWork 1.5");
}

} // namespace quillet
