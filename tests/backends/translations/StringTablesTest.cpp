#include "StringTables.h"

#include "backends/translations/Translations.h"
#include "texts/Localized.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class StringTablesTest : public testing::TestWithParam<const char*> {
protected:
    /// Runs a check on each translated text; it answers what is wrong, or nothing.
    void
    check(const std::function<QString(const QString& english, const QString& text)>& complaint) {
        for (const test::TableEntry& entry : table) {
            if (entry.isFinished && !entry.translation.isEmpty()) {
                const QString wrong = complaint(entry.source, entry.translation);
                EXPECT_TRUE(wrong.isEmpty())
                    << named(entry.source) << " has \"" << entry.translation.toStdString()
                    << "\": " << wrong.toStdString();
            }
        }
    }
    [[nodiscard]] std::string named(const QString& english) const {
        return QStringLiteral("translations/quillet_%1.ts, \"%2\"")
            .arg(language, english)
            .toStdString();
    }

    const QString language = QString::fromLatin1(GetParam());
    const QList<test::TableEntry> table = test::stringTable(language);
};

QStringList sorted(const QString& text, const QString& pattern) {
    QStringList found;
    for (const QRegularExpressionMatch& match : QRegularExpression(pattern).globalMatch(text)) {
        found.append(match.captured());
    }
    found.sort();
    return found;
}

/// The text as a menu shows it: with no mark for the key, and none of the Japanese "(&F)".
QString withoutMnemonic(QString text) {
    return text.remove(QRegularExpression(R"(\(&\w\))")).remove(u'&');
}

/// The Japanese have marks of their own width.
QString narrow(QString text) {
    return text.replace(u'。', u'.').replace(u'：', u':').replace(u'？', u'?');
}

QString lastOf(const QString& text, const QString& marks) {
    const QString shown = narrow(withoutMnemonic(text)).trimmed();
    return !shown.isEmpty() && marks.contains(shown.back()) ? shown.last(1) : QString();
}

} // namespace

TEST_P(StringTablesTest, HoldsEveryTextOfTheSources) {
    QSet<QString> translated;
    for (const test::TableEntry& entry : table) {
        if (entry.isFinished && !entry.translation.trimmed().isEmpty()) {
            translated.insert(entry.source);
        }
    }
    const QMap<QString, QString> texts = test::textsOfSources();
    ASSERT_GT(texts.size(), 250);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        EXPECT_TRUE(translated.contains(text.key()))
            << named(text.key()) << " of " << text.value().toStdString()
            << " is not translated: run scripts/update-translations and fill it in.";
    }
}

TEST_P(StringTablesTest, HoldsNoTextTwiceAndNoneThatNoSourceUses) {
    const QMap<QString, QString> texts = test::textsOfSources();
    QSet<QString> seen;
    for (const test::TableEntry& entry : table) {
        EXPECT_TRUE(texts.contains(entry.source))
            << named(entry.source) << " is not in the sources: run scripts/update-translations.";
        EXPECT_FALSE(seen.contains(entry.source)) << named(entry.source) << " is there twice.";
        seen.insert(entry.source);
    }
}

TEST_P(StringTablesTest, KeepsThePlacesThatAreFilledIn) {
    const QString places = QStringLiteral(R"(%(\d+|[@%a-z]+))");
    check([&](const QString& english, const QString& text) {
        return sorted(english, places) == sorted(text, places)
                   ? QString()
                   : QStringLiteral("not the same %1, %2 … as the English");
    });
}

TEST_P(StringTablesTest, KeepsTheKeysThatReachMenusAndFields) {
    const QRegularExpression mark(language == u"ja" ? R"(\(&[A-Z]\))" : R"(&\w)");
    check([&](const QString& english, const QString& text) {
        const qsizetype expected = english.contains(u'&') ? 1 : 0;
        return text.count(u'&') == expected && text.count(mark) == expected
                   ? QString()
                   : QStringLiteral("%1 letters marked with &, where the English has %2")
                         .arg(text.count(u'&'))
                         .arg(expected);
    });
}

TEST_P(StringTablesTest, EndsAsTheEnglishDoes) {
    check([](const QString& english, const QString& text) {
        const QString expected = lastOf(english, "….:?");
        if (lastOf(text, "….:?") != expected) {
            return QStringLiteral("ends unlike the English (%1)").arg(expected);
        }
        if (english.count(u'\n') != text.count(u'\n') ||
            english.endsWith(u'\n') != text.endsWith(u'\n') ||
            (!text.endsWith(u'\n') && text.trimmed() != text)) {
            return QStringLiteral("blanks or line breaks other than the English");
        }
        return QString();
    });
}

TEST_P(StringTablesTest, HasTheMarksOfItsLanguage) {
    struct Marks {
        QString opening;
        QString closing;
        QString wrong;
    };
    const QMap<QString, Marks> marks{
        {"de", {"„", "“", R"("|'|\.\.\.|”|«|»)"}},
        // A narrow blank stands before and within.
        {"fr", {"«\u202f", "\u202f»", R"("|'|\.\.\.|“|”|(?<!\x{202f})[:;!?])"}},
        {"es", {"«", "»", R"("|'|\.\.\.|“|”|„|^[^¿]*\?)"}},
        {"ja", {"「", "」", R"("|'|\.\.\.|“|”|[!?])"}},
    };
    const Marks& expected = marks[language];
    const QRegularExpression wrong(expected.wrong);
    ASSERT_TRUE(wrong.isValid() && !expected.wrong.isEmpty());
    check([&](const QString& /*english*/, const QString& text) {
        const QRegularExpressionMatch match = wrong.match(text);
        if (match.hasMatch()) {
            return QStringLiteral("\"%1\" is not written so").arg(match.captured());
        }
        return text.count(expected.opening) == text.count(expected.closing)
                   ? QString()
                   : QStringLiteral("quotation marks without their partners");
    });
}

TEST_P(StringTablesTest, IsWhatTheProgramSpeaks) {
    const Translations translations({language});
    for (const test::TableEntry& entry : table) {
        if (entry.isFinished) {
            EXPECT_EQ(localized(entry.source.toUtf8().constData()), entry.translation);
        }
    }
}

TEST_P(StringTablesTest, ComesWithTheToolkitsOwnTexts) {
    const QMap<QString, QString> cancel{
        {"de", "Abbrechen"}, {"fr", "Annuler"}, {"es", "Cancelar"}, {"ja", "キャンセル"}};
    const Translations translations({language});
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel.value(language));
}

INSTANTIATE_TEST_SUITE_P(Languages, StringTablesTest, testing::Values("de", "es", "fr", "ja"),
                         [](const auto& each) { return std::string(each.param); });

TEST(StringTablesFolderTest, HoldsTheTablesThatAreTested) {
    EXPECT_EQ(QDir(QStringLiteral(QUILLET_STRING_TABLES)).entryList(QDir::Files),
              (QStringList{"quillet_de.ts", "quillet_es.ts", "quillet_fr.ts", "quillet_ja.ts"}));
}

TEST(StringTablesFolderTest, TheWindowShowsNoWordsPastTheTables) {
    EXPECT_EQ(test::wordsWithoutTable().join(u'\n').toStdString(), "");
}

} // namespace quillet
