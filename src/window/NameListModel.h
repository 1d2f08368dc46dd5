#pragma once

#include "platform/ListController.h"

#include <QAbstractListModel>
#include <QStringList>

#include <functional>

namespace quillet {

/// What a list of named records can do, whatever the records are.
struct NameList {
    ListControllerNotices& notices;
    std::function<std::size_t()> count;
    /// Of an arranged row.
    std::function<QString(std::size_t)> name;
    std::function<void(std::size_t, const QString&)> rename;
    std::function<std::vector<std::size_t>()> selectedRows;
    std::function<void(std::vector<std::size_t>)> setSelectedRows;
};

/// A list controller as a list of names.
template <typename Controller, typename Record>
[[nodiscard]] NameList nameList(Controller& controller, QString Record::* name,
                                void (Controller::*rename)(std::size_t, const QString&)) {
    return {
        .notices = controller,
        .count = [&controller] { return controller.arrangedCount(); },
        .name = [&controller, name](std::size_t row) { return controller.arranged(row).*name; },
        .rename = [&controller, rename](std::size_t row,
                                        const QString& text) { (controller.*rename)(row, text); },
        .selectedRows = [&controller] { return controller.selectedRows(); },
        .setSelectedRows =
            [&controller](std::vector<std::size_t> rows) {
                controller.setSelectedRows(std::move(rows));
            }};
}

/// The names of a list's records, editable. A change of the list touches only the rows that differ,
/// so that a view keeps its place and its editor.
class NameListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit NameListModel(NameList list, QObject* parent = nullptr);
    ~NameListModel() override;
    Q_DISABLE_COPY_MOVE(NameListModel)

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    /// Names show in one line each, whatever they hold.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// An empty name is refused: nobody could see it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void follow();
    [[nodiscard]] QStringList currentNames() const;

    NameList list_;
    QStringList names_;
};

} // namespace quillet
