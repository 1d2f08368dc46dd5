#include "export/CsvText.h"

#include <QHash>

namespace quillet {

namespace {

using DerivedText = QString (EventTexts::*)();

/// Null for a column that shows none of these.
DerivedText derivedText(const QString& identifier) {
    static const QHash<QString, DerivedText> texts{{"date", &EventTexts::startDate},
                                                   {"endDate", &EventTexts::adjustedEndDate},
                                                   {"start", &EventTexts::startTime},
                                                   {"end", &EventTexts::endTime},
                                                   {"weekday", &EventTexts::startWeekday},
                                                   {"endWeekday", &EventTexts::endWeekday},
                                                   {"hours", &EventTexts::hours},
                                                   {"minutes", &EventTexts::minutes},
                                                   {"duration", &EventTexts::duration},
                                                   {"cost", &EventTexts::cost},
                                                   {"rate", &EventTexts::rate}};
    return texts.value(identifier, nullptr);
}

} // namespace

QChar csvSeparator(const QString& decimalSeparator) {
    return decimalSeparator == u"," ? u';' : u',';
}

CsvText::CsvText(std::vector<ExportColumn> columns, const CsvSettings& settings,
                 const EventFields& fields)
    : columns_(std::move(columns))
    , settings_(settings)
    , texts_(fields.billing(), fields.formats(), fields.gregorian())
    , separator_(csvSeparator(fields.formats().decimalSeparator())) {
    for (const ExportColumn& column : columns_) {
        if (auto appender = appenderFor(column.identifier)) {
            appenders_.push_back(std::move(appender));
        }
    }
}

void CsvText::appendHeader() {
    if (settings_.includesIdentifier) {
        appendQuoted(QStringLiteral("uid"));
    }
    for (const ExportColumn& column : columns_) {
        appendQuoted(column.title);
    }
    endRecord();
}

void CsvText::appendEvent(const Event& event) {
    texts_.setEvent(event);
    if (settings_.includesIdentifier) {
        appendQuoted(event.details->eventIdentifier);
    }
    for (const Append& append : appenders_) {
        append(*event.details);
    }
    endRecord();
}

CsvText::Append CsvText::freeText(bool isQuoted, QString EventDetails::* text) {
    return [this, isQuoted, text](const EventDetails& details) {
        const QString& value = details.*text;
        if (value.isNull()) {
            text_ += separator_;
        } else {
            appendFree(value, isQuoted);
        }
    };
}

CsvText::Append CsvText::appenderFor(const QString& identifier) {
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
            appendFree(details.calendar->title, settings_.quotesCalendar);
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
    if (const DerivedText derived = derivedText(identifier)) {
        return [this, derived](const EventDetails&) { appendQuoted((texts_.*derived)()); };
    }
    return {};
}

void CsvText::appendQuoted(const QString& value) {
    text_ += u'"';
    text_ += value;
    text_ += u'"';
    text_ += separator_;
}

void CsvText::appendFree(const QString& value, bool isQuoted) {
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

void CsvText::endRecord() {
    // The last character is taken for the final separator whatever it is: a record without a field
    // takes away the line feed of the one before.
    text_.chop(1);
    text_ += u'\n';
}

} // namespace quillet
