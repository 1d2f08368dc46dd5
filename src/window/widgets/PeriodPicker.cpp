#include "window/widgets/PeriodPicker.h"

#include "window/widgets/MenuArrowRoom.h"
#include "window/widgets/SymbolIcon.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include <array>
#include <memory>

namespace quillet {

PeriodPicker::PeriodPicker(const QString& name, Qt::DayOfWeek firstDayOfWeek, QWidget* parent)
    : QCalendarWidget(parent)
    , grid_(findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview"))) {
    setAccessibleName(name);
    setFirstDayOfWeek(firstDayOfWeek);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    setGridVisible(false);
    drawInPaletteColors();
    connect(this, &QCalendarWidget::clicked, this, &PeriodPicker::picked);
    connect(this, &QCalendarWidget::activated, this, &PeriodPicker::picked);
    if (grid_ != nullptr) {
        grid_->installEventFilter(this);
        grid_->viewport()->installEventFilter(this);
    }
}

PeriodPicker::~PeriodPicker() = default;

void PeriodPicker::drawInPaletteColors() {
    const std::array steps{std::pair{"qt_calendar_prevmonth", Symbol::Previous},
                           std::pair{"qt_calendar_nextmonth", Symbol::Next}};
    for (const auto& [buttonName, symbol] : steps) {
        if (auto* button = findChild<QToolButton*>(QString::fromLatin1(buttonName))) {
            button->setIcon(symbolIcon(symbol, QPalette::HighlightedText));
        }
    }
    if (auto* month = findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"))) {
        month->setStyle(new MenuArrowRoom(month));
    }
    const QTextCharFormat plain;
    setWeekdayTextFormat(Qt::Saturday, plain);
    setWeekdayTextFormat(Qt::Sunday, plain);
}

bool PeriodPicker::eventFilter(QObject* watched, QEvent* event) {
    if (QCalendarWidget::eventFilter(watched, event)) {
        return true;
    }
    if (watched == grid_ && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) {
            Q_EMIT left();
        }
        return false;
    }
    if (grid_ == nullptr || watched != grid_->viewport() ||
        event->type() != QEvent::MouseButtonPress || isClicking_) {
        return false;
    }
    const auto& press = *static_cast<QMouseEvent*>(event);
    if (press.button() != Qt::LeftButton) {
        return false;
    }
    clickAt(press);
    return true;
}

void PeriodPicker::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
    QCalendarWidget::paintCell(painter, rect, date);
    if (grid_ == nullptr || !grid_->hasFocus() || date != selectedDate()) {
        return;
    }
    // The styles show nothing of the focus here, and the keyboard's user needs to know.
    constexpr int inset = 2;
    painter->save();
    painter->setPen(palette().color(QPalette::HighlightedText));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect.adjusted(inset, inset, -inset - 1, -inset - 1));
    painter->restore();
}

void PeriodPicker::clickAt(const QMouseEvent& press) {
    const QScopedValueRollback clicking(isClicking_, true);
    const std::unique_ptr<QMouseEvent> down(press.clone());
    QCoreApplication::sendEvent(grid_->viewport(), down.get());
    // The grid picks when the button goes up; the real one going up finds nothing begun.
    QMouseEvent up(QEvent::MouseButtonRelease, press.position(), press.globalPosition(),
                   Qt::LeftButton, press.buttons() & ~Qt::MouseButtons(Qt::LeftButton),
                   press.modifiers(), press.pointingDevice());
    QCoreApplication::sendEvent(grid_->viewport(), &up);
}

} // namespace quillet
