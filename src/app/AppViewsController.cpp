#include "app/AppViewsController.h"

#include "platform/Settings.h"

namespace quillet {

AppViewsController::AppViewsController(SettingsStore& settings)
    : settings_(settings) {}

AppViewsController::~AppViewsController() = default;

void AppViewsController::awakeFromNib() {
    settings::isProgressIndicatorOn.writeIfAbsent(settings_);
    setProgressIndicatorShown(false);
    observations_.push_back(settings::isProgressIndicatorOn.observe(
        settings_, [this] { observeValueForKeyPath(settings::isProgressIndicatorOn.name()); }));
    settings::viewMode.writeIfAbsent(settings_);
    settings::isExportTXTViewOn.reset(settings_);
    settings::isNotesViewOn.reset(settings_);
    setExportItemsEnabled(true);
    observations_.push_back(settings::isDollarsOn.observe(
        settings_, [this] { observeValueForKeyPath(settings::isDollarsOn.name()); }));
    arrangePanes(settings::viewMode.read(settings_));
}

void AppViewsController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == settings::isDollarsOn.name()) {
        toggleRateView();
    } else if (keyPath == settings::isProgressIndicatorOn.name()) {
        if (settings::isProgressIndicatorOn.read(settings_)) {
            enableProgressIndicator();
        } else {
            disableProgressIndicator();
        }
    } else if (keyPath == settings::viewMode.name()) {
        arrangePanes(settings::viewMode.read(settings_));
    }
}

qint64 AppViewsController::viewMode() {
    if (!settings::viewMode.isStored(settings_)) {
        setViewMode(0);
        return 0;
    }
    return settings::viewMode.read(settings_);
}

void AppViewsController::setViewMode(qint64 mode) {
    settings::viewMode.write(settings_, mode);
}

void AppViewsController::arrangePanes(qint64 mode) {
    changeListViewController(mode);
    changeItemViewController(mode);
    changeExportViewController();
    changeInspectorViewController(mode);
    changeRateViewController(mode);
}

const std::vector<PaneContent>& AppViewsController::contents(Pane pane) const {
    static const std::vector<PaneContent> none;
    const auto shown = contents_.find(pane);
    return shown == contents_.end() ? none : shown->second;
}

void AppViewsController::swapPane(Pane pane, PaneContent content, bool isContentTaken) {
    if (isContentTaken) {
        contents_[pane] = {content};
    }
    Q_EMIT contentsChanged(pane);
}

void AppViewsController::setPaneHidden(Pane pane, bool isHidden) {
    hiddenPanes_.at(pane) = isHidden;
    Q_EMIT isPaneHiddenChanged(pane);
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
    std::vector<PaneContent>& shown = contents_[Pane::Export];
    shown.clear();
    if (settings::isExportTXTViewOn.read(settings_)) {
        shown.push_back(PaneContent::ExportTxtView);
    }
    if (settings::isNotesViewOn.read(settings_)) {
        shown.push_back(PaneContent::ExportNotesView);
    }
    // A pane is filled once it is seen, and left alone before it is emptied.
    if (!shown.empty()) {
        setPaneHidden(Pane::Export, false);
    }
    Q_EMIT contentsChanged(Pane::Export);
    if (shown.empty()) {
        setPaneHidden(Pane::Export, true);
    }
}

void AppViewsController::toggleRateView() {
    setPaneHidden(Pane::Rate, integerForKey(settings_, settings::isDollarsOn.name()) != 1);
}

void AppViewsController::enableProgressIndicator() {
    setProgressIndicatorShown(true);
}

void AppViewsController::disableProgressIndicator() {
    setProgressIndicatorShown(false);
}

void AppViewsController::setProgressIndicatorShown(bool isShown) {
    isProgressShown_ = isShown;
    Q_EMIT isProgressIndicatorShownChanged();
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
    isOpen.write(settings_, true);
    changeExportViewController();
}

void AppViewsController::closeExport(const Setting<bool>& isOpen) {
    isOpen.write(settings_, false);
    changeExportViewController();
    setExportItemsEnabled(true);
}

QRectF AppViewsController::effectiveRect(const QRectF& proposed) const {
    const bool isOpen = integerForKey(settings_, settings::isExportTXTViewOn.name()) == 1 ||
                        integerForKey(settings_, settings::isNotesViewOn.name()) == 1;
    return isOpen ? proposed : QRectF();
}

void AppViewsController::setExportItemsEnabled(bool isEnabled) {
    areExportItemsEnabled_ = isEnabled;
    Q_EMIT areExportToolbarItemsEnabledChanged();
}

} // namespace quillet
