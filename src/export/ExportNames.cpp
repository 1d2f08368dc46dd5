#include "export/ExportNames.h"

namespace quillet {

QString formatFileNameDate(const LocaleFormats& formats, Instant date) {
    QString text = formats.longDate(date);
    text.replace(u'/', u' ');
    text.remove(u',');
    return text;
}

QString formatEmailNameDate(const LocaleFormats& formats, Instant date) {
    return formats.longDate(date);
}

QString periodName(const SettingsStore& settings, const LocaleFormats& formats,
                   QString (*formatDate)(const LocaleFormats&, Instant)) {
    const auto date = [&](const char* key) {
        const auto stored = dateForKey(settings, QString::fromLatin1(key));
        return stored ? formatDate(formats, *stored) : QStringLiteral("(null)");
    };
    return QStringLiteral("%1 - %2").arg(date("filterStartDate"), date("filterEndDate"));
}

} // namespace quillet
