#pragma once

#include "platform/ListController.h"

#include <QAbstractListModel>
#include <QFontMetrics>

#include <functional>
#include <vector>

namespace quillet {

/// What a list of named records can do, whatever the records are.
struct NameList {
    ListControllerNotices& notices;
    std::function<std::size_t()> count;
    /// Of an arranged row.
    std::function<QString(std::size_t)> name;
    std::function<std::vector<std::size_t>()> selectedRows;
    std::function<void(std::vector<std::size_t>)> setSelectedRows;
    /// Without it, names stay as they are.
    std::function<void(std::size_t, const QString&)> rename = {};
    /// Without these, rows have no tick.
    std::function<bool(std::size_t)> isTicked = {};
    std::function<void(std::size_t, bool)> tick = {};
};

/// A list controller as a list of names.
template <typename Controller, typename Record>
[[nodiscard]] NameList nameList(Controller& controller, QString Record::* name) {
    return {.notices = controller,
            .count = [&controller] { return controller.arrangedCount(); },
            .name = [&controller, name](std::size_t row) { return controller.arranged(row).*name; },
            .selectedRows = [&controller] { return controller.selectedRows(); },
            .setSelectedRows =
                [&controller](std::vector<std::size_t> rows) {
                    controller.setSelectedRows(std::move(rows));
                }};
}

/// A list controller as a list of names that can be typed.
template <typename Controller, typename Record, typename Owner>
[[nodiscard]] NameList nameList(Controller& controller, QString Record::* name,
                                void (Owner::*rename)(std::size_t, const QString&)) {
    NameList list = nameList(controller, name);
    list.rename = [&controller, rename](std::size_t row, const QString& text) {
        (controller.*rename)(row, text);
    };
    return list;
}

/// A list controller as a list of names that can be ticked.
template <typename Controller, typename Record>
[[nodiscard]] NameList checklist(Controller& controller, QString Record::* name,
                                 bool Record::* isTicked,
                                 void (Controller::*tick)(std::size_t, bool)) {
    NameList list = nameList(controller, name);
    list.isTicked = [&controller, isTicked](std::size_t row) {
        return controller.arranged(row).*isTicked;
    };
    list.tick = [&controller, tick](std::size_t row, bool isOn) { (controller.*tick)(row, isOn); };
    return list;
}

/// The names of a list's records. A change of the list touches only the rows that differ, so that a
/// view keeps its place and its editor.
class NameListModel : public QAbstractListModel {
    Q_OBJECT

public:
    explicit NameListModel(NameList list, QObject* parent = nullptr);
    ~NameListModel() override;
    Q_DISABLE_COPY_MOVE(NameListModel)

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    /// A name is stored on one line, without blanks at its ends. One of blanks is refused: nobody
    /// could see it.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Row {
        QString name;
        bool isTicked = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void follow();
    [[nodiscard]] std::vector<Row> currentRows() const;

    NameList list_;
    std::vector<Row> rows_;
};

/// A user's name on one line; one without anything to see becomes "(no name)".
[[nodiscard]] QString shownName(const QString& name);
/// shownName() as the text of a menu entry: without mnemonics of its own, a long one cut in the
/// middle.
[[nodiscard]] QString menuText(const QString& name, const QFontMetrics& metrics);

} // namespace quillet
