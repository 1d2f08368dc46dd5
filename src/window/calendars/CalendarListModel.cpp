#include "window/calendars/CalendarListModel.h"

#include "window/widgets/ColorDot.h"

namespace quillet {

CalendarListModel::CalendarListModel(CalendarsArrayController& calendars, ColorOf colorOf,
                                     QObject* parent)
    : QAbstractTableModel(parent)
    , calendars_(calendars)
    , colorOf_(std::move(colorOf)) {
    connect(&calendars_, &ListControllerNotices::arrangedObjectsWillChange, this,
            [this] { beginResetModel(); });
    connect(&calendars_, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { endResetModel(); });
}

CalendarListModel::~CalendarListModel() = default;

int CalendarListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(calendars_.arrangedCount());
}

int CalendarListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

QVariant CalendarListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const CalendarRecord& record = calendars_.arranged(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return record.titleWithRate;
    case Qt::AccessibleTextRole:
        return record.title;
    case Qt::CheckStateRole:
        return record.isSelected ? Qt::Checked : Qt::Unchecked;
    case Qt::DecorationRole:
        return colorDot(colorOf_(record.calendarIdentifier));
    default:
        return {};
    }
}

bool CalendarListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    calendars_.setSelected(static_cast<std::size_t>(index.row()),
                           value.value<Qt::CheckState>() == Qt::Checked);
    return true;
}

Qt::ItemFlags CalendarListModel::flags(const QModelIndex& index) const {
    return index.isValid() ? QAbstractTableModel::flags(index) | Qt::ItemIsUserCheckable
                           : QAbstractTableModel::flags(index);
}

} // namespace quillet
