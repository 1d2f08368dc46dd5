#include "window/widgets/FocusOrder.h"

#include <QWidget>

#include <algorithm>

namespace quillet {

namespace {

bool takesTab(const QWidget& control) {
    return control.isVisible() && control.isEnabled() && control.focusProxy() == nullptr &&
           (control.focusPolicy() & Qt::TabFocus) != 0;
}

QPoint centreOf(const QWidget& control) {
    return control.mapTo(control.window(), control.rect().center());
}

/// Controls of one row are centred on one line, whatever their heights.
void sortAsRead(QList<QWidget*>& controls, const QWidget& area) {
    const auto isHigher = [](const QWidget* one, const QWidget* other) {
        return centreOf(*one).y() < centreOf(*other).y();
    };
    const bool isFromRight = area.isRightToLeft();
    const auto isEarlierInRow = [isFromRight](const QWidget* one, const QWidget* other) {
        return isFromRight ? centreOf(*other).x() < centreOf(*one).x()
                           : centreOf(*one).x() < centreOf(*other).x();
    };
    std::ranges::stable_sort(controls, isHigher);
    const int tolerance = area.fontMetrics().height() / 2;
    for (auto row = controls.begin(); row != controls.end();) {
        const int centre = centreOf(**row).y();
        const auto end = std::find_if(row, controls.end(), [&](const QWidget* control) {
            return centreOf(*control).y() > centre + tolerance;
        });
        std::stable_sort(row, end, isEarlierInRow);
        row = end;
    }
}

QList<QWidget*> controlsOf(QWidget& area, const QWidget* current) {
    QList<QWidget*> controls;
    for (QWidget* control : area.findChildren<QWidget*>()) {
        if (control->window() == area.window() && (control == current || takesTab(*control))) {
            controls.append(control);
        }
    }
    sortAsRead(controls, area);
    return controls;
}

} // namespace

QWidget* neighbourInFocusOrder(const QList<QWidget*>& areas, QWidget* current, FocusStep step) {
    QList<QWidget*> controls;
    for (QWidget* area : areas) {
        controls += controlsOf(*area, current);
    }
    const qsizetype position = controls.indexOf(current);
    if (position < 0) {
        return nullptr;
    }
    const qsizetype count = controls.size();
    return controls[(position + (step == FocusStep::Next ? 1 : count - 1)) % count];
}

} // namespace quillet
