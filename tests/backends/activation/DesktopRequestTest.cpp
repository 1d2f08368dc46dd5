#include "backends/activation/DesktopRequest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillet {

namespace {

QStringList addressesOf(const QStringList& arguments, const QString& folder = "/home/anna") {
    return desktopRequest(arguments, folder).addresses;
}

} // namespace

TEST(DesktopRequestTest, WithoutArgumentsTheProgramIsToComeToTheFront) {
    EXPECT_EQ(desktopRequest({}, "/"), DesktopRequest{});
    EXPECT_EQ(desktopRequest({""}, "/"), DesktopRequest{});
    const QDBusMessage call = callFor({}, {});
    EXPECT_EQ(call.member(), "Activate");
    EXPECT_EQ(call.arguments(), QVariantList{QVariantMap{}});
}

TEST(DesktopRequestTest, AddressesStayAsTheDesktopWroteThem) {
    const QStringList addresses{"file:///tmp/a%20b%25.ics", "https://quillet.example/a.ics",
                                "webcal://quillet.example/b", "file:", "x-y+z.1:%zz"};
    EXPECT_EQ(addressesOf(addresses), addresses);
}

TEST(DesktopRequestTest, PathsBecomeAddresses) {
    EXPECT_EQ(
        addressesOf({"/tmp/100% \"über\" #1?.ics", "work/../a b.ics", "--action", "-x", "C:"}),
        (QStringList{"file:///tmp/100%25%20%22%C3%BCber%22%20%231%3F.ics",
                     "file:///home/anna/a%20b.ics", "file:///home/anna/--action",
                     "file:///home/anna/-x", "file:///home/anna/C:"}));
}

TEST(DesktopRequestTest, AFileMayBeCalledLikeAnAddress) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("file:a.ics"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(addressesOf({"file:a.ics"}, folder.path()),
              QStringList("file://" + folder.path() + "/file:a.ics"));
}

TEST(DesktopRequestTest, AnActionIsNamed) {
    const DesktopRequest request = desktopRequest({"--action", "this-week"}, "/");
    EXPECT_EQ(request, (DesktopRequest{.addresses = {}, .action = "this-week"}));
    const QDBusMessage call = callFor(request, {});
    EXPECT_EQ(call.member(), "ActivateAction");
    EXPECT_EQ(call.arguments(), (QVariantList{"this-week", QVariantList{}, QVariantMap{}}));
}

TEST(DesktopRequestTest, TheTokenGoesUnderBothOfItsNames) {
    const QDBusMessage call = callFor({.addresses = {"file:///a.ics"}, .action = {}}, "click");
    EXPECT_EQ(call.member(), "Open");
    EXPECT_EQ(call.arguments(), (QVariantList{QStringList{"file:///a.ics"},
                                              QVariantMap{{"activation-token", "click"},
                                                          {"desktop-startup-id", "click"}}}));
    EXPECT_FALSE(call.autoStartService());
}

} // namespace quillet
