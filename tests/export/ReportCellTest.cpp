#include "export/ReportCell.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>

namespace quillet {

namespace {

using enum CellWrapping;

/// The first `count` lines of a wrapped cell.
QStringList wrapped(const QString& text, qsizetype length, std::size_t count) {
    QStringList lines;
    for (std::size_t line = 0; line < count; ++line) {
        lines << reportCell(text, length, line, On);
    }
    return lines;
}

/// The lines of a wrapped text up to the one with which it ends, not padded.
std::vector<QStringView> dealtOut(const QString& text, qsizetype length) {
    ReportCellLines lines(text, length, On);
    std::vector<QStringView> result;
    ReportCellLines::Line line;
    do {
        line = lines.next();
        result.push_back(line.text);
    } while (line.hasMore);
    return result;
}

/// The rule of wrapped cells written down plainly: every line begins to count from the start.
QString plainlyWrapped(const QString& text, qsizetype length, std::size_t line) {
    const auto next = [&](qsizetype start) {
        for (qsizetype end = start + length; end > start; --end) {
            if (text.at(end - 1) == u' ') {
                return end;
            }
        }
        return start + length - 1;
    };
    qsizetype start = 0;
    for (std::size_t skipped = 0; skipped < line; ++skipped) {
        if (start + length > text.size()) {
            return QString(length + 1, u' ');
        }
        start = next(start);
    }
    QString shown = text.sliced(start);
    if (shown.size() > length) {
        shown = text.sliced(start, next(start) - start);
    }
    return shown.replace(u'\n', u' ').leftJustified(length + 1);
}

QString anyText(const std::vector<QString>& pieces) {
    const auto chosen = *rc::gen::container<std::vector<QString>>(rc::gen::elementOf(pieces));
    QString text;
    for (const QString& piece : chosen) {
        text += piece;
    }
    return text;
}

const std::vector<QString> plainPieces{"a", "bc", " ", "word", "\n", "%"};
const std::vector<QString> widePieces{"a", " ", "é", "\U0001F600", "\U0001F469\u200D\U0001F4BB"};

} // namespace

TEST(ReportColumnLength, IsTheWidthInCharactersOfSevenPointTwoPoints) {
    EXPECT_EQ(reportColumnLength(20), 2);
    EXPECT_EQ(reportColumnLength(14), 2) << "the least";
    EXPECT_EQ(reportColumnLength(0), 2);
    EXPECT_EQ(reportColumnLength(-50), 2);
    EXPECT_EQ(reportColumnLength(21.5), 2);
    EXPECT_EQ(reportColumnLength(100), 13);
}

TEST(ReportColumnLength, OfWholeCharactersHoldsThemAll) {
    EXPECT_EQ(reportColumnLength(21.6), 3);
    EXPECT_EQ(reportColumnLength(36), 5);
    EXPECT_EQ(reportColumnLength(108), 15);
}

TEST(ReportColumnLength, DividesBySevenPointTwoInSinglePrecision) {
    EXPECT_EQ(reportColumnLength(107.9999985), 15) << "14 with 7.2 itself";
    EXPECT_EQ(reportColumnLength(107.9999971), 14);
}

TEST(ReportCell, ATextThatFitsIsPaddedAndFollowedByABlank) {
    for (const CellWrapping wrapping : {Off, On}) {
        EXPECT_EQ(reportCell(u"Work", 6, 0, wrapping), "Work   ");
        EXPECT_EQ(reportCell(u"Work", 4, 0, wrapping), "Work ");
        EXPECT_EQ(reportCell(u"", 3, 0, wrapping), "    ");
        EXPECT_EQ(reportCell(QStringView(), 3, 0, wrapping), "    ") << "a missing text";
    }
}

TEST(ReportCell, IsAtLeastTwoCharactersLong) {
    for (const qsizetype length : {0, 1, 2}) {
        EXPECT_EQ(reportCell(u"ab", length, 0, Off), "ab ") << length;
        EXPECT_EQ(reportCell(u"abc", length, 0, On), "a  ") << length;
    }
}

TEST(ReportCell, UnwrappedALongTextEndsInAnEllipsis) {
    EXPECT_EQ(reportCell(u"Weekly planning meeting", 10, 0, Off), "Weekly ... ");
    EXPECT_EQ(reportCell(u"Meeting", 5, 0, Off), "Me... ");
}

TEST(ReportCell, UnwrappedInLessThanFiveCharactersALongTextIsCutWithoutOne) {
    EXPECT_EQ(reportCell(u"Meeting", 4, 0, Off), "Meet ");
    EXPECT_EQ(reportCell(u"Meeting", 2, 0, Off), "Me ");
}

TEST(ReportCell, UnwrappedEveryLineIsTheFirst) {
    EXPECT_EQ(reportCell(u"Weekly planning meeting", 10, 7, Off), "Weekly ... ");
}

TEST(ReportCell, UnwrappedLineFeedsBecomeBlanks) {
    EXPECT_EQ(reportCell(u"a\nb\n", 6, 0, Off), "a b    ");
    EXPECT_EQ(reportCell(u"a\nbcdefgh", 6, 0, Off), "a b... ");
    EXPECT_EQ(reportCell(u"a\r\nb", 6, 0, Off), "a\r b   ") << "carriage returns stay";
}

TEST(ReportCell, WrappedLinesEndBehindBlanks) {
    EXPECT_EQ(wrapped("Weekly planning meeting", 10, 4),
              (QStringList{"Weekly     ", "planning   ", "meeting    ", "           "}));
}

TEST(ReportCell, WrappedWithoutABlankLinesAreOneShort) {
    EXPECT_EQ(wrapped("Abcdefghij", 5, 4), (QStringList{"Abcd  ", "efgh  ", "ij    ", "      "}));
}

TEST(ReportCell, AWordThatEndsWithTheLineGoesToTheNextUnlessItsBlankFits) {
    // "abc defgh" is nine characters long, but the blank behind it is the tenth.
    EXPECT_EQ(wrapped("abc defgh ij", 9, 2), (QStringList{"abc       ", "defgh ij  "}));
    EXPECT_EQ(wrapped("abc defgh ij", 10, 2), (QStringList{"abc defgh  ", "ij         "}));
}

TEST(ReportCell, ARestOfExactlyTheLengthIsShownWholeAndItsTailAgain) {
    EXPECT_EQ(wrapped("1.5", 3, 3), (QStringList{"1.5 ", "5   ", "    "}));
    EXPECT_EQ(wrapped("Abcdefghi", 5, 4), (QStringList{"Abcd  ", "efghi ", "i     ", "      "}));
    EXPECT_EQ(wrapped("a bcd", 5, 3), (QStringList{"a bcd ", "bcd   ", "      "}));
}

TEST(ReportCell, ARestOfExactlyTheLengthThatEndsInABlankIsNotRepeated) {
    EXPECT_EQ(wrapped("abcd ", 5, 2), (QStringList{"abcd  ", "      "}));
}

TEST(ReportCell, ATailThatComesAgainIsNoReasonForAFurtherLine) {
    const QString text = "1.5";
    ReportCellLines lines(text, 3, On);
    EXPECT_FALSE(lines.next().hasMore);
    EXPECT_FALSE(lines.next().hasMore);
}

TEST(ReportCell, WrappedLineFeedsBecomeBlanksButEndNoLine) {
    EXPECT_EQ(wrapped("one\ntwo\nthree", 6, 4),
              (QStringList{"one t  ", "wo th  ", "ree    ", "       "}));
    EXPECT_EQ(wrapped("ab\ncd ef", 6, 2), (QStringList{"ab cd  ", "ef     "}));
}

TEST(ReportCell, OtherSpacesThanTheBlankEndNoLine) {
    EXPECT_EQ(wrapped("ab\tcdefg", 5, 2), (QStringList{"ab\tc  ", "defg  "}));
    EXPECT_EQ(wrapped(u"ab\u00A0cdefg"_qs, 5, 2), (QStringList{u"ab\u00A0c  "_qs, "defg  "}));
}

TEST(ReportCell, LeadingBlanksAreALineOfTheirOwnBeforeALongWord) {
    EXPECT_EQ(wrapped(" abcdefg", 5, 3), (QStringList{"      ", "abcd  ", "efg   "}));
}

TEST(ReportCell, LengthsCountUtf16Units) {
    EXPECT_EQ(reportCell(u"\U0001F600\U0001F600", 4, 0, Off), u"\U0001F600\U0001F600 "_qs);
    EXPECT_EQ(reportCell(u"\U0001F600", 6, 0, Off), u"\U0001F600     "_qs);
    EXPECT_EQ(reportCell(u"e\u0301", 4, 0, Off), u"e\u0301   "_qs) << "a combining accent";
}

TEST(ReportCell, AnUnwrappedCutMovesBeforeASurrogatePair) {
    EXPECT_EQ(reportCell(u"abc\U0001F600", 4, 0, Off), "abc  ");
    EXPECT_EQ(reportCell(u"ab\U0001F600cdef", 6, 0, Off), "ab...  ");
    EXPECT_EQ(reportCell(u"\U0001F600\U0001F600", 3, 0, Off), u"\U0001F600  "_qs);
}

TEST(ReportCell, AWrappedCutMovesBeforeASurrogatePair) {
    EXPECT_EQ(wrapped(u"abc\U0001F600defg"_qs, 5, 3),
              (QStringList{"abc   ", u"\U0001F600de  "_qs, "fg    "}));
}

TEST(ReportCell, AWrappedCutMovesBehindASurrogatePairThatFillsTheLine) {
    EXPECT_EQ(wrapped(u"\U0001F600\U0001F601\U0001F602"_qs, 2, 4),
              (QStringList{u"\U0001F600 "_qs, u"\U0001F601 "_qs, u"\U0001F602 "_qs, "   "}));
}

TEST(PaddedCell, IsPaddedOrCutWithoutAnEllipsis) {
    EXPECT_EQ(paddedCell(u"Date", 6), "Date   ");
    EXPECT_EQ(paddedCell(u"Date", 4), "Date ");
    EXPECT_EQ(paddedCell(u"Calendar", 6), "Calend ");
    EXPECT_EQ(paddedCell(QStringView(), 2), "   ");
    EXPECT_EQ(paddedCell(u"a\U0001F600", 2), "a  ") << "never half a pair";
}

RC_GTEST_PROP(ReportCellProperties, EveryCellIsOneLongerThanItsColumn, ()) {
    const QString text = anyText(*rc::gen::element(plainPieces, widePieces));
    const auto length = *rc::gen::inRange<qsizetype>(0, 30);
    const auto line = *rc::gen::inRange<std::size_t>(0, 20);
    const QString cell = reportCell(text, length, line, *rc::gen::element(Off, On));
    RC_ASSERT(cell.size() == std::max<qsizetype>(length, 2) + 1);
    RC_ASSERT(cell.endsWith(u' '));
    RC_ASSERT(!cell.contains(u'\n'));
}

RC_GTEST_PROP(ReportCellProperties, DealingLinesOutAgreesWithCountingFromTheStart, ()) {
    const QString text = anyText(plainPieces);
    const auto length = *rc::gen::inRange<qsizetype>(2, 12);
    for (std::size_t line = 0; line < static_cast<std::size_t>(text.size()) + 2; ++line) {
        RC_ASSERT(reportCell(text, length, line, On) == plainlyWrapped(text, length, line));
    }
}

RC_GTEST_PROP(ReportCellProperties, WrappedLinesJoinedAreTheText, ()) {
    const QString text = anyText(*rc::gen::element(plainPieces, widePieces));
    const auto length = *rc::gen::inRange<qsizetype>(2, 12);
    QString joined;
    for (const QStringView line : dealtOut(text, length)) {
        RC_ASSERT(line.size() <= length);
        joined += line;
    }
    RC_ASSERT(joined == text);
}

RC_GTEST_PROP(ReportCellProperties, WrappingComesToAnEnd, ()) {
    const QString text = anyText(*rc::gen::element(plainPieces, widePieces));
    const auto length = *rc::gen::inRange<qsizetype>(2, 12);
    ReportCellLines lines(text, length, On);
    for (qsizetype line = 0; line <= text.size(); ++line) {
        (void)lines.next();
    }
    RC_ASSERT(lines.next().text.isEmpty());
}

RC_GTEST_PROP(ReportCellProperties, NoCutPartsASurrogatePair, ()) {
    const QString text = anyText(widePieces);
    const auto length = *rc::gen::inRange<qsizetype>(2, 12);
    for (std::size_t line = 0; line < static_cast<std::size_t>(text.size()) + 2; ++line) {
        RC_ASSERT(reportCell(text, length, line, On).isValidUtf16());
    }
    RC_ASSERT(reportCell(text, length, 0, Off).isValidUtf16());
    RC_ASSERT(paddedCell(text, length).isValidUtf16());
}

} // namespace quillet
