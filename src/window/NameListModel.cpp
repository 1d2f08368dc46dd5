#include "window/NameListModel.h"

#include <algorithm>
#include <utility>

namespace quillet {

NameListModel::NameListModel(NameList list, QObject* parent)
    : QAbstractListModel(parent)
    , list_(std::move(list))
    , names_(currentNames()) {
    connect(&list_.notices, &ListControllerNotices::arrangedObjectsChanged, this,
            &NameListModel::follow);
}

NameListModel::~NameListModel() = default;

int NameListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

QVariant NameListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const QString& name = names_.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return name.simplified();
    case Qt::EditRole:
        return name;
    default:
        return {};
    }
}

bool NameListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    const QString name = value.toString();
    if (name.trimmed().isEmpty() || name == names_.at(index.row())) {
        return false;
    }
    list_.rename(static_cast<std::size_t>(index.row()), name);
    return true;
}

Qt::ItemFlags NameListModel::flags(const QModelIndex& index) const {
    return index.isValid() ? QAbstractListModel::flags(index) | Qt::ItemIsEditable
                           : QAbstractListModel::flags(index);
}

void NameListModel::follow() {
    const QStringList next = currentNames();
    const int shorter = static_cast<int>(std::min(names_.size(), next.size()));
    int front = 0;
    while (front < shorter && names_.at(front) == next.at(front)) {
        ++front;
    }
    int back = 0;
    while (back < shorter - front &&
           names_.at(names_.size() - 1 - back) == next.at(next.size() - 1 - back)) {
        ++back;
    }
    const int oldEnd = static_cast<int>(names_.size()) - back;
    const int newEnd = static_cast<int>(next.size()) - back;
    const int renamedEnd = std::min(oldEnd, newEnd);
    if (front < renamedEnd) {
        for (int row = front; row < renamedEnd; ++row) {
            names_[row] = next.at(row);
        }
        Q_EMIT dataChanged(index(front), index(renamedEnd - 1));
    }
    if (renamedEnd < oldEnd) {
        beginRemoveRows({}, renamedEnd, oldEnd - 1);
        names_.remove(renamedEnd, oldEnd - renamedEnd);
        endRemoveRows();
    } else if (renamedEnd < newEnd) {
        beginInsertRows({}, renamedEnd, newEnd - 1);
        names_ = next;
        endInsertRows();
    }
}

QStringList NameListModel::currentNames() const {
    QStringList names;
    for (std::size_t row = 0; row < list_.count(); ++row) {
        names << list_.name(row);
    }
    return names;
}

} // namespace quillet
