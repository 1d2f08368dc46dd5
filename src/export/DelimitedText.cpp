#include "export/DelimitedText.h"

namespace quillet {

namespace {

QString presentText(const QString& value) {
    return value.isNull() ? QStringLiteral("(null)") : value;
}

} // namespace

DelimitedText::DelimitedText(std::vector<ExportColumn> columns, const DelimitedSettings& settings,
                             const EventFields& fields, QChar separator)
    : columns_(std::move(columns))
    , settings_(settings)
    , billing_(fields.billing())
    , texts_(billing_, fields.formats(), fields.gregorian())
    , separator_(separator) {
    for (const ExportColumn& column : columns_) {
        if (const EventColumn* known = findEventColumn(column.identifier)) {
            fields_.push_back({*known, column.isQuoted});
        }
    }
}

void DelimitedText::appendHeader() {
    if (settings_.includesIdentifier) {
        appendQuoted(QStringLiteral("uid"));
    }
    for (const ExportColumn& column : columns_) {
        appendQuoted(column.title);
    }
    endRecord();
}

void DelimitedText::appendEvent(const Event& event) {
    texts_.setEvent(event);
    if (settings_.includesIdentifier) {
        appendQuoted(presentText(event.details->eventIdentifier));
    }
    for (const Field& field : fields_) {
        appendField(field, event);
    }
    endRecord();
}

void DelimitedText::appendField(const Field& field, const Event& event) {
    if (const auto* derived = std::get_if<EventTexts::Field>(&field.column.text)) {
        appendValue(field, presentText((texts_.**derived)()));
        return;
    }
    const QString& own = std::get<StoredText>(field.column.text)(event);
    if (own.isNull()) {
        text_ += separator_;
    } else {
        appendValue(field, own);
    }
}

void DelimitedText::appendValue(const Field& field, const QString& value) {
    if (field.column.kind == ColumnKind::Text) {
        appendFree(value, field.isQuoted);
    } else {
        appendQuoted(value);
    }
}

void DelimitedText::appendQuoted(const QString& value) {
    text_ += u'"';
    text_ += value;
    text_ += u'"';
    text_ += separator_;
}

void DelimitedText::appendFree(const QString& value, bool isQuoted) {
    QString written = value;
    if (isQuoted) {
        written.replace(QStringLiteral("\""), QStringLiteral("\"\""));
    }
    if (settings_.removesReturns) {
        written.replace(u'\n', u' ');
    }
    if (isQuoted) {
        appendQuoted(written);
    } else {
        text_ += written;
        text_ += separator_;
    }
}

void DelimitedText::endRecord() {
    // The last character is taken for the final separator whatever it is: a record without a field
    // takes away the line feed of the one before.
    text_.chop(1);
    text_ += u'\n';
}

} // namespace quillet
