#pragma once

#include "eventtable/ColumnTable.h"
#include "platform/Event.h"
#include "platform/ListController.h"
#include "platform/SettingsStore.h"

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

/// The event table on screen. It mirrors its columns, which the user can move, resize, hide and
/// sort by; its selection and that of the list controller are one. The header's menu shows and
/// hides columns.
class EventTableView : public QTableView {
    Q_OBJECT

public:
    /// Makes the order of a column's identifier; see eventSorter().
    using MakeSorter = std::function<ListController<Event>::Sorter(const QString& column,
                                                                   SortDirection direction)>;

    /// The model's columns are those of eventColumns().
    EventTableView(QAbstractItemModel& model, ColumnTable& columns, ListController<Event>& events,
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
    class HeaderSection;

    void setUpHeader();
    void setUpSections();
    /// Moves a section or a column without being asked to move the other one as well.
    void moveUnmirrored(const std::function<void()>& move);
    void openInCalendar();
    /// Where no column is, beside the last one; empty when the columns fill the view.
    [[nodiscard]] QRect besideColumns() const;
    void showHeaderMenu(const QPoint& position);
    void sort(int logicalIndex, Qt::SortOrder order);
    void takeSelectionFromView();
    void showSelectionOfList();

    ColumnTable& columns_;
    ListController<Event>& events_;
    SettingsStore& settings_;
    MakeSorter makeSorter_;
    std::unique_ptr<TimeColumnActions> timeColumnActions_;
    EventItemTableView* eventItemTableView_ = nullptr;
    OpenCalendarEvent* openCalendarEvent_ = nullptr;
    QAction* openInCalendarAction_;
    std::vector<std::unique_ptr<HeaderSection>> sections_;
    bool isMoving_ = false;
    bool isShowingSelection_ = false;
    int scrollPosition_ = 0;
};

} // namespace quillet
