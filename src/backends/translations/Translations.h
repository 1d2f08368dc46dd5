#pragma once

#include "platform/Environment.h"

#include <QStringList>
#include <QTranslator>

namespace quillet {

/// The languages of texts that the user can read, best first, as "de_AT" or "de", without
/// encodings. They are those of LANGUAGE (separated by colons), else the one of LC_ALL, LC_MESSAGES
/// or LANG. Where the locale is C or POSIX, or none is set, there are none, whatever LANGUAGE says.
[[nodiscard]] QStringList messageLanguages(const EnvironmentReader& environment);

/// While it lives, localized() and the toolkit's own dialogs speak the first of the languages that
/// the program has a string table of; a table of the language alone serves all its countries and
/// scripts. English, the language of the sources, ends the search.
class Translations {
public:
    explicit Translations(const QStringList& languages);
    ~Translations();
    Q_DISABLE_COPY_MOVE(Translations)

    /// The language of the string table in use ("de"); empty for English.
    [[nodiscard]] QString language() const { return language_; }

private:
    void install(const QString& name);

    QString language_;
    QTranslator texts_;
    QTranslator toolkitTexts_;
};

} // namespace quillet
