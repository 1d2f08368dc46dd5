#include "window/main/WindowPanes.h"

#include "window/widgets/BusyIndicator.h"

#include <QMainWindow>
#include <QStackedWidget>

#include <algorithm>

namespace quillet {

namespace {

constexpr int exportPosition = 1;
constexpr int ratePosition = 2;

} // namespace

WindowPanes::WindowPanes(Contents contents, QMainWindow& window)
    : contents_(std::move(contents))
    , centreSplitter_(new QSplitter(Qt::Vertical, &window))
    , busyIndicator_(new BusyIndicator(window)) {
    for (const Pane pane : {Pane::List, Pane::Item, Pane::Inspector, Pane::Rate, Pane::Export}) {
        stacks_[pane] = new QStackedWidget(&window);
    }
    for (const auto& [content, view] : contents_) {
        view->setParent(&window);
        view->hide();
    }
    makeCentreSplitter();
}

WindowPanes::~WindowPanes() = default;

void WindowPanes::follow(const AppViewsController& views) {
    const auto showContents = [this, &views](Pane pane) {
        setContents(pane, views.contents(pane));
    };
    const auto hide = [this, &views](Pane pane) { setPaneHidden(pane, views.isPaneHidden(pane)); };
    const auto showBusy = [this, &views] { setBusy(views.isProgressIndicatorShown()); };
    connect(&views, &AppViewsController::contentsChanged, this, showContents);
    connect(&views, &AppViewsController::isPaneHiddenChanged, this, hide);
    connect(&views, &AppViewsController::isProgressIndicatorShownChanged, this, showBusy);
    for (const auto& [pane, stack] : stacks_) {
        showContents(pane);
    }
    hide(Pane::Export);
    hide(Pane::Rate);
    showBusy();
}

void WindowPanes::makeCentreSplitter() {
    centreSplitter_->setObjectName(QStringLiteral("centre"));
    centreSplitter_->setChildrenCollapsible(false);
    centreSplitter_->addWidget(stack(Pane::Item));
    centreSplitter_->addWidget(stack(Pane::Export));
    centreSplitter_->addWidget(stack(Pane::Rate));
    centreSplitter_->setStretchFactor(0, 1);
    stack(Pane::Rate)->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    centreSplitter_->handle(ratePosition)->setEnabled(false);
}

QStackedWidget* WindowPanes::stack(Pane pane) const {
    return stacks_.at(pane);
}

QWidget* WindowPanes::container(Pane pane) const {
    return stack(pane);
}

void WindowPanes::setCentreDividerDraggable(bool isDraggable) {
    centreSplitter_->handle(exportPosition)->setEnabled(isDraggable);
}

void WindowPanes::setContents(Pane pane, const std::vector<PaneContent>& shown) {
    QStackedWidget& widgets = *stack(pane);
    for (const auto& [content, view] : contents_) {
        const bool isShown = std::ranges::find(shown, content) != shown.end();
        if (!isShown && widgets.indexOf(view) >= 0) {
            widgets.removeWidget(view);
            view->hide();
        }
    }
    for (const PaneContent content : shown) {
        QWidget* view = contents_.at(content);
        if (widgets.indexOf(view) < 0) {
            widgets.addWidget(view);
        }
        widgets.setCurrentWidget(view);
    }
}

void WindowPanes::setPaneHidden(Pane pane, bool isHidden) {
    if (pane == Pane::Export) {
        exportRoom_ = exportRoom();
    }
    const bool isOpening = pane == Pane::Export && !isHidden && stack(pane)->isHidden();
    stack(pane)->setVisible(!isHidden);
    if (isOpening) {
        shareRoomWithExportPane();
    }
}

int WindowPanes::exportRoom() const {
    return stack(Pane::Export)->isHidden() ? exportRoom_
                                           : centreSplitter_->sizes().at(exportPosition);
}

void WindowPanes::shareRoomWithExportPane() {
    // The splitter itself gives a widget that comes back the least that it needs.
    QList<int> sizes = centreSplitter_->sizes();
    const int all = sizes.at(0) + sizes.at(exportPosition);
    const int wanted = exportRoom_ > 0 ? std::min(exportRoom_, all) : all / 2;
    sizes[0] = all - wanted;
    sizes[exportPosition] = wanted;
    centreSplitter_->setSizes(sizes);
}

void WindowPanes::setBusy(bool isBusy) {
    if (isBusy) {
        busyIndicator_->start();
    } else {
        busyIndicator_->stop();
    }
}

} // namespace quillet
