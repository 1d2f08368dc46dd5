#pragma once

#include "eventdata/EventFields.h"
#include "eventtable/EventColumns.h"
#include "platform/Event.h"
#include "platform/LocaleFormats.h"

#include <QString>

#include <vector>

namespace quillet {

/// One visible column, in display order.
struct ExportColumn {
    QString identifier;
    QString title;
    /// Whether its field is quoted; columns without EventColumn::quotes always are.
    bool isQuoted = true;
};

/// The switches of the CSV and TSV files.
struct DelimitedSettings {
    bool hasHeader = true;
    bool includesIdentifier = false;
    bool removesReturns = false;
};

/// Writes events as separated values: an optional header record, then one record an event, each
/// ended by a line feed. Only free texts are ever escaped or lose their line feeds; every other
/// value is quoted as it is. A separator inside a value stays as it is. A text of the event's own
/// that is missing is an empty field, any other missing value is "(null)".
class DelimitedText {
public:
    /// Billing settings are those of now. The locale must outlive this.
    DelimitedText(std::vector<ExportColumn> columns, const DelimitedSettings& settings,
                  const EventFields& fields, QChar separator);
    Q_DISABLE_COPY_MOVE(DelimitedText)

    void appendHeader();
    void appendEvent(const Event& event);
    [[nodiscard]] const QString& text() const { return text_; }

private:
    struct Field {
        const EventColumn& column;
        bool isQuoted;
    };

    void appendField(const Field& field, const Event& event);
    void appendValue(const Field& field, const QString& value);
    void appendQuoted(const QString& value);
    void appendFree(const QString& value, bool isQuoted);
    void endRecord();

    std::vector<ExportColumn> columns_;
    DelimitedSettings settings_;
    /// A copy: they may be changed while a long export shows its progress.
    BillingSettings billing_;
    EventTexts texts_;
    QChar separator_;
    std::vector<Field> fields_;
    QString text_;
};

} // namespace quillet
