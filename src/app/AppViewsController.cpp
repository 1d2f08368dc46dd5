#include "app/AppViewsController.h"

namespace quillet {

namespace {

const QString viewModeKey = QStringLiteral("viewMode");
const QString progressKey = QStringLiteral("isProgressIndicatorOn");
const QString moneyKey = QStringLiteral("isDollarsOn");
const QString txtPaneKey = QStringLiteral("isExportTXTViewOn");
const QString notesPaneKey = QStringLiteral("isNotesViewOn");

} // namespace

AppViewsController::AppViewsController(const Collaborators& collaborators)
    : with_(collaborators) {}

void AppViewsController::awakeFromNib() {
    SettingsStore& settings = with_.settings;
    setIfAbsent(settings, progressKey, false);
    with_.panes.setProgressAnimated(false);
    observations_.push_back(
        settings.observe(progressKey, [this] { observeValueForKeyPath(progressKey); }));
    setIfAbsent(settings, viewModeKey, qint64(0));
    settings.setObject(txtPaneKey, false);
    settings.setObject(notesPaneKey, false);
    setExportItemsEnabled(true);
    observations_.push_back(
        settings.observe(moneyKey, [this] { observeValueForKeyPath(moneyKey); }));
    arrangePanes(integerForKey(settings, viewModeKey));
}

void AppViewsController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == moneyKey) {
        toggleRateView();
    } else if (keyPath == progressKey) {
        if (boolForKey(with_.settings, progressKey)) {
            enableProgressIndicator();
        } else {
            disableProgressIndicator();
        }
    } else if (keyPath == viewModeKey) {
        arrangePanes(integerForKey(with_.settings, viewModeKey));
    }
}

qint64 AppViewsController::viewMode() {
    if (!hasKey(with_.settings, viewModeKey)) {
        setViewMode(0);
        return 0;
    }
    return integerForKey(with_.settings, viewModeKey);
}

void AppViewsController::setViewMode(qint64 mode) {
    with_.settings.setObject(viewModeKey, mode);
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
    const bool isTxtOn = boolForKey(with_.settings, txtPaneKey);
    const bool isNotesOn = boolForKey(with_.settings, notesPaneKey);
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
    with_.panes.setPaneHidden(Pane::Rate, integerForKey(with_.settings, moneyKey) != 1);
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
    showExport(txtPaneKey);
}

void AppViewsController::displayNotesExportView() {
    showExport(notesPaneKey);
}

void AppViewsController::turnTxtExportViewOff() {
    closeExport(txtPaneKey);
}

void AppViewsController::turnNotesExportViewOff() {
    closeExport(notesPaneKey);
}

void AppViewsController::showExport(const QString& key) {
    with_.settings.setObject(key, true);
    changeExportViewController();
}

void AppViewsController::closeExport(const QString& key) {
    with_.settings.setObject(key, false);
    changeExportViewController();
    setExportItemsEnabled(true);
}

QRectF AppViewsController::effectiveRect(const QRectF& proposed) const {
    const bool isOpen = integerForKey(with_.settings, txtPaneKey) == 1 ||
                        integerForKey(with_.settings, notesPaneKey) == 1;
    return isOpen ? proposed : QRectF();
}

void AppViewsController::setExportItemsEnabled(bool isEnabled) {
    for (ToolbarItem* item : {&with_.exportTxtToolbarItem, &with_.exportCsvToolbarItem,
                              &with_.exportTsvToolbarItem, &with_.exportNotesToolbarItem}) {
        item->setEnabled(isEnabled);
    }
}

} // namespace quillet
