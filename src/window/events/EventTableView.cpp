#include "window/events/EventTableView.h"

#include "eventtable/EventColumns.h"
#include "eventtable/EventItemTableView.h"
#include "eventtable/EventOrder.h"
#include "results/OpenCalendarEvent.h"
#include "texts/Localized.h"
#include "window/events/ColumnsMenu.h"
#include "window/widgets/CellPadding.h"
#include "window/widgets/HeaderPadding.h"
#include "window/widgets/LetterWidth.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

QString identifierOf(int logicalIndex) {
    return QString::fromLatin1(eventColumns()[static_cast<std::size_t>(logicalIndex)].identifier);
}

} // namespace

/// A header section and the column that it mirrors, which keeps its width while it is hidden. A
/// point is as wide as in the text report, where a character takes 7.2 of them: whatever the font,
/// the table shows about as much of a text as the report does.
class EventTableView::HeaderSection final {
public:
    HeaderSection(QHeaderView& header, int logicalIndex, TableColumn& column)
        : header_(header)
        , logicalIndex_(logicalIndex)
        , column_(column) {
        connect(&column, &TableColumn::widthPointsSet, &header, [this] { resize(); });
        connect(&column, &TableColumn::isHiddenChanged, &header, [this] { setHidden(); });
        resize();
        setHidden();
    }

    void userResized(int pixels) {
        // Its own echo is no news, and would cost the fractions of the width.
        if (pixels != pixelsOf(column_.widthPoints())) {
            isUsers_ = true;
            column_.setWidthPoints(pointsOf(pixels));
            isUsers_ = false;
        }
    }
    /// The header has restored a state, and tells nothing of it.
    void takeFromHeader() {
        const bool isHidden = header_.isSectionHidden(logicalIndex_);
        // A hidden section has no size.
        header_.setSectionHidden(logicalIndex_, false);
        userResized(header_.sectionSize(logicalIndex_));
        header_.setSectionHidden(logicalIndex_, isHidden);
        column_.setHidden(isHidden);
    }

private:
    void resize() {
        if (!isUsers_) {
            // A hidden section takes it, too, and has it when it shows.
            header_.resizeSection(logicalIndex_, pixelsOf(column_.widthPoints()));
        }
    }
    void setHidden() { header_.setSectionHidden(logicalIndex_, column_.isHidden()); }
    [[nodiscard]] double pixelsPerPoint() const {
        constexpr double pointsPerCharacter = 7.2;
        return header_.fontMetrics().horizontalAdvance(u'0') / pointsPerCharacter;
    }
    [[nodiscard]] int padding() const { return 2 * CellPadding::distance(header_.fontMetrics()); }
    /// Upwards, so that whole points survive the way to pixels and back.
    [[nodiscard]] int pixelsOf(double points) const {
        constexpr double imprecision = 1e-6;
        return padding() + static_cast<int>(std::ceil(points * pixelsPerPoint() - imprecision));
    }
    [[nodiscard]] double pointsOf(int pixels) const {
        const double points = std::max(pixels - padding(), 1) / pixelsPerPoint();
        const double wholePoints = std::floor(points);
        return pixelsOf(wholePoints) == pixels ? wholePoints : points;
    }

    QHeaderView& header_;
    int logicalIndex_;
    TableColumn& column_;
    bool isUsers_ = false;
};

EventTableView::EventTableView(QAbstractItemModel& model, ColumnTable& columns,
                               ListController<Event>& events, SettingsStore& settings,
                               MakeSorter makeSorter, QWidget* parent)
    : QTableView(parent)
    , columns_(columns)
    , events_(events)
    , settings_(settings)
    , makeSorter_(std::move(makeSorter))
    , timeColumnActions_(std::make_unique<TimeColumnActions>())
    , openInCalendarAction_(new QAction(localized("&Open in Calendar"), this)) {
    openInCalendarAction_->setEnabled(false);
    setModel(&model);
    setAccessibleName(localized("Events"));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setItemDelegate(new CellPadding(this));
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    setUpHeader();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &EventTableView::takeSelectionFromView);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { viewport()->update(besideColumns()); });
    connect(&events_, &ListControllerNotices::arrangedObjectsWillChange, this,
            [this] { scrollPosition_ = verticalScrollBar()->value(); });
    connect(&events_, &ListControllerNotices::arrangedObjectsChanged, this,
            [this] { verticalScrollBar()->setValue(scrollPosition_); });
    connect(&events_, &ListControllerNotices::selectedObjectsChanged, this,
            &EventTableView::showSelectionOfList);
}

EventTableView::~EventTableView() = default;

void EventTableView::setUpHeader() {
    QHeaderView& header = *horizontalHeader();
    header.setStyle(new HeaderPadding(&header));
    header.setSectionsMovable(true);
    header.setSectionsClickable(true);
    header.setHighlightSections(false);
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(letterWidth(fontMetrics()) * 4);
    header.setSortIndicatorClearable(true);
    header.setSortIndicator(-1, Qt::AscendingOrder);
    header.setSortIndicatorShown(true);
    header.setContextMenuPolicy(Qt::CustomContextMenu);
    setUpSections();
    connect(&header, &QHeaderView::sortIndicatorChanged, this, &EventTableView::sort);
    connect(&header, &QWidget::customContextMenuRequested, this, &EventTableView::showHeaderMenu);
}

void EventTableView::setUpSections() {
    QHeaderView& header = *horizontalHeader();
    for (int index = 0; index < header.count(); ++index) {
        sections_.push_back(
            std::make_unique<HeaderSection>(header, index, columns_.column(identifierOf(index))));
    }
    for (int position = 0; position < columns_.columnCount(); ++position) {
        const auto index = columns_.columnAt(position).known() - eventColumns().data();
        header.moveSection(header.visualIndex(static_cast<int>(index)), position);
    }
    connect(&header, &QHeaderView::sectionResized, this, [this](int index, int, int width) {
        if (width > 0) {
            sections_[static_cast<std::size_t>(index)]->userResized(width);
        }
    });
    connect(&header, &QHeaderView::sectionMoved, this, [this](int, int from, int to) {
        moveUnmirrored([=, this] { columns_.moveColumn(from, to); });
    });
    connect(&columns_, &ColumnTable::columnMoved, this, [this](int from, int to) {
        moveUnmirrored([=, this] { horizontalHeader()->moveSection(from, to); });
    });
}

void EventTableView::moveUnmirrored(const std::function<void()>& move) {
    if (!isMoving_) {
        isMoving_ = true;
        move();
        isMoving_ = false;
    }
}

void EventTableView::follow(EventItemTableView& eventItemTableView) {
    eventItemTableView_ = &eventItemTableView;
    auto* action = new QAction(localized("&Copy"), this);
    action->setObjectName(QStringLiteral("copyFromEventItemTableView"));
    connect(action, &QAction::triggered, this,
            [this] { eventItemTableView_->copyFromEventItemTableView(); });
    addAction(action);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void EventTableView::copy() {
    if (eventItemTableView_ != nullptr) {
        eventItemTableView_->copy();
    }
}

void EventTableView::follow(OpenCalendarEvent& openCalendarEvent) {
    openCalendarEvent_ = &openCalendarEvent;
    QAction& action = *openInCalendarAction_;
    action.setObjectName(QStringLiteral("openEventInCalendar"));
    action.setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    action.setShortcutContext(Qt::WidgetShortcut);
    // Only ever for one event: the busy indicator would turn on for any other number of them.
    const auto enable = [this] {
        openInCalendarAction_->setEnabled(events_.selectedRows().size() == 1);
    };
    connect(&events_, &ListControllerNotices::selectedObjectsChanged, &action, enable);
    connect(&action, &QAction::triggered, this, &EventTableView::openInCalendar);
    enable();
    addAction(&action);
}

void EventTableView::follow(const EventItemViewController& eventItemView) {
    followTimeMenuItem(*timeColumnActions_, eventItemView);
}

void EventTableView::openInCalendar() {
    if (openCalendarEvent_ != nullptr && events_.selectedRows().size() == 1) {
        openCalendarEvent_->openEventInCalendar();
    }
}

void EventTableView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex clicked = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && clicked.isValid() &&
        selectionModel()->isRowSelected(clicked.row())) {
        openInCalendar();
    }
}

QRect EventTableView::besideColumns() const {
    const QRect area = viewport()->rect();
    const int columnsWidth = horizontalHeader()->length() - horizontalHeader()->offset();
    return isRightToLeft() ? area.adjusted(0, 0, -columnsWidth, 0)
                           : area.adjusted(columnsWidth, 0, 0, 0);
}

void EventTableView::paintEvent(QPaintEvent* event) {
    // A table view ends its stripes with the last column, where they would look cut off.
    const QRect beside = besideColumns();
    const int lastRow = model()->rowCount() - 1;
    if (!beside.isEmpty() && lastRow >= 0) {
        QPainter painter(viewport());
        const auto group = isActiveWindow() ? QPalette::Active : QPalette::Inactive;
        const int end = verticalHeader()->visualIndexAt(viewport()->height());
        for (int row = std::max(verticalHeader()->visualIndexAt(0), 0);
             row <= (end < 0 ? lastRow : end); ++row) {
            const QRect stripe(beside.left(), rowViewportPosition(row), beside.width(),
                               rowHeight(row));
            if (selectionModel()->isRowSelected(row)) {
                painter.fillRect(stripe, palette().brush(group, QPalette::Highlight));
            } else if (row % 2 == 1) {
                painter.fillRect(stripe, palette().brush(group, QPalette::AlternateBase));
            }
        }
    }
    QTableView::paintEvent(event);
}

QByteArray EventTableView::columnState() const {
    return horizontalHeader()->saveState();
}

bool EventTableView::restoreColumnState(const QByteArray& state) {
    QHeaderView& header = *horizontalHeader();
    if (!header.restoreState(state)) {
        return false;
    }
    for (const auto& section : sections_) {
        section->takeFromHeader();
    }
    moveUnmirrored([&] {
        for (int position = 0; position < header.count(); ++position) {
            const QString identifier = identifierOf(header.logicalIndex(position));
            columns_.moveColumn(columns_.positionOf(identifier), position);
        }
    });
    return true;
}

void EventTableView::showHeaderMenu(const QPoint& position) {
    QMenu menu(this);
    fillColumnsMenu(menu, settings_, *timeColumnActions_);
    menu.exec(horizontalHeader()->mapToGlobal(position));
}

void EventTableView::sort(int logicalIndex, Qt::SortOrder order) {
    if (logicalIndex < 0) {
        events_.setSorter({});
        return;
    }
    events_.setSorter(makeSorter_(identifierOf(logicalIndex), order == Qt::AscendingOrder
                                                                  ? SortDirection::Ascending
                                                                  : SortDirection::Descending));
}

void EventTableView::takeSelectionFromView() {
    if (isShowingSelection_) {
        return;
    }
    std::vector<std::size_t> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(static_cast<std::size_t>(row));
        }
    }
    isShowingSelection_ = true;
    events_.setSelectedRows(std::move(rows));
    isShowingSelection_ = false;
}

void EventTableView::showSelectionOfList() {
    if (isShowingSelection_) {
        return;
    }
    QItemSelection selection;
    const std::vector<std::size_t>& rows = events_.selectedRows();
    for (std::size_t first = 0; first < rows.size();) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1) {
            ++last;
        }
        selection.append(QItemSelectionRange(
            model()->index(static_cast<int>(rows[first]), 0),
            model()->index(static_cast<int>(rows[last]), model()->columnCount() - 1)));
        first = last + 1;
    }
    isShowingSelection_ = true;
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    isShowingSelection_ = false;
}

} // namespace quillet
