#pragma once

#include "eventdata/EventFields.h"
#include "export/EventTexts.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"

#include <QString>

#include <functional>
#include <vector>

namespace quillet {

/// One visible column, in display order.
struct ExportColumn {
    QString identifier;
    QString title;
};

/// The switches of the CSV file.
struct CsvSettings {
    bool hasHeader = true;
    bool includesIdentifier = false;
    bool quotesTitle = true;
    bool quotesNotes = true;
    bool quotesLocation = true;
    bool quotesCalendar = true;
    bool removesReturns = false;
};

/// ";" where the decimal separator is ",", else ",".
[[nodiscard]] QChar csvSeparator(const QString& decimalSeparator);

/// Writes events as CSV: an optional header record, then one record an event, each ended by a line
/// feed. Only the four free texts (title, notes, location, calendar) are ever escaped or lose their
/// line feeds; every other value is quoted as it is, a missing one is empty. Settings and locale
/// must stay as they are while it is used.
class CsvText {
public:
    CsvText(std::vector<ExportColumn> columns, const CsvSettings& settings,
            const EventFields& fields);
    Q_DISABLE_COPY_MOVE(CsvText)

    void appendHeader();
    void appendEvent(const Event& event);
    [[nodiscard]] const QString& text() const { return text_; }

private:
    using Append = std::function<void(const EventDetails&)>;

    [[nodiscard]] Append appenderFor(const QString& identifier);
    [[nodiscard]] Append freeText(bool isQuoted, QString EventDetails::* text);
    void appendQuoted(const QString& value);
    void appendFree(const QString& value, bool isQuoted);
    void endRecord();

    std::vector<ExportColumn> columns_;
    CsvSettings settings_;
    EventTexts texts_;
    QChar separator_;
    std::vector<Append> appenders_;
    QString text_;
};

} // namespace quillet
