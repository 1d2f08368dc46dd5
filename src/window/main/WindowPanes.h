#pragma once

#include "app/AppViewsController.h"

#include <QSplitter>

#include <array>
#include <map>

class QMainWindow;
class QStackedWidget;

namespace quillet {

class BusyIndicator;

/// The containers of the main window and the views that can stand in them.
class WindowPanes final : public MainWindowPanes {
public:
    using Contents = std::map<PaneContent, QWidget*>;

    /// The containers and the indicator become the window's; the views that of the containers.
    WindowPanes(Contents contents, QMainWindow& window);

    [[nodiscard]] QWidget* container(Pane pane) const;
    /// The event table's pane above the export pane above the rate pane.
    [[nodiscard]] QSplitter& centreSplitter() const { return *centreSplitter_; }
    /// The height at which the export pane stands, or stood when it was last open, in pixels; 0 for
    /// one that never was.
    [[nodiscard]] int exportRoom() const;
    /// The height at which it opens next; for one that is 0 or less it takes half of the table's.
    void setExportRoom(int height) { exportRoom_ = height; }
    /// The divider above the export pane can be dragged, or cannot.
    void setCentreDividerDraggable(bool isDraggable);

    void remove(PaneContent content) override;
    void install(PaneContent content, Pane pane) override;
    void setPaneHidden(Pane pane, bool isHidden) override;
    void removeProgressIndicator() override;
    void addProgressIndicator() override;
    void setProgressAnimated(bool isAnimated) override;

private:
    [[nodiscard]] QStackedWidget* stack(Pane pane) const;
    void makeCentreSplitter();
    void shareRoomWithExportPane();

    Contents contents_;
    std::map<Pane, QStackedWidget*> stacks_;
    QSplitter* centreSplitter_;
    BusyIndicator* busyIndicator_;
    int exportRoom_ = 0;
};

} // namespace quillet
