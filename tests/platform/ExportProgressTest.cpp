#include "platform/ExportProgress.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quillet {

TEST(ExportSteps, AskAfterEveryThousandEvents) {
    std::vector<std::pair<std::size_t, std::size_t>> asked;
    const ExportProgress progress = [&](std::size_t finished, std::size_t all) {
        asked.emplace_back(finished, all);
        return ExportAnswer::GoOn;
    };
    ExportSteps steps(progress, 2999);
    for (int event = 0; event < 2999; ++event) {
        EXPECT_TRUE(steps.goOn());
    }
    EXPECT_EQ(asked,
              (std::vector<std::pair<std::size_t, std::size_t>>{{1000, 2999}, {2000, 2999}}));
}

TEST(ExportSteps, EndWithTheAnswerToCancel) {
    const ExportProgress progress = [](std::size_t, std::size_t) { return ExportAnswer::Cancel; };
    ExportSteps steps(progress, 5000);
    int finished = 0;
    do {
        ++finished;
    } while (steps.goOn());
    EXPECT_EQ(finished, 1000);
}

TEST(ExportSteps, GoOnWhereNobodyIsAsked) {
    const ExportProgress nobody;
    ExportSteps steps(nobody, 2000);
    for (int event = 0; event < 2000; ++event) {
        EXPECT_TRUE(steps.goOn());
    }
}

} // namespace quillet
