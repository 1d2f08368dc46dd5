#include "backends/programs/SoftwareCentre.h"

#include "ScratchDesktop.h"

namespace quillet {

namespace {

const QString type = QStringLiteral("x-scheme-handler/appstream");

class FakePortal final : public DesktopPortal {
public:
    std::expected<void, QString> composeEmail(const QString&, const QString&) override {
        return {};
    }
    std::expected<void, QString> openAddress(const QString& address) override {
        opened.append(address);
        return answer;
    }
    std::expected<void, QString> openFile(const QString&) override { return {}; }

    QStringList opened;
    std::expected<void, QString> answer;
};

class SoftwareCentreTest : public testing::Test {
protected:
    [[nodiscard]] bool show(DesktopPortal* portal = nullptr) {
        const Applications applications = test::ScratchDesktop::applications(launcher);
        return SoftwareCentre(applications, portal).show("org.quillet.Quillet").has_value();
    }

    [[nodiscard]] test::Started centreWith(const QStringList& arguments) const {
        return {desktop.path("bin/centre"), arguments};
    }

    test::ScratchDesktop desktop;
    test::FakeTaskLauncher launcher;
};

} // namespace

TEST_F(SoftwareCentreTest, ShowsTheProgramsPage) {
    desktop.install("org.example.Centre.desktop", "centre --open %U", type);
    EXPECT_TRUE(show());
    EXPECT_EQ(desktop.started(1).front(), centreWith({"--open", "appstream:org.quillet.Quillet"}));
}

TEST_F(SoftwareCentreTest, SaysWhenThereIsNone) {
    desktop.install("org.example.Mail.desktop", "mail %u", "x-scheme-handler/mailto");
    EXPECT_FALSE(show());
    EXPECT_TRUE(desktop.hasStartedNothing());
}

TEST_F(SoftwareCentreTest, TriesTheNextOneWhenOneCannotBeStarted) {
    desktop.install("org.example.A.desktop", "\"unfinished", type);
    desktop.install("org.example.B.desktop", "centre %u", type);
    EXPECT_TRUE(show());
    EXPECT_EQ(desktop.started(1).front(), centreWith({"appstream:org.quillet.Quillet"}));
}

TEST_F(SoftwareCentreTest, OneThatIsThereAndDoesNotStartIsNotTheLast) {
    desktop.install("org.example.A.desktop", "centre %u", type, "Path=/nonexistent");
    EXPECT_FALSE(show());
    desktop.install("org.example.B.desktop", "centre %u", type);
    EXPECT_TRUE(show());
    EXPECT_EQ(desktop.started(1).front(), centreWith({"appstream:org.quillet.Quillet"}));
    // And one that does is the last.
    desktop.install("org.example.C.desktop", "another %u", type);
    EXPECT_TRUE(show());
    EXPECT_EQ(desktop.started(2).last(), centreWith({"appstream:org.quillet.Quillet"}));
}

TEST_F(SoftwareCentreTest, InASandboxThePortalIsAsked) {
    desktop.install("org.example.Centre.desktop", "centre %U", type);
    FakePortal portal;
    EXPECT_TRUE(show(&portal));
    EXPECT_EQ(portal.opened, QStringList{"appstream:org.quillet.Quillet"});
    portal.answer = std::unexpected(QStringLiteral("no portal"));
    EXPECT_FALSE(show(&portal));
    EXPECT_TRUE(desktop.hasStartedNothing());
}

} // namespace quillet
