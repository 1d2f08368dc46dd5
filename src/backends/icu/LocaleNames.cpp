#include "backends/icu/LocaleNames.h"

#include <unicode/locid.h>
#include <unicode/uloc.h>

#include <QByteArray>

#include <string>

namespace quillet {

namespace {

/// Whether ICU has data for the language and, where a country is given, knows that too.
bool isKnown(const icu::Locale& locale) {
    const std::string language = locale.getLanguage();
    int32_t count = 0;
    const icu::Locale* available = icu::Locale::getAvailableLocales(count);
    for (int32_t index = 0; index < count; ++index) {
        if (language == available[index].getLanguage()) {
            return true;
        }
    }
    return false;
}

QString icuName(QString posixName) {
    const qsizetype modifier = posixName.indexOf(u'@');
    const QString variant = modifier < 0 ? QString() : posixName.sliced(modifier + 1);
    posixName = posixName.section(u'@', 0, 0).section(u'.', 0, 0);
    // "@calendar=japanese" is a keyword that ICU understands; "@euro" is history.
    if (variant.contains(u'=')) {
        posixName += u'@' + variant;
    }
    const bool isNeutral = posixName.isEmpty() || posixName == u"C" || posixName == u"POSIX";
    if (isNeutral || !isKnown(icu::Locale(posixName.toLatin1().constData()))) {
        return QStringLiteral("en_US");
    }
    return posixName;
}

} // namespace

LocaleNames localeNames(const EnvironmentReader& environment) {
    const auto category = [&](const char* name) {
        for (const char* variable : {"LC_ALL", name, "LANG"}) {
            if (const QString value = environment(variable); !value.isEmpty()) {
                return icuName(value);
            }
        }
        return QStringLiteral("en_US");
    };
    return {category("LC_TIME"), category("LC_NUMERIC"), category("LC_MONETARY"),
            category("LC_COLLATE")};
}

LocaleNames localeNamesOfProcess() {
    return localeNames(processEnvironment());
}

} // namespace quillet
