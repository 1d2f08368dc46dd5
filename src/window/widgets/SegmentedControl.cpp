#include "window/widgets/SegmentedControl.h"

#include "texts/Localized.h"
#include "window/widgets/Tones.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QRadioButton>
#include <QScopedValueRollback>

namespace quillet {

namespace {

constexpr qreal cornerUnits = 1.0;

/// A quarter of the font's height: all distances are multiples of it.
qreal unitOf(const QWidget& widget) {
    return widget.fontMetrics().height() / 4.0;
}

} // namespace

class Segment : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    [[nodiscard]] QSize sizeHint() const override {
        const int unit = static_cast<int>(unitOf(*this));
        return {fontMetrics().horizontalAdvance(text()) + 6 * unit,
                fontMetrics().height() + 3 * unit};
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        const int unit = static_cast<int>(unitOf(*this));
        return {fontMetrics().horizontalAdvance(text()) + 2 * unit, sizeHint().height()};
    }

protected:
    /// All of it answers to the mouse, not only where a style would draw its mark.
    [[nodiscard]] bool hitButton(const QPoint& position) const override {
        return rect().contains(position);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ground = isChecked() ? paintChosen(painter) : toned(palette(), Tone::Ground);
        const QColor wanted = isChecked() ? palette().color(QPalette::HighlightedText)
                                          : palette().color(QPalette::WindowText);
        // A disabled control has no contrast to keep; it is the palette's.
        painter.setPen(isEnabled() ? readableOn(ground, wanted, leastTextContrast) : wanted);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
        if (hasFocus()) {
            paintFocus(painter, ground);
        }
    }

private:
    QColor paintChosen(QPainter& painter) {
        const QColor fill = palette().color(QPalette::Highlight);
        const QColor window = palette().color(QPalette::Window);
        const qreal corner = unitOf(*this) * cornerUnits;
        painter.setBrush(fill);
        painter.setPen(isEnabled() ? readableOn(window, fill, leastMarkContrast) : fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
        return fill;
    }

    void paintFocus(QPainter& painter, const QColor& ground) {
        const qreal inset = unitOf(*this) * 0.75;
        const qreal corner = unitOf(*this) * cornerUnits / 2;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(
            readableOn(ground, palette().color(QPalette::WindowText), leastMarkContrast));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), corner,
                                corner);
    }
};

SegmentedControl::SegmentedControl(const QString& accessibleName, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(accessibleName);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

SegmentedControl::~SegmentedControl() = default;

void SegmentedControl::addSegment(const QString& text) {
    auto* segment = new Segment(text, this);
    segment->setAccessibleName(text);
    segment->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const int place = count();
    // Assistive programs check a button without clicking it, and a click on the chosen one changes
    // nothing that could be toggled.
    connect(segment, &QRadioButton::toggled, this, [this, place](bool isChecked) {
        if (isChecked) {
            passTabTo(place);
            if (!isShowing_) {
                Q_EMIT picked(place);
            }
        }
    });
    connect(segment, &QRadioButton::pressed, this, [this, segment, place] {
        if (segment->isChecked()) {
            Q_EMIT picked(place);
        }
    });
    segments_.push_back(segment);
    passTabTo(0);
    layout()->addWidget(segment);
    describePlaces();
}

void SegmentedControl::describePlaces() {
    for (int place = 0; place < count(); ++place) {
        //: The place of a choice in its row, as a screen reader says it: "3 of 5 choices".
        segments_[static_cast<std::size_t>(place)]->setAccessibleDescription(
            localized("%1 of %2 choices").arg(place + 1).arg(count()));
    }
}

int SegmentedControl::count() const {
    return static_cast<int>(segments_.size());
}

int SegmentedControl::chosen() const {
    for (int place = 0; place < count(); ++place) {
        if (segments_[static_cast<std::size_t>(place)]->isChecked()) {
            return place;
        }
    }
    return -1;
}

void SegmentedControl::setChosen(int place) {
    const QScopedValueRollback showing(isShowing_, true);
    for (int each = 0; each < count(); ++each) {
        Segment& segment = *segments_[static_cast<std::size_t>(each)];
        if (each == place) {
            segment.setChecked(true);
        } else if (place < 0 || place >= count()) {
            // An exclusive button cannot be unchecked.
            segment.setAutoExclusive(false);
            segment.setChecked(false);
            segment.setAutoExclusive(true);
        }
    }
    passTabTo(chosen() < 0 ? 0 : chosen());
}

void SegmentedControl::passTabTo(int place) {
    for (int each = 0; each < count(); ++each) {
        segments_[static_cast<std::size_t>(each)]->setFocusPolicy(each == place ? Qt::StrongFocus
                                                                                : Qt::ClickFocus);
    }
}

void SegmentedControl::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal corner = unitOf(*this) * cornerUnits;
    painter.setBrush(toned(palette(), Tone::Ground));
    painter.setPen(toned(palette(), Tone::Line));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}

} // namespace quillet
