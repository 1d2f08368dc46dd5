#include "backends/translations/Translations.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>

namespace quillet {

namespace {

const QString english = QStringLiteral("en");

/// Without encoding and modifier: "de_AT" for "de_AT.UTF-8@euro".
QString plainName(const QString& posixName) {
    return posixName.section(u'@', 0, 0).section(u'.', 0, 0).replace(u'-', u'_').trimmed();
}

bool isNeutral(const QString& name) {
    return name.isEmpty() || name == u"C" || name == u"POSIX";
}

/// The name itself and its shorter forms: "zh_Hant_TW", "zh_Hant", "zh".
QStringList withFallbacks(QString name) {
    QStringList names{name};
    for (qsizetype end = name.lastIndexOf(u'_'); end > 0; end = name.lastIndexOf(u'_')) {
        name.truncate(end);
        names << name;
    }
    return names;
}

QString tableFile(const QString& name) {
    return QStringLiteral(":/translations/quillet_%1.qm").arg(name);
}

} // namespace

QStringList messageLanguages(const EnvironmentReader& environment) {
    QString locale;
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        locale = environment(variable);
        if (!locale.isEmpty()) {
            break;
        }
    }
    locale = plainName(locale);
    if (isNeutral(locale)) {
        return {};
    }
    QStringList languages;
    for (const QString& name : environment("LANGUAGE").split(u':', Qt::SkipEmptyParts)) {
        languages << (isNeutral(plainName(name)) ? english : plainName(name));
    }
    return languages.isEmpty() ? QStringList{locale} : languages;
}

Translations::Translations(const QStringList& languages) {
    for (const QString& language : languages) {
        for (const QString& name : withFallbacks(language)) {
            if (name == english) {
                return;
            }
            if (QFile::exists(tableFile(name))) {
                install(name);
                return;
            }
        }
    }
}

Translations::~Translations() = default;

void Translations::install(const QString& name) {
    language_ = name;
    if (texts_.load(tableFile(name))) {
        QCoreApplication::installTranslator(&texts_);
    }
    // A system without them shows the stock buttons in English.
    if (toolkitTexts_.load(QStringLiteral("qtbase_") + name,
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&toolkitTexts_);
    }
}

} // namespace quillet
