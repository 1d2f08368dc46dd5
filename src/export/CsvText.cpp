#include "export/CsvText.h"

#include "eventdata/EventFigures.h"

namespace quillet {

QChar csvSeparator(const QString& decimalSeparator) {
    return decimalSeparator == u"," ? u';' : u',';
}

CsvText::CsvText(std::vector<ExportColumn> columns, const CsvSettings& settings,
                 const EventFields& fields)
    : columns_(std::move(columns))
    , settings_(settings)
    , fields_(fields)
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
    if (settings_.includesIdentifier) {
        appendQuoted(event.details->eventIdentifier);
    }
    for (const Append& append : appenders_) {
        append(event);
    }
    endRecord();
}

CsvText::Append CsvText::quoted(std::function<QString(const Event&)> read) {
    return [this, read = std::move(read)](const Event& event) { appendQuoted(read(event)); };
}

CsvText::Append CsvText::freeText(bool isQuoted, std::function<QString(const Event&)> read) {
    return [this, isQuoted, read = std::move(read)](const Event& event) {
        const QString value = read(event);
        if (value.isNull()) {
            text_ += separator_;
        } else {
            appendFree(value, isQuoted);
        }
    };
}

CsvText::Append CsvText::appenderFor(const QString& identifier) {
    const LocaleFormats& formats = fields_.formats();
    const EventFields& fields = fields_;
    if (identifier == u"title") {
        return freeText(settings_.quotesTitle,
                        [](const Event& event) { return event.details->title; });
    }
    if (identifier == u"notes") {
        return freeText(settings_.quotesNotes,
                        [](const Event& event) { return event.details->notes; });
    }
    if (identifier == u"location") {
        return freeText(settings_.quotesLocation,
                        [](const Event& event) { return event.details->location; });
    }
    if (identifier == u"calendar") {
        return [this](const Event& event) {
            appendFree(event.details->calendar->title, settings_.quotesCalendar);
        };
    }
    if (identifier == u"url") {
        return [this](const Event& event) {
            if (event.details->url.isNull()) {
                text_ += separator_;
            } else {
                appendQuoted(event.details->url);
            }
        };
    }
    if (identifier == u"date") {
        return quoted(
            [&formats](const Event& event) { return formats.shortDate(event.startDate); });
    }
    if (identifier == u"endDate") {
        return quoted(
            [&](const Event& event) { return formats.shortDate(fields.adjustedEndDate(event)); });
    }
    if (identifier == u"hours") {
        return quoted([&](const Event& event) {
            return formats.number(figures(event, fields.billing()).hours);
        });
    }
    if (identifier == u"minutes") {
        return quoted([&](const Event& event) {
            return formats.number(Decimal::fromInteger(billableMinutes(event, fields.billing())));
        });
    }
    if (identifier == u"cost") {
        return quoted([&](const Event& event) {
            const auto cost = figures(event, fields.billing()).cost;
            return cost ? formats.currency(*cost) : QString();
        });
    }
    if (identifier == u"rate") {
        return quoted([&](const Event& event) {
            return formats.currency(billableRate(event, fields.billing()));
        });
    }
    static const QHash<QString, QString> textFields{{"duration", "duration"},
                                                    {"start", "startTime"},
                                                    {"end", "endTime"},
                                                    {"weekday", "startWeekday"},
                                                    {"endWeekday", "endWeekday"}};
    if (const QString key = textFields.value(identifier); !key.isEmpty()) {
        return quoted([&fields, key](const Event& event) {
            return fields.valueForKey(event, key).toString();
        });
    }
    return {};
}

void CsvText::appendQuoted(const QString& value) {
    text_ += u'"' + value + u'"' + separator_;
}

void CsvText::appendFree(QString value, bool isQuoted) {
    if (isQuoted) {
        value.replace(u'"', QStringLiteral("\"\""));
    }
    if (settings_.removesReturns) {
        value.replace(u'\n', u' ');
    }
    if (isQuoted) {
        appendQuoted(value);
    } else {
        text_ += value + separator_;
    }
}

void CsvText::endRecord() {
    // The last character is taken for the final separator whatever it is: a record without a field
    // takes away the line feed of the one before.
    text_.chop(1);
    text_ += u'\n';
}

} // namespace quillet
