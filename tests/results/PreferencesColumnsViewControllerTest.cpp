#include "results/PreferencesColumnsViewController.h"

#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

class PreferencesColumnsViewControllerTest : public testing::Test {
protected:
    PreferencesColumnsViewControllerTest() {
        using Controller = PreferencesColumnsViewController;
        note(&Controller::isHoursHiddenWillChange, "will hours");
        note(&Controller::isHoursHiddenChanged, "did hours");
        note(&Controller::isMinutesHiddenWillChange, "will minutes");
        note(&Controller::isMinutesHiddenChanged, "did minutes");
        note(&Controller::isDurationHiddenWillChange, "will duration");
        note(&Controller::isDurationHiddenChanged, "did duration");
    }
    template <typename Signal>
    void note(Signal signal, const char* name) {
        QObject::connect(&controller, signal, &controller,
                         [this, name] { announced << QString::fromLatin1(name); });
    }
    [[nodiscard]] std::string hidden() const {
        return std::string(controller.isHoursHidden() ? "h" : "") +
               (controller.isMinutesHidden() ? "m" : "") +
               (controller.isDurationHidden() ? "d" : "");
    }

    test::MemorySettings settings;
    PreferencesColumnsViewController controller{settings};
    QStringList announced;
    const QStringList everyChange{"will hours",  "did hours",     "will minutes",
                                  "did minutes", "will duration", "did duration"};
};

} // namespace

TEST_F(PreferencesColumnsViewControllerTest, WakingStoresAnAbsentTimeTypeAndAnnouncesTheFlags) {
    controller.awakeFromNib();
    EXPECT_EQ(settings.object("timeTypeSelection"), QVariant(1));
    EXPECT_EQ(announced, everyChange);
    EXPECT_EQ(hidden(), "md");
}

TEST_F(PreferencesColumnsViewControllerTest, EveryChangeOfTheTimeTypeIsAnnounced) {
    settings.setObject("timeTypeSelection", 3);
    controller.awakeFromNib();
    EXPECT_EQ(hidden(), "hm");
    announced.clear();
    settings.setObject("timeTypeSelection", 2);
    EXPECT_EQ(hidden(), "hd");
    EXPECT_EQ(announced, everyChange);
}

TEST_F(PreferencesColumnsViewControllerTest, AnUnknownTimeTypeHidesAllThree) {
    controller.awakeFromNib();
    for (const int timeType : {0, 4, -1}) {
        settings.setObject("timeTypeSelection", timeType);
        EXPECT_EQ(hidden(), "hmd") << timeType;
    }
}

} // namespace quillet
