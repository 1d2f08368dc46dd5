#include "golden/GoldenWindow.h"

#include <QDir>
#include <QStringDecoder>

#include <gtest/gtest.h>

namespace quillet::golden {

namespace {

/// "month-as-it-comes" is "MonthAsItComes".
std::string testName(const GoldenCase& described) {
    QString name;
    for (const QString& word : described.name.split(u'-')) {
        name += word.first(1).toUpper() + word.sliced(1);
    }
    return name.toStdString();
}

QStringList lines(const QByteArray& bytes) {
    if (bytes.startsWith("\xff\xfe")) {
        QString text = QStringDecoder(QStringDecoder::Utf16LE)(bytes);
        return text.split(u'\n');
    }
    return QString::fromUtf8(bytes).split(u'\n');
}

/// A line, or that there is none, so that blanks and control characters can be told apart.
std::string shown(const QStringList& lines, qsizetype index) {
    if (index >= lines.size()) {
        return "(the text has ended)";
    }
    QString line = lines.at(index);
    line.replace(u'\t', QStringLiteral("\\t")).replace(u'\r', QStringLiteral("\\r"));
    line.replace(u'\u00a0', QStringLiteral("\\u00a0"));
    line.replace(u'\u202f', QStringLiteral("\\u202f"));
    return '[' + line.toStdString() + ']';
}

testing::AssertionResult isSameText(const QByteArray& actual,
                                    const std::optional<QByteArray>& expected) {
    if (!expected) {
        return testing::AssertionFailure() << "there is no expected file";
    }
    if (actual == *expected) {
        return testing::AssertionSuccess();
    }
    const QStringList actualLines = lines(actual);
    const QStringList expectedLines = lines(*expected);
    qsizetype line = 0;
    while (line < actualLines.size() && line < expectedLines.size() &&
           actualLines.at(line) == expectedLines.at(line)) {
        ++line;
    }
    return testing::AssertionFailure()
           << "line " << line + 1 << " differs\n  expected " << shown(expectedLines, line)
           << "\n  actual   " << shown(actualLines, line);
}

class GoldenTest : public testing::TestWithParam<GoldenCase> {
protected:
    [[nodiscard]] std::optional<QByteArray> expected(const char* name) const {
        return fileContent(dataPath() + QStringLiteral("/expected/") + GetParam().name + u'/' +
                           QString::fromLatin1(name));
    }

    GoldenWindow window{GetParam()};
};

/// A column's characters and the blank behind them, by the width of one character.
qsizetype cellWidth(const CaseColumn& column) {
    constexpr double pointsOfACharacter = 7.199999809265137;
    return std::max<qsizetype>(2, static_cast<qsizetype>(column.widthPoints / pointsOfACharacter)) +
           1;
}

} // namespace

TEST_P(GoldenTest, TheReportIsTheExpectedOne) {
    EXPECT_TRUE(isSameText(window.report(), expected("report.txt")));
}

TEST_P(GoldenTest, SeparatedValuesAreTheExpectedOnes) {
    EXPECT_TRUE(isSameText(window.csv(), expected("events.csv"))) << "CSV";
    EXPECT_TRUE(isSameText(window.tsv(), expected("events.tsv"))) << "TSV";
}

TEST_P(GoldenTest, CopiedRowsAndNotesAreTheExpectedOnes) {
    const auto rows = window.copiedRows();
    const auto expectedRows = expected("rows.txt");
    ASSERT_EQ(rows.has_value(), expectedRows.has_value()) << "whether anything is copied";
    if (rows) {
        EXPECT_TRUE(isSameText(*rows, expectedRows)) << "rows";
    }
    EXPECT_TRUE(isSameText(window.notes(), expected("notes.txt"))) << "notes";
}

TEST_P(GoldenTest, EveryLineOfTheTableIsAsWideAsItsCells) {
    qsizetype all = 0;
    qsizetype ofEvents = 0;
    for (const CaseColumn& column : GetParam().columns) {
        if (!column.isHidden) {
            const bool hasTexts = column.identifier != u"mystery";
            all += cellWidth(column);
            ofEvents += hasTexts ? cellWidth(column) : 0;
        }
    }
    const QStringList lines = window.tableLines();
    ASSERT_GE(lines.size(), 4);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        const bool isOfAnEvent = line >= 2 && line < lines.size() - 2;
        EXPECT_EQ(lines.at(line).size(), isOfAnEvent ? ofEvents : all)
            << "line " << line + 1 << ": " << shown(lines, line);
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, GoldenTest, testing::ValuesIn(goldenCases()),
                         [](const auto& each) { return testName(each.param); });

TEST(GoldenFilesTest, ThereIsAFolderForEveryCaseAndForNothingElse) {
    QStringList names;
    for (const GoldenCase& described : goldenCases()) {
        names.append(described.name);
    }
    names.sort();
    QStringList folders =
        QDir(dataPath() + QStringLiteral("/expected")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.sort();
    EXPECT_EQ(folders, names);
}

} // namespace quillet::golden
