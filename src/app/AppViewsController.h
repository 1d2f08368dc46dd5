#pragma once

#include "platform/Observation.h"
#include "platform/Setting.h"

#include <QObject>
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

/// Puts the right views into the panes, shows and hides those that come and go, and runs the busy
/// indicator. The window shows what is told here, from the moment when it is built.
class AppViewsController : public QObject {
    Q_OBJECT

public:
    explicit AppViewsController(SettingsStore& settings);
    ~AppViewsController() override;
    Q_DISABLE_COPY_MOVE(AppViewsController)

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

    /// The views in a pane, each of which fills it, the topmost last.
    [[nodiscard]] const std::vector<PaneContent>& contents(Pane pane) const;
    /// Of the two panes of the centre split view that come and go: Export and Rate.
    [[nodiscard]] bool isPaneHidden(Pane pane) const { return hiddenPanes_.at(pane); }
    /// Above everything else, in the middle of the window.
    [[nodiscard]] bool isProgressIndicatorShown() const { return isProgressShown_; }
    /// The toolbar's buttons for the text report, CSV, TSV and notes.
    [[nodiscard]] bool areExportToolbarItemsEnabled() const { return areExportItemsEnabled_; }

Q_SIGNALS:
    void contentsChanged(quillet::Pane pane);
    void isPaneHiddenChanged(quillet::Pane pane);
    void isProgressIndicatorShownChanged();
    void areExportToolbarItemsEnabledChanged();

private:
    void arrangePanes(qint64 mode);
    void swapPane(Pane pane, PaneContent content, bool isContentTaken);
    void setPaneHidden(Pane pane, bool isHidden);
    void setProgressIndicatorShown(bool isShown);
    void showExport(const Setting<bool>& isOpen);
    void closeExport(const Setting<bool>& isOpen);
    void setExportItemsEnabled(bool isEnabled);

    SettingsStore& settings_;
    std::map<Pane, std::vector<PaneContent>> contents_;
    std::map<Pane, bool> hiddenPanes_{{Pane::Export, false}, {Pane::Rate, false}};
    bool isProgressShown_ = false;
    bool areExportItemsEnabled_ = true;
    std::vector<Observation> observations_;
};

} // namespace quillet
