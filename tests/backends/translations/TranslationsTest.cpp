#include "backends/translations/Translations.h"

#include "texts/Localized.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <map>

namespace quillet {

namespace {

QStringList languages(std::map<std::string, QString> environment) {
    return messageLanguages([&](const char* name) { return environment[name]; });
}

} // namespace

TEST(MessageLanguagesTest, TheMostSpecificVariableDecides) {
    EXPECT_EQ(languages({{"LANG", "de_AT.UTF-8"}}), (QStringList{"de_AT"}));
    EXPECT_EQ(languages({{"LANG", "de_AT.UTF-8"}, {"LC_MESSAGES", "fr_CA"}}),
              (QStringList{"fr_CA"}));
    EXPECT_EQ(languages({{"LC_MESSAGES", "fr_CA"}, {"LC_ALL", "ja_JP.eucJP"}}),
              (QStringList{"ja_JP"}));
    EXPECT_EQ(languages({{"LANG", "fr_FR@euro"}, {"LC_ALL", ""}}), (QStringList{"fr_FR"}));
}

TEST(MessageLanguagesTest, TheFormatsOfDatesAndMoneyDecideNothing) {
    EXPECT_EQ(languages({{"LANG", "es_ES.UTF-8"}, {"LC_TIME", "de_DE"}, {"LC_MONETARY", "ja_JP"}}),
              (QStringList{"es_ES"}));
}

TEST(MessageLanguagesTest, AListOfLanguagesComesBeforeTheLocale) {
    EXPECT_EQ(languages({{"LANG", "es_ES.UTF-8"}, {"LANGUAGE", "it:de_AT.UTF-8::fr"}}),
              (QStringList{"it", "de_AT", "fr"}));
    EXPECT_EQ(languages({{"LANG", "es_ES.UTF-8"}, {"LANGUAGE", "C"}}), (QStringList{"en"}));
}

TEST(MessageLanguagesTest, NeutralLocalesHaveNoneWhateverTheListSays) {
    for (const char* neutral : {"", "C", "POSIX", "C.UTF-8"}) {
        EXPECT_EQ(languages({{"LANG", neutral}, {"LANGUAGE", "de"}}), QStringList()) << neutral;
    }
}

TEST(TranslationsTest, TheFirstLanguageWithATableIsSpoken) {
    EXPECT_EQ(Translations({"it", "fr_CA", "de"}).language(), QStringLiteral("fr"));
    EXPECT_EQ(Translations({"de_Latn_AT"}).language(), QStringLiteral("de"));
    EXPECT_EQ(Translations({"ja"}).language(), QStringLiteral("ja"));
    EXPECT_EQ(Translations({"es_MX"}).language(), QStringLiteral("es"));
    EXPECT_EQ(Translations(QStringList{}).language(), QString());
    EXPECT_EQ(Translations({"it", "xx_YY", "../de"}).language(), QString());
}

TEST(TranslationsTest, EnglishEndsTheSearch) {
    EXPECT_EQ(Translations({"en_GB", "de"}).language(), QString());
    EXPECT_EQ(Translations({"it", "en", "de"}).language(), QString());
}

} // namespace quillet
