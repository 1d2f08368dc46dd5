#include "export/ExportNames.h"

#include "platform/Settings.h"

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
    const auto date = [&](const Setting<Instant>& setting) {
        const auto stored = setting.read(settings);
        return stored ? formatDate(formats, *stored) : QStringLiteral("(null)");
    };
    return QStringLiteral("%1 - %2").arg(date(settings::filterStartDate),
                                         date(settings::filterEndDate));
}

} // namespace quillet
