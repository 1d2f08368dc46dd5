#include "eventdata/LazyValue.h"

#include <gtest/gtest.h>

namespace quillet {

TEST(LazyValueTest, ThereIsNoneBeforeItIsAnnounced) {
    const LazyValue<int> value([] { return 1; });
    EXPECT_EQ(value.get(), nullptr);
}

TEST(LazyValueTest, ItIsWorkedOutOnceForAllWhoReadIt) {
    int worked = 0;
    LazyValue<int> value([&] { return ++worked; });
    value.expire();
    value.expire();
    EXPECT_EQ(worked, 0);
    ASSERT_NE(value.get(), nullptr);
    EXPECT_EQ(*value.get(), 1);
    EXPECT_EQ(worked, 1);
    value.expire();
    EXPECT_EQ(*value.get(), 2);
}

} // namespace quillet
