#include "window/events/EventTableModel.h"

#include "eventdata/EventFigures.h"
#include "eventtable/EventColumns.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/ColorDot.h"

namespace quillet {

namespace {

bool isNumeric(const QString& identifier) {
    static const QStringList numeric{"hours", "minutes", "duration", "cost", "rate"};
    return numeric.contains(identifier);
}

QString columnIdentifier(int column) {
    return QString::fromLatin1(eventColumns()[static_cast<std::size_t>(column)].identifier);
}

/// One line for a cell, the first that says something; the text itself stays as it is.
QString firstLine(const QString& text) {
    return text.trimmed().section(u'\n', 0, 0).trimmed();
}

} // namespace

EventTableModel::EventTableModel(ListController<Event>& events, const EventFields& fields,
                                 SettingsStore& settings, QObject* parent)
    : QAbstractTableModel(parent)
    , events_(events)
    , fields_(fields)
    , settings_(settings) {
    for (int column = 0; column < columnCount(); ++column) {
        cellTexts_.push_back(cellText(columnIdentifier(column)));
        observeWhileAlive(
            *this, settings_,
            QString::fromLatin1(eventColumns()[static_cast<std::size_t>(column)].titleKey),
            [this, column] { Q_EMIT headerDataChanged(Qt::Horizontal, column, column); });
    }
    for (const char* key : {"isDollarsOn", "timeTypeSelection", "hourlyRate", "isSingleRate",
                            "calendars", "allDayHours", "filterStartDate", "filterEndDate"}) {
        observeWhileAlive(*this, settings_, QString::fromLatin1(key), [this] { figuresChanged(); });
    }
    connect(&events_, &ListControllerNotices::arrangedObjectsWillChange, this,
            [this] { beginResetModel(); });
    connect(&events_, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { endResetModel(); });
}

EventTableModel::~EventTableModel() = default;

int EventTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(events_.arrangedCount());
}

int EventTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(eventColumns().size());
}

QVariant EventTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Event& event = events_.arranged(static_cast<std::size_t>(index.row()));
    const QString identifier = columnIdentifier(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return firstLine(cellTexts_[static_cast<std::size_t>(index.column())](event));
    case Qt::ToolTipRole: {
        const QString text = cellTexts_[static_cast<std::size_t>(index.column())](event);
        // Plain, whatever a calendar's text looks like.
        return text.isEmpty() ? QVariant() : QVariant(text.toHtmlEscaped().replace(u'\n', "<br>"));
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(isNumeric(identifier) ? Qt::AlignRight | Qt::AlignVCenter
                                                         : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::DecorationRole:
        return identifier == u"calendar"
                   ? QVariant(colorDot(QColor(event.details->calendar->colorName)))
                   : QVariant();
    default:
        return {};
    }
}

QVariant EventTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const EventColumn& column = eventColumns()[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) {
        return stringForKey(settings_, QString::fromLatin1(column.titleKey));
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(isNumeric(QString::fromLatin1(column.identifier))
                                       ? Qt::AlignRight | Qt::AlignVCenter
                                       : Qt::AlignLeft | Qt::AlignVCenter);
    }
    return {};
}

EventTableModel::CellText EventTableModel::cellText(const QString& identifier) const {
    const EventFields& fields = fields_;
    const LocaleFormats& formats = fields.formats();
    if (identifier == u"date") {
        return [&formats](const Event& event) { return formats.shortDate(event.startDate); };
    }
    if (identifier == u"endDate") {
        return [&fields, &formats](const Event& event) {
            return formats.shortDate(fields.adjustedEndDate(event));
        };
    }
    if (identifier == u"hours") {
        return [&fields, &formats](const Event& event) {
            return formats.number(figures(event, fields.billing()).hours);
        };
    }
    if (identifier == u"minutes") {
        return [&fields, &formats](const Event& event) {
            return formats.number(Decimal::fromInteger(billableMinutes(event, fields.billing())));
        };
    }
    if (identifier == u"cost") {
        return [&fields, &formats](const Event& event) {
            const auto cost = figures(event, fields.billing()).cost;
            return cost ? formats.currency(*cost) : QString();
        };
    }
    if (identifier == u"rate") {
        return [&fields, &formats](const Event& event) {
            return formats.currency(billableRate(event, fields.billing()));
        };
    }
    static const QHash<QString, QString> keys{
        {"title", "title"},       {"notes", "notes"},          {"url", "URL"},
        {"location", "location"}, {"weekday", "startWeekday"}, {"endWeekday", "endWeekday"},
        {"start", "startTime"},   {"end", "endTime"},          {"calendar", "calendarTitle"},
        {"duration", "duration"}};
    return [&fields, key = keys.value(identifier)](const Event& event) {
        return fields.valueForKey(event, key).toString();
    };
}

void EventTableModel::figuresChanged() {
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

} // namespace quillet
