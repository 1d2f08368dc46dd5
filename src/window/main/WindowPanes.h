#pragma once

#include "app/AppViewsController.h"

#include <QSplitter>

#include <map>
#include <vector>

class QMainWindow;
class QStackedWidget;

namespace quillet {

class BusyIndicator;

/// The containers of the main window and the views that can stand in them.
class WindowPanes : public QObject {
    Q_OBJECT

public:
    using Contents = std::map<PaneContent, QWidget*>;

    /// The containers and the indicator become the window's; the views that of the containers.
    WindowPanes(Contents contents, QMainWindow& window);
    ~WindowPanes() override;
    Q_DISABLE_COPY_MOVE(WindowPanes)

    /// Shows what the controller says, now and from now on.
    void follow(const AppViewsController& views);

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

private:
    [[nodiscard]] QStackedWidget* stack(Pane pane) const;
    void makeCentreSplitter();
    void setContents(Pane pane, const std::vector<PaneContent>& shown);
    void setPaneHidden(Pane pane, bool isHidden);
    void setBusy(bool isBusy);
    void shareRoomWithExportPane();

    Contents contents_;
    std::map<Pane, QStackedWidget*> stacks_;
    QSplitter* centreSplitter_;
    BusyIndicator* busyIndicator_;
    int exportRoom_ = 0;
};

} // namespace quillet
