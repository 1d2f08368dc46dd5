#include "window/events/EventTableModel.h"

#include "eventtable/EventColumns.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/ColorDot.h"

namespace quillet {

namespace {

const EventColumn& columnOf(int section) {
    return eventColumns()[static_cast<std::size_t>(section)];
}

QVariant alignmentOf(const EventColumn& column) {
    return QVariant::fromValue(isNumeric(column.kind) ? Qt::AlignRight | Qt::AlignVCenter
                                                      : Qt::AlignLeft | Qt::AlignVCenter);
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
        observeWhileAlive(*this, settings_, columnOf(column).title, [this, column] {
            Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
        });
    }
    connect(&fields_.billingSource(), &BillingSettingsSource::changed, this,
            &EventTableModel::figuresChanged);
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
    const EventColumn& column = columnOf(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return firstLine(cellText(column, event));
    case Qt::ToolTipRole: {
        const QString text = cellText(column, event);
        // Plain, whatever a calendar's text looks like.
        return text.isEmpty() ? QVariant() : QVariant(text.toHtmlEscaped().replace(u'\n', "<br>"));
    }
    case Qt::TextAlignmentRole:
        return alignmentOf(column);
    case Qt::DecorationRole:
        return column.hasCalendarDot
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
    const EventColumn& column = columnOf(section);
    if (role == Qt::DisplayRole) {
        return column.title.read(settings_);
    }
    if (role == Qt::TextAlignmentRole) {
        return alignmentOf(column);
    }
    return {};
}

QString EventTableModel::cellText(const EventColumn& column, const Event& event) const {
    if (const auto* stored = std::get_if<StoredText>(&column.text)) {
        return (*stored)(event);
    }
    EventTexts texts(fields_.billing(), fields_.formats(), fields_.gregorian(), TextReuse::None);
    texts.setEvent(event);
    return (texts.*std::get<EventTexts::Field>(column.text))();
}

void EventTableModel::figuresChanged() {
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

} // namespace quillet
