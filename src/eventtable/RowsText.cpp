#include "eventtable/RowsText.h"

#include "eventtable/EventTexts.h"

#include <functional>
#include <vector>

namespace quillet {

namespace {

using Field = std::function<QString(const EventDetails&)>;

QString cleanString(QString text) {
    return text.replace(QStringLiteral("%"), QStringLiteral("%%"));
}

Field cleaned(QString EventDetails::* text) {
    return [text](const EventDetails& details) { return cleanString(details.*text); };
}

Field fieldOf(const QString& identifier, EventTexts& texts) {
    if (identifier == u"calendar") {
        return [](const EventDetails& details) { return cleanString(details.calendar->title); };
    }
    if (identifier == u"title") {
        return cleaned(&EventDetails::title);
    }
    if (identifier == u"notes") {
        return cleaned(&EventDetails::notes);
    }
    if (identifier == u"location") {
        return cleaned(&EventDetails::location);
    }
    if (identifier == u"url") {
        return [](const EventDetails& details) { return details.url; };
    }
    if (identifier == u"duration") {
        return [&texts](const EventDetails&) { return cleanString(texts.duration()); };
    }
    if (const EventTexts::Field derived = EventTexts::fieldNamed(identifier)) {
        return [&texts, derived](const EventDetails&) { return (texts.*derived)(); };
    }
    return [](const EventDetails&) { return QStringLiteral(""); };
}

struct VisibleField {
    bool hasTabBefore;
    Field text;
};

std::vector<VisibleField> visibleFields(ColumnTable& table, EventTexts& texts) {
    std::vector<VisibleField> fields;
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        if (!column.isHidden()) {
            fields.push_back({position > 0, fieldOf(column.identifier(), texts)});
        }
    }
    return fields;
}

} // namespace

QString rowsText(const EventList& events, ColumnTable& table, const EventFields& fields) {
    EventTexts texts(fields.billing(), fields.formats(), fields.gregorian());
    const std::vector<VisibleField> visible = visibleFields(table, texts);
    QString text;
    for (const Event& event : events) {
        texts.setEvent(event);
        for (const VisibleField& field : visible) {
            if (field.hasTabBefore) {
                text += u'\t';
            }
            const QString value = field.text(*event.details);
            text += value.isNull() ? QStringLiteral("(null)") : value;
        }
        text += u'\n';
    }
    return text;
}

} // namespace quillet
