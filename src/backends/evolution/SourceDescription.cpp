#include "backends/evolution/SourceDescription.h"

#include "backends/evolution/Glib.h"
#include "texts/Localized.h"

#include <tuple>

namespace quillet {

namespace {

const QString prefix = QStringLiteral("desktop:");

ESourceExtension* calendarExtension(ESource* source) {
    return static_cast<ESourceExtension*>(
        e_source_get_extension(source, E_SOURCE_EXTENSION_CALENDAR));
}

QString nameOf(ESource* source) {
    return takenText(e_source_dup_display_name(source)).simplified();
}

QString uidOf(ESource* source) {
    return takenText(e_source_dup_uid(source));
}

guint orderOf(ESource* source) {
    return e_source_selectable_get_order(E_SOURCE_SELECTABLE(calendarExtension(source)));
}

} // namespace

QString calendarIdentifierFor(const QString& sourceUid) {
    return prefix + QString::fromLatin1(sourceUid.toUtf8().toPercentEncoding(" "));
}

QString sourceUidFrom(const QString& calendarIdentifier) {
    return calendarIdentifier.startsWith(prefix)
               ? QString::fromUtf8(QByteArray::fromPercentEncoding(
                     calendarIdentifier.sliced(prefix.size()).toLatin1()))
               : QString();
}

StoreCalendar calendarFrom(ESource* source) {
    const QString name = nameOf(source);
    return {
        calendarIdentifierFor(uidOf(source)),
        name.isEmpty() ? localized("Calendar without a name") : name,
        takenText(e_source_selectable_dup_color(E_SOURCE_SELECTABLE(calendarExtension(source))))};
}

bool isUserCalendar(ESource* source) {
    const QString backend =
        takenText(e_source_backend_dup_backend_name(E_SOURCE_BACKEND(calendarExtension(source))));
    return backend != QStringLiteral("contacts") && backend != QStringLiteral("weather");
}

bool isListedBefore(ESource* left, ESource* right) {
    return std::tuple(orderOf(left), nameOf(left), uidOf(left)) <
           std::tuple(orderOf(right), nameOf(right), uidOf(right));
}

} // namespace quillet
