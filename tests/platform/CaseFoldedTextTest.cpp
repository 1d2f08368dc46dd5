#include "platform/CaseFoldedText.h"

#include "platform/CaseFolding.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstdint>

namespace quillet {

namespace {

/// What isIn() promises, the long way round.
bool foldedHolds(const QString& text, const QString& wanted) {
    return caseFolded(text).contains(caseFolded(wanted));
}

bool isIn(const QString& wanted, const QString& text) {
    return CaseFoldedText(wanted).isIn(text);
}

/// Characters that meet all the ways in which folding goes.
QString textOf(const std::vector<int>& choices) {
    static const QStringList characters{
        "a",  "A",       "s",      "S",      "ß", "ẞ",  "f",      "ﬀ", "ﬃ", "i",  "I",
        "İ",  "ı",       "k",      "K",      "Å", "å",  "Σ",      "ς", "σ", "ŉ",  "n",
        "日", "本",      "😀",     "𐐀",      "𐐨", "Ⅷ",  "ⅷ",      "-", " ", "ss", "e",
        "é",  "e\u0301", "\u0301", "\u0323", "ΐ", "か", "\u3099", "が"};
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

TEST(CaseFoldedTextTest, ALetterThatFoldsToSeveralIsFoundByThem) {
    const QStringList spellings{"STRASSE", "strasse", "Straße", "STRAẞE", "Straſse"};
    for (const QString& wanted : spellings) {
        for (const QString& text : spellings) {
            EXPECT_TRUE(isIn(wanted, "In der " + text + " 7")) << qPrintable(wanted + ' ' + text);
        }
    }
    EXPECT_TRUE(isIn("ß", "strasse"));
    EXPECT_TRUE(isIn("fi", "\uFB01nal")) << "a ligature";
    EXPECT_TRUE(isIn("\uFB03x", "AFFIX"));
    EXPECT_FALSE(isIn("strase", "Straße"));
}

TEST(CaseFoldedTextTest, ATextIsFoundWhileItIsStillBeingTyped) {
    const QString whole = QStringLiteral("strasse 7");
    for (qsizetype length = 1; length <= whole.size(); ++length) {
        EXPECT_TRUE(isIn(whole.left(length), "Große Straße 7")) << length;
    }
    EXPECT_TRUE(isIn("se", "aße"));
    EXPECT_TRUE(isIn("s", "ß"));
    EXPECT_TRUE(isIn("sss", "Maßstab"));
    EXPECT_FALSE(isIn("ssss", "Maßstab"));
    EXPECT_TRUE(isIn(QString(40, u's'), QString(20, u'ß')));
    EXPECT_FALSE(isIn(QString(41, u's'), QString(20, u'ß')));
}

TEST(CaseFoldedTextTest, LettersInOnePieceAndLettersWithMarksAreTheSame) {
    const QStringList spellings{"Café", "CAFE\u0301", "café"};
    for (const QString& wanted : spellings) {
        for (const QString& text : spellings) {
            EXPECT_TRUE(isIn(wanted, "Im " + text + " um neun"));
        }
        EXPECT_FALSE(isIn("cafe", "Im " + wanted)) << "a letter with a mark is another one";
    }
    EXPECT_TRUE(isIn("\u1EAD", "a\u0302\u0323")) << "marks in either order";
    EXPECT_TRUE(isIn("が", "か\u3099"));
    EXPECT_TRUE(isIn("\uD55C", "\u1112\u1161\u11AB")) << "a syllable in its parts";
}

TEST(CaseFoldingTest, WhatIsComparedAsItStandsFoldsCharacterByCharacter) {
    int plainCharacters = 0;
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        const QString character = QString::fromUcs4(&code, 1);
        if ((code >= 0xD800 && code < 0xE000) || foldingNeeds(character) != FoldingNeeds::None) {
            continue;
        }
        ++plainCharacters;
        ASSERT_EQ(caseFolded(character), character.toCaseFolded()) << std::uint32_t(code);
        ASSERT_EQ(QChar::combiningClass(code), 0) << std::uint32_t(code);
        ASSERT_EQ(caseFolded("A" + character), "a" + character.toCaseFolded())
            << std::uint32_t(code) << ": joins with the letter before";
    }
    EXPECT_GT(plainCharacters, 60'000);
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
    for (char32_t code = 1; code <= 0x2FFFF; ++code) {
        if (code >= 0xD800 && code < 0xE000) {
            continue;
        }
        const QString character = QString::fromUcs4(&code, 1);
        const QString folded = caseFolded(character);
        if (caseFolded("x" + character) != "x" + folded) {
            continue; // A mark, which belongs to the letter before.
        }
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
