#include "window/calendars/CalendarPane.h"

#include "texts/Localized.h"
#include "window/widgets/ProblemFoot.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTableView>
#include <QVBoxLayout>

namespace quillet {

CalendarPane::CalendarPane(CalendarsArrayController& calendars, CalendarListModel::ColorOf colorOf,
                           QWidget* parent)
    : QWidget(parent)
    , calendars_(calendars)
    , model_(new CalendarListModel(calendars, std::move(colorOf), this))
    , table_(new QTableView(this))
    , foot_(new ProblemFoot(this)) {
    table_->setModel(model_);
    table_->setAccessibleName(localized("Calendars"));
    table_->setToolTip(localized("Control-click ticks or clears all calendars"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_->setShowGrid(false);
    table_->setTabKeyNavigation(false);
    table_->setFrameShape(QFrame::NoFrame);
    table_->horizontalHeader()->hide();
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
    table_->viewport()->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(table_);
    layout->addWidget(foot_);

    connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CalendarPane::takeSelectionFromView);
    connect(&calendars_, &ListControllerNotices::selectedObjectsChanged, this,
            &CalendarPane::showSelectionOfList);
}

CalendarPane::~CalendarPane() = default;

void CalendarPane::setHeader(QWidget& header) {
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, &header);
}

void CalendarPane::showProblems(const QStringList& problems) {
    foot_->showProblems(problems);
}

void CalendarPane::refreshColors() {
    table_->viewport()->update();
}

bool CalendarPane::eventFilter(QObject* watched, QEvent* event) {
    // A quick second click is told as a double click alone.
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* press = static_cast<QMouseEvent*>(event);
    const QModelIndex index = table_->indexAt(press->pos());
    if (press->button() != Qt::LeftButton || !(press->modifiers() & Qt::ControlModifier) ||
        !index.isValid()) {
        return QWidget::eventFilter(watched, event);
    }
    calendars_.setSelectedRows({static_cast<std::size_t>(index.row())});
    calendars_.calendarTableViewClicked(CalendarsArrayController::ControlKey::Held);
    return true;
}

void CalendarPane::takeSelectionFromView() {
    if (isShowingSelection_) {
        return;
    }
    std::vector<std::size_t> rows;
    for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
        rows.push_back(static_cast<std::size_t>(index.row()));
    }
    isShowingSelection_ = true;
    calendars_.setSelectedRows(std::move(rows));
    isShowingSelection_ = false;
}

void CalendarPane::showSelectionOfList() {
    if (isShowingSelection_) {
        return;
    }
    isShowingSelection_ = true;
    table_->clearSelection();
    for (const std::size_t row : calendars_.selectedRows()) {
        table_->selectionModel()->select(model_->index(static_cast<int>(row), 0),
                                         QItemSelectionModel::Select);
    }
    if (!calendars_.selectedRows().empty()) {
        table_->selectionModel()->setCurrentIndex(
            model_->index(static_cast<int>(calendars_.selectedRows().front()), 0),
            QItemSelectionModel::NoUpdate);
    }
    isShowingSelection_ = false;
}

} // namespace quillet
