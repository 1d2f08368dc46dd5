#include "eventtable/RowsText.h"

#include "eventtable/ColumnText.h"
#include "eventtable/EventTexts.h"

#include <optional>
#include <vector>

namespace quillet {

namespace {

struct VisibleField {
    bool hasTabBefore;
    /// Nothing for a column that shows nothing.
    std::optional<ColumnText> text;
};

std::vector<VisibleField> visibleFields(const ColumnTable& table) {
    std::vector<VisibleField> fields;
    for (int position = 0; position < table.columnCount(); ++position) {
        const TableColumn& column = table.columnAt(position);
        if (!column.isHidden()) {
            const EventColumn* const known = column.known();
            fields.push_back({position > 0,
                              known != nullptr ? std::optional(ColumnText(*known)) : std::nullopt});
        }
    }
    return fields;
}

} // namespace

QString rowsText(const EventList& events, const ColumnTable& table, const EventFields& fields) {
    EventTexts texts(fields.billing(), fields.formats(), fields.gregorian());
    std::vector<VisibleField> visible = visibleFields(table);
    QString text;
    for (const Event& event : events) {
        texts.setEvent(event);
        for (VisibleField& field : visible) {
            if (field.hasTabBefore) {
                text += u'\t';
            }
            if (field.text) {
                const QStringView value = field.text->of(event, texts);
                text += value.isNull() ? QStringView(u"(null)") : value;
            }
        }
        text += u'\n';
    }
    return text;
}

} // namespace quillet
