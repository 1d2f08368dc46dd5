#include "export/TextReportTable.h"

#include "eventtable/ColumnText.h"

namespace quillet {

namespace {

QString titleLine(const std::vector<ReportColumn>& columns) {
    QString line;
    for (const ReportColumn& column : columns) {
        const bool isKnown = findEventColumn(column.identifier) != nullptr;
        line += paddedCell(isKnown ? column.title : QString(), column.length);
    }
    return line + u'\n';
}

QString separatorLine(const std::vector<ReportColumn>& columns) {
    qsizetype width = 0;
    for (const ReportColumn& column : columns) {
        width += column.length + 1;
    }
    return QString(width, u'-') + u'\n';
}

/// Appends the lines of one event after the other.
class EventRows {
public:
    EventRows(const TextReportContent& content, QString& text)
        : texts_(content.billing, *content.formats, *content.calendar)
        , wrapping_(content.wrapping)
        , text_(text) {
        qsizetype width = 0;
        for (const ReportColumn& column : content.columns) {
            if (const EventColumn* known = findEventColumn(column.identifier)) {
                columns_.push_back({ColumnText(*known), width, column.length});
                width += column.length + 1;
            }
        }
        cells_.reserve(columns_.size());
        blankLine_ = QString(width, u' ') + u'\n';
        text_.reserve(text_.size() +
                      blankLine_.size() * static_cast<qsizetype>(content.events.size()));
    }

    void append(const Event& event) {
        texts_.setEvent(event);
        cells_.clear();
        for (Column& column : columns_) {
            cells_.emplace_back(column.text.of(event, texts_), column.length, wrapping_);
        }
        while (appendLine()) {
        }
    }

private:
    struct Column {
        ColumnText text;
        /// Where its cell begins in a line.
        qsizetype start;
        qsizetype length;
    };

    /// Whether a further line is needed.
    bool appendLine() {
        const qsizetype start = text_.size();
        text_ += blankLine_;
        QChar* const line = text_.data() + start;
        bool hasMore = false;
        for (std::size_t index = 0; index < cells_.size(); ++index) {
            const auto cellLine = cells_[index].next();
            writeCellLine(line + columns_[index].start, cellLine);
            hasMore |= cellLine.hasMore;
        }
        return hasMore;
    }

    EventTexts texts_;
    CellWrapping wrapping_;
    QString& text_;
    std::vector<Column> columns_;
    std::vector<ReportCellLines> cells_;
    QString blankLine_;
};

QString summary(const ReportColumn& column, const TextReportContent& content,
                const EventTotals& totals) {
    const EventColumn* const known = findEventColumn(column.identifier);
    return known != nullptr && known->sum != nullptr ? known->sum(totals, *content.formats)
                                                     : QString();
}

} // namespace

std::optional<QString> reportTable(const TextReportContent& content,
                                   const ExportProgress& progress) {
    QString text = titleLine(content.columns) + separatorLine(content.columns);
    EventRows rows(content, text);
    ExportSteps steps(progress, content.events.size());
    for (std::size_t position = 0; position < content.events.size(); ++position) {
        rows.append(content.events[position]);
        if (!steps.goOn()) {
            return std::nullopt;
        }
    }
    return text;
}

QString reportSummaryRow(const TextReportContent& content, const EventTotals& totals) {
    QString text = separatorLine(content.columns);
    for (const ReportColumn& column : content.columns) {
        text += reportCell(summary(column, content, totals), column.length, 0, content.wrapping);
    }
    return text;
}

} // namespace quillet
