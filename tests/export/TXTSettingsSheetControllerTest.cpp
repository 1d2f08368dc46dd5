#include "export/TXTSettingsSheetController.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillet {

TEST(TXTSettingsSheetControllerTest, ClosingTakesTheNameBeingTypedAndThenHidesTheSheet) {
    test::FakeSheet sheet;
    TXTSettingsSheetController controller(sheet);
    controller.openTXTSettingsSheet();
    EXPECT_EQ(sheet.calls, QStringList{"begin"});
    controller.closeTXTSettingsSheet();
    EXPECT_EQ(sheet.calls, (QStringList{"begin", "commitEditing", "end", "orderOut"}));
}

} // namespace quillet
