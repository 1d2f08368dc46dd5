#pragma once

#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"
#include "platform/TableColumn.h"

#include <QTableView>

#include <functional>
#include <memory>
#include <vector>

namespace quillet {

class EventItemTableView;
class EventItemViewController;
class OpenCalendarEvent;
enum class SortDirection;
struct TimeColumnActions;

/// The event table on screen. Its columns can be moved, resized, hidden and sorted by the user; its
/// selection and that of the list controller are one. The header's menu shows and hides columns.
class EventTableView : public QTableView, public ColumnTable {
    Q_OBJECT

public:
    /// Makes the order of a column's identifier; see eventSorter().
    using MakeSorter = std::function<ListController<Event>::Sorter(const QString& column,
                                                                   SortDirection direction)>;

    EventTableView(QAbstractItemModel& model, ListController<Event>& events,
                   SettingsStore& settings, MakeSorter makeSorter, QWidget* parent = nullptr);
    ~EventTableView() override;
    Q_DISABLE_COPY_MOVE(EventTableView)

    /// Copies its rows through this from now on; the context menu offers that.
    void follow(EventItemTableView& eventItemTableView);
    /// Opens its events through this from now on; the context menu and the Enter key offer that.
    void follow(OpenCalendarEvent& openCalendarEvent);
    /// The header's menu shows the time column that this says from now on.
    void follow(const EventItemViewController& eventItemView);
    /// Shows the selected event in the calendar program; enabled while just one is selected.
    [[nodiscard]] QAction& openInCalendarAction() { return *openInCalendarAction_; }

    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] TableColumn& columnAt(int position) override;
    [[nodiscard]] int positionOf(const QString& identifier) const override;
    void moveColumn(int from, int to) override;

    /// The order, widths and sorting of the columns, for the next start.
    [[nodiscard]] QByteArray columnState() const;
    /// False when the state is not one of columnState().
    bool restoreColumnState(const QByteArray& state);

public Q_SLOTS:
    /// The standard copy command.
    void copy();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    class HeaderColumn;

    void setUpHeader();
    void openInCalendar();
    /// Where no column is, beside the last one; empty when the columns fill the view.
    [[nodiscard]] QRect besideColumns() const;
    void showHeaderMenu(const QPoint& position);
    void sort(int logicalIndex, Qt::SortOrder order);
    void takeSelectionFromView();
    void showSelectionOfList();

    ListController<Event>& events_;
    SettingsStore& settings_;
    MakeSorter makeSorter_;
    std::unique_ptr<TimeColumnActions> timeColumnActions_;
    EventItemTableView* eventItemTableView_ = nullptr;
    OpenCalendarEvent* openCalendarEvent_ = nullptr;
    QAction* openInCalendarAction_;
    std::vector<std::unique_ptr<HeaderColumn>> columns_;
    bool isShowingSelection_ = false;
    int scrollPosition_ = 0;
};

} // namespace quillet
