#include "app/AppViewsController.h"

#include "platform/Settings.h"

namespace quillet {

AppViewsController::AppViewsController(const Collaborators& collaborators)
    : with_(collaborators) {}

void AppViewsController::awakeFromNib() {
    SettingsStore& settings = with_.settings;
    settings::isProgressIndicatorOn.writeIfAbsent(settings);
    with_.panes.setProgressAnimated(false);
    observations_.push_back(settings::isProgressIndicatorOn.observe(
        settings, [this] { observeValueForKeyPath(settings::isProgressIndicatorOn.name()); }));
    settings::viewMode.writeIfAbsent(settings);
    settings::isExportTXTViewOn.reset(settings);
    settings::isNotesViewOn.reset(settings);
    setExportItemsEnabled(true);
    observations_.push_back(settings::isDollarsOn.observe(
        settings, [this] { observeValueForKeyPath(settings::isDollarsOn.name()); }));
    arrangePanes(settings::viewMode.read(settings));
}

void AppViewsController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == settings::isDollarsOn.name()) {
        toggleRateView();
    } else if (keyPath == settings::isProgressIndicatorOn.name()) {
        if (settings::isProgressIndicatorOn.read(with_.settings)) {
            enableProgressIndicator();
        } else {
            disableProgressIndicator();
        }
    } else if (keyPath == settings::viewMode.name()) {
        arrangePanes(settings::viewMode.read(with_.settings));
    }
}

qint64 AppViewsController::viewMode() {
    if (!settings::viewMode.isStored(with_.settings)) {
        setViewMode(0);
        return 0;
    }
    return settings::viewMode.read(with_.settings);
}

void AppViewsController::setViewMode(qint64 mode) {
    settings::viewMode.write(with_.settings, mode);
}

void AppViewsController::arrangePanes(qint64 mode) {
    changeListViewController(mode);
    changeItemViewController(mode);
    changeExportViewController();
    changeInspectorViewController(mode);
    changeRateViewController(mode);
}

void AppViewsController::swapPane(Pane pane, PaneContent content, bool isContentTaken) {
    if (const auto shown = contents_.find(pane); shown != contents_.end()) {
        with_.panes.remove(shown->second);
    }
    if (isContentTaken) {
        contents_[pane] = content;
    }
    if (const auto shown = contents_.find(pane); shown != contents_.end()) {
        with_.panes.install(shown->second, pane);
    }
}

void AppViewsController::changeListViewController(qint64 mode) {
    swapPane(Pane::List, PaneContent::CalendarListView, mode == 0);
}

void AppViewsController::changeItemViewController(qint64 mode) {
    swapPane(Pane::Item, PaneContent::EventItemView, mode == 0);
}

void AppViewsController::changeInspectorViewController(qint64 mode) {
    swapPane(Pane::Inspector, PaneContent::DateInspectorView, mode == 0);
}

void AppViewsController::changeRateViewController(qint64 /*mode*/) {
    swapPane(Pane::Rate, PaneContent::EventRateView, true);
    toggleRateView();
}

void AppViewsController::changeExportViewController() {
    if (const auto shown = contents_.find(Pane::Export); shown != contents_.end()) {
        with_.panes.remove(shown->second);
        contents_.erase(shown);
    }
    const bool isTxtOn = settings::isExportTXTViewOn.read(with_.settings);
    const bool isNotesOn = settings::isNotesViewOn.read(with_.settings);
    const auto show = [this](PaneContent content) {
        with_.panes.setPaneHidden(Pane::Export, false);
        contents_[Pane::Export] = content;
        with_.panes.install(content, Pane::Export);
    };
    if (isTxtOn) {
        show(PaneContent::ExportTxtView);
    }
    if (isNotesOn) {
        show(PaneContent::ExportNotesView);
    }
    if (!isTxtOn && !isNotesOn) {
        with_.panes.setPaneHidden(Pane::Export, true);
    }
}

void AppViewsController::toggleRateView() {
    with_.panes.setPaneHidden(Pane::Rate,
                              integerForKey(with_.settings, settings::isDollarsOn.name()) != 1);
}

void AppViewsController::enableProgressIndicator() {
    with_.panes.removeProgressIndicator();
    with_.panes.addProgressIndicator();
    with_.panes.setProgressAnimated(true);
}

void AppViewsController::disableProgressIndicator() {
    with_.panes.setProgressAnimated(false);
    with_.panes.removeProgressIndicator();
}

void AppViewsController::exportTxtToolbarItemClicked() {
    setExportItemsEnabled(false);
    displayTxtExportView();
}

void AppViewsController::exportNotesToolbarItemClicked() {
    setExportItemsEnabled(false);
    displayNotesExportView();
}

void AppViewsController::displayTxtExportView() {
    showExport(settings::isExportTXTViewOn);
}

void AppViewsController::displayNotesExportView() {
    showExport(settings::isNotesViewOn);
}

void AppViewsController::turnTxtExportViewOff() {
    closeExport(settings::isExportTXTViewOn);
}

void AppViewsController::turnNotesExportViewOff() {
    closeExport(settings::isNotesViewOn);
}

void AppViewsController::showExport(const Setting<bool>& isOpen) {
    isOpen.write(with_.settings, true);
    changeExportViewController();
}

void AppViewsController::closeExport(const Setting<bool>& isOpen) {
    isOpen.write(with_.settings, false);
    changeExportViewController();
    setExportItemsEnabled(true);
}

QRectF AppViewsController::effectiveRect(const QRectF& proposed) const {
    const bool isOpen = integerForKey(with_.settings, settings::isExportTXTViewOn.name()) == 1 ||
                        integerForKey(with_.settings, settings::isNotesViewOn.name()) == 1;
    return isOpen ? proposed : QRectF();
}

void AppViewsController::setExportItemsEnabled(bool isEnabled) {
    for (ToolbarItem* item : {&with_.exportTxtToolbarItem, &with_.exportCsvToolbarItem,
                              &with_.exportTsvToolbarItem, &with_.exportNotesToolbarItem}) {
        item->setEnabled(isEnabled);
    }
}

} // namespace quillet
