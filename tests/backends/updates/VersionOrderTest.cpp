#include "backends/updates/VersionOrder.h"

#include <QString>

#include <gtest/gtest.h>

#include <rapidcheck.h>

namespace quillet {

namespace {

struct Case {
    const char16_t* older;
    const char16_t* newer;
};

} // namespace

TEST(VersionOrderTest, TheNewerVersionIsGreater) {
    for (const auto& [older, newer] : {
             Case{u"1.0~rc1", u"1.0"},
             {u"1.0", u"1.0a"},
             {u"1.0", u"1.0.1"},
             {u"1.0", u"1.0.0"},
             {u"1.0", u"1.0^git1"},
             {u"1.9", u"1.10"},
             {u"9.9", u"1:0.1"},
             {u"1.0", u"1.0-1"},
             {u"1.0-2", u"1.0-10"},
             {u"1.0.1", u"1.0.a"},
             {u"2.0.b", u"2.0_b"},
             {u"1.0", u"v1.0"},
             {u"1.0", u"1.0rc1"},
             {u"1.0", u"1.0+git"},
             {u"1.0", u"1..0"},
             {u"1.0.1", u"1.0^1"},
             {u"1.0~~", u"1.0~"},
             {u"A", u"a"},
             {u"1", u"_"},
             {u"", u"0.1"},
             {u"1.0.10000000000000000000001", u"1.0.10000000000000000000002"},
         }) {
        EXPECT_TRUE(compareVersions(older, newer) < 0) << QString::fromUtf16(older).toStdString();
        EXPECT_TRUE(compareVersions(newer, older) > 0) << QString::fromUtf16(older).toStdString();
    }
}

TEST(VersionOrderTest, SomeVersionsDifferInWritingOnly) {
    for (const auto& [left, right] : {Case{u"1.0", u"1.0"},
                                      {u"01.0", u"1.0"},
                                      {u"1.0-", u"1.0"},
                                      {u"0:1.0", u"1.0"},
                                      {u"", u""},
                                      {u"1.0-0", u"1.0"}}) {
        EXPECT_TRUE(compareVersions(left, right) == 0) << QString::fromUtf16(left).toStdString();
    }
}

TEST(VersionOrderTest, AnyThreeTextsAreInOneOrder) {
    const auto version =
        rc::gen::map(rc::gen::container<std::string>(
                         rc::gen::element('0', '1', '9', '.', '-', '~', 'a', ':', '+')),
                     [](const std::string& text) { return QString::fromStdString(text); });
    EXPECT_TRUE(rc::check([&] {
        const QString a = *version;
        const QString b = *version;
        const QString c = *version;
        RC_ASSERT((compareVersions(a, b) < 0) == (compareVersions(b, a) > 0));
        if (compareVersions(a, b) <= 0 && compareVersions(b, c) <= 0) {
            RC_ASSERT(std::is_lteq(compareVersions(a, c)));
        }
    }));
}

} // namespace quillet
