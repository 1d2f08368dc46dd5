#pragma once

#include "platform/InterfaceItems.h"
#include "platform/Observation.h"
#include "platform/Setting.h"

#include <QRectF>
#include <QString>

#include <map>
#include <vector>

namespace quillet {

/// The containers of the main window.
enum class Pane { List, Item, Inspector, Rate, Export };

/// The views that can be put into them.
enum class PaneContent {
    CalendarListView,
    EventItemView,
    DateInspectorView,
    EventRateView,
    ExportTxtView,
    ExportNotesView,
};

/// The main window, as far as its panes go.
class MainWindowPanes {
public:
    virtual ~MainWindowPanes() = default;
    virtual void remove(PaneContent content) = 0;
    /// Adds the view to the pane; it fills the pane and grows and shrinks with it.
    virtual void install(PaneContent content, Pane pane) = 0;
    /// Of the two panes of the centre split view that come and go: Export and Rate.
    virtual void setPaneHidden(Pane pane, bool isHidden) = 0;
    virtual void removeProgressIndicator() = 0;
    /// Above everything else, in the middle of the window.
    virtual void addProgressIndicator() = 0;
    virtual void setProgressAnimated(bool isAnimated) = 0;
};

/// Puts the right views into the panes, shows and hides those that come and go, and runs the busy
/// indicator.
class AppViewsController {
public:
    struct Collaborators {
        SettingsStore& settings;
        MainWindowPanes& panes;
        ToolbarItem& exportTxtToolbarItem;
        ToolbarItem& exportCsvToolbarItem;
        ToolbarItem& exportTsvToolbarItem;
        ToolbarItem& exportNotesToolbarItem;
    };

    explicit AppViewsController(const Collaborators& collaborators);

    void awakeFromNib();
    /// Reacts to a changed key. `viewMode` is among them, but is not observed: panes are arranged
    /// once, when the window is built.
    void observeValueForKeyPath(const QString& keyPath);

    /// 0 is the events view; stores it where no mode is stored.
    [[nodiscard]] qint64 viewMode();
    void setViewMode(qint64 mode);

    void changeListViewController(qint64 mode);
    void changeItemViewController(qint64 mode);
    void changeInspectorViewController(qint64 mode);
    void changeRateViewController(qint64 mode);
    void changeExportViewController();
    /// The rate pane is there only while `isDollarsOn` is exactly 1.
    void toggleRateView();
    void enableProgressIndicator();
    void disableProgressIndicator();

    void exportTxtToolbarItemClicked();
    void exportNotesToolbarItemClicked();
    void displayTxtExportView();
    void displayNotesExportView();
    void turnTxtExportViewOff();
    void turnNotesExportViewOff();

    /// Dividers are never drawn.
    [[nodiscard]] static bool shouldHideDivider() { return true; }
    /// Where the centre divider can be dragged: nowhere, unless an export pane is open.
    [[nodiscard]] QRectF effectiveRect(const QRectF& proposed) const;

private:
    void arrangePanes(qint64 mode);
    void swapPane(Pane pane, PaneContent content, bool isContentTaken);
    void showExport(const Setting<bool>& isOpen);
    void closeExport(const Setting<bool>& isOpen);
    void setExportItemsEnabled(bool isEnabled);

    Collaborators with_;
    /// What each pane shows now.
    std::map<Pane, PaneContent> contents_;
    std::vector<Observation> observations_;
};

} // namespace quillet
