#include "platform/CaseFoldedText.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

namespace quillet {

namespace {

/// What isIn() promises, the long way round.
bool foldedHolds(const QString& text, const QString& wanted) {
    return text.toCaseFolded().contains(wanted.toCaseFolded());
}

bool isIn(const QString& wanted, const QString& text) {
    return CaseFoldedText(wanted).isIn(text);
}

/// Characters that meet all the ways in which folding goes.
QString textOf(const std::vector<int>& choices) {
    static const QStringList characters{"a",  "A",  "s",  "S", "ß", "ẞ", "f", "ﬀ", "ﬃ", "i", "I",
                                        "İ",  "ı",  "k",  "K", "Å", "å", "Σ", "ς", "σ", "ŉ", "n",
                                        "日", "本", "😀", "𐐀", "𐐨", "Ⅷ", "ⅷ", "-", " "};
    QString text;
    for (const int choice : choices) {
        text += characters[choice % characters.size()];
    }
    return text;
}

} // namespace

TEST(CaseFoldedTextTest, FindsATextInAnyCase) {
    EXPECT_TRUE(isIn("MEET", "Team meeting"));
    EXPECT_TRUE(isIn("meet", "TEAM MEETING"));
    EXPECT_TRUE(isIn("ÜBER", "übergabe"));
    EXPECT_FALSE(isIn("meat", "Team meeting"));
    EXPECT_FALSE(isIn("meetings", "Team meeting"));
}

TEST(CaseFoldedTextTest, AllFormsOfALetterCountAsOne) {
    EXPECT_TRUE(isIn("ΟΔΌΣ", "οδός"));
    EXPECT_TRUE(isIn("kelvin", "\u212Aelvin")) << "the sign of the unit";
    EXPECT_TRUE(isIn("θι", "\u03D1\u1FBE")) << "letters of four forms";
    EXPECT_TRUE(isIn("𐐨", "a𐐀b")) << "two units to a letter";
    EXPECT_FALSE(isIn("𐐩", "a𐐀b"));
}

TEST(CaseFoldedTextTest, NoLetterCountsAsTwo) {
    EXPECT_TRUE(isIn("STRAẞE", "Straße"));
    EXPECT_FALSE(isIn("STRASSE", "Straße")) << "what is found is a piece of the text as it stands";
    EXPECT_FALSE(isIn("ß", "strasse"));
    EXPECT_FALSE(isIn("fi", "\uFB01nal")) << "a ligature";
}

TEST(CaseFoldedTextTest, HalfAPairIsFoundAsItIs) {
    const QString half = QStringLiteral("aÅ😀").left(3);
    EXPECT_TRUE(isIn(half, "aÅ😀"));
    EXPECT_FALSE(isIn(half, "aÅ本"));
}

TEST(CaseFoldedTextTest, TheEmptyTextIsInEveryText) {
    EXPECT_TRUE(isIn("", "anything"));
    EXPECT_TRUE(isIn("", ""));
    EXPECT_FALSE(isIn("a", ""));
}

TEST(CaseFoldedTextTest, FindsTextsAcrossTheBlocksInWhichItLooks) {
    for (int before = 0; before < 70; ++before) {
        for (int behind = 0; behind < 40; ++behind) {
            const QString text = QString(before, u'x') + "Meeting" + QString(behind, u'y');
            ASSERT_TRUE(isIn("mEETING", text)) << before << ' ' << behind;
            ASSERT_FALSE(isIn("meetings", text)) << before << ' ' << behind;
        }
    }
}

TEST(CaseFoldedTextTest, EveryCharacterIsFoundByItsFolding) {
    for (char32_t code = 1; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code < 0xE000) {
            continue;
        }
        const QString character = QString::fromUcs4(&code, 1);
        const QString folded = character.toCaseFolded();
        ASSERT_TRUE(isIn(folded, "x" + character)) << static_cast<unsigned>(code);
        ASSERT_TRUE(isIn(character, folded)) << static_cast<unsigned>(code);
    }
}

TEST(CaseFoldedTextTest, AnswersAsFoldingTheWholeTextWould) {
    EXPECT_TRUE(rc::check(
        [](const std::vector<unsigned char>& text, const std::vector<unsigned char>& wanted) {
            const QString haystack = textOf({text.begin(), text.end()});
            const QString needle = textOf({wanted.begin(), wanted.end()}).left(3);
            RC_ASSERT(isIn(needle, haystack) == foldedHolds(haystack, needle));
        }));
}

} // namespace quillet
