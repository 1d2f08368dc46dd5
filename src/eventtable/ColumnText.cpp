#include "eventtable/ColumnText.h"

#include <QHash>

namespace quillet {

namespace {

const QString calendarIdentifier = QStringLiteral("calendar");
const QString addressIdentifier = QStringLiteral("url");

using Detail = QString EventDetails::*;

Detail detailNamed(const QString& identifier) {
    static const QHash<QString, Detail> details{{"title", &EventDetails::title},
                                                {"notes", &EventDetails::notes},
                                                {"location", &EventDetails::location},
                                                {addressIdentifier, &EventDetails::url}};
    return details.value(identifier, nullptr);
}

} // namespace

bool ColumnText::shows(const QString& identifier) {
    return identifier == calendarIdentifier || detailNamed(identifier) != nullptr ||
           EventTexts::fieldNamed(identifier) != nullptr;
}

ColumnText::ColumnText(const QString& identifier)
    : field_(EventTexts::fieldNamed(identifier))
    , detail_(detailNamed(identifier))
    , isCleaned_(identifier != addressIdentifier) {}

QStringView ColumnText::of(const EventDetails& details, EventTexts& texts) {
    if (field_ != nullptr) {
        made_ = (texts.*field_)();
        return made_;
    }
    const QString& text = detail_ != nullptr ? details.*detail_ : details.calendar->title;
    return isCleaned_ ? cleaned(text) : QStringView(text);
}

QStringView ColumnText::cleaned(const QString& text) {
    if (!text.contains(u'%')) {
        return text;
    }
    made_ = text;
    made_.replace(QStringLiteral("%"), QStringLiteral("%%"));
    return made_;
}

} // namespace quillet
