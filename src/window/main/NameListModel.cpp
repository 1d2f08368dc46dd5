#include "window/main/NameListModel.h"

#include "texts/Localized.h"
#include "window/widgets/LetterWidth.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace quillet {

QString shownName(const QString& name) {
    const QString line = name.simplified();
    return line.isEmpty() ? localized("(no name)") : line;
}

QString menuText(const QString& name, const QFontMetrics& metrics) {
    constexpr int widestInCharacters = 48;
    return metrics
        .elidedText(shownName(name), Qt::ElideMiddle, letterWidth(metrics) * widestInCharacters)
        .replace(u'&', QStringLiteral("&&"));
}

NameListModel::NameListModel(NameList list, QObject* parent)
    : QAbstractListModel(parent)
    , list_(std::move(list))
    , rows_(currentRows()) {
    connect(&list_.notices, &ListControllerNotices::arrangedObjectsChanged, this,
            &NameListModel::follow);
}

NameListModel::~NameListModel() = default;

int NameListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant NameListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return shownName(row.name);
    case Qt::EditRole:
        return row.name;
    case Qt::ToolTipRole:
        // Plain, whatever a calendar's title looks like.
        return shownName(row.name).toHtmlEscaped();
    case Qt::CheckStateRole:
        return list_.tick ? QVariant(row.isTicked ? Qt::Checked : Qt::Unchecked) : QVariant();
    default:
        return {};
    }
}

bool NameListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return false;
    }
    const auto row = static_cast<std::size_t>(index.row());
    if (role == Qt::CheckStateRole && list_.tick) {
        list_.tick(row, value.value<Qt::CheckState>() == Qt::Checked);
        return true;
    }
    static const QRegularExpression lineBreaks(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]+"));
    const QString name = value.toString().replace(lineBreaks, QStringLiteral(" ")).trimmed();
    if (role != Qt::EditRole || !list_.rename || name.isEmpty() || name == rows_[row].name) {
        return false;
    }
    list_.rename(row, name);
    return true;
}

Qt::ItemFlags NameListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractListModel::flags(index);
    if (index.isValid()) {
        flags.setFlag(Qt::ItemIsEditable, static_cast<bool>(list_.rename));
        flags.setFlag(Qt::ItemIsUserCheckable, static_cast<bool>(list_.tick));
    }
    return flags;
}

void NameListModel::follow() {
    std::vector<Row> next = currentRows();
    const auto [oldFront, newFront] = std::ranges::mismatch(rows_, next);
    const auto front = static_cast<int>(oldFront - rows_.begin());
    const auto rest = std::min(rows_.end() - oldFront, next.end() - newFront);
    int back = 0;
    while (back < rest && rows_.rbegin()[back] == next.rbegin()[back]) {
        ++back;
    }
    const int oldEnd = static_cast<int>(rows_.size()) - back;
    const int newEnd = static_cast<int>(next.size()) - back;
    const int changedEnd = std::min(oldEnd, newEnd);
    if (front < changedEnd) {
        std::copy(next.begin() + front, next.begin() + changedEnd, rows_.begin() + front);
        Q_EMIT dataChanged(index(front), index(changedEnd - 1));
    }
    if (changedEnd < oldEnd) {
        beginRemoveRows({}, changedEnd, oldEnd - 1);
        rows_ = std::move(next);
        endRemoveRows();
    } else if (changedEnd < newEnd) {
        beginInsertRows({}, changedEnd, newEnd - 1);
        rows_ = std::move(next);
        endInsertRows();
    }
}

std::vector<NameListModel::Row> NameListModel::currentRows() const {
    std::vector<Row> rows;
    rows.reserve(list_.count());
    for (std::size_t row = 0; row < list_.count(); ++row) {
        rows.push_back(
            {.name = list_.name(row), .isTicked = list_.isTicked && list_.isTicked(row)});
    }
    return rows;
}

} // namespace quillet
