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
        if (auto appender = appenderFor(column.identifier)) {
            appenders_.push_back(std::move(appender));
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
    for (const Append& append : appenders_) {
        append(*event.details);
    }
    endRecord();
}

DelimitedText::Append DelimitedText::freeText(bool isQuoted, QString EventDetails::* text) {
    return [this, isQuoted, text](const EventDetails& details) {
        const QString& value = details.*text;
        if (value.isNull()) {
            text_ += separator_;
        } else {
            appendFree(value, isQuoted);
        }
    };
}

DelimitedText::Append DelimitedText::appenderFor(const QString& identifier) {
    if (identifier == u"title") {
        return freeText(settings_.quotesTitle, &EventDetails::title);
    }
    if (identifier == u"notes") {
        return freeText(settings_.quotesNotes, &EventDetails::notes);
    }
    if (identifier == u"location") {
        return freeText(settings_.quotesLocation, &EventDetails::location);
    }
    if (identifier == u"calendar") {
        return [this](const EventDetails& details) {
            appendFree(presentText(details.calendar->title), settings_.quotesCalendar);
        };
    }
    if (identifier == u"url") {
        return [this](const EventDetails& details) {
            if (details.url.isNull()) {
                text_ += separator_;
            } else {
                appendQuoted(details.url);
            }
        };
    }
    if (const EventTexts::Field derived = EventTexts::fieldNamed(identifier)) {
        return [this, derived](const EventDetails&) {
            appendQuoted(presentText((texts_.*derived)()));
        };
    }
    return {};
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
