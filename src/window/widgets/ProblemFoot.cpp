#include "window/widgets/ProblemFoot.h"

#include "texts/Localized.h"

#include <QLabel>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>

namespace quillet {

namespace {

/// More lines than this nobody reads, and laying them out would take long.
constexpr qsizetype mostProblems = 200;
constexpr int mostLines = 10;

QString textOf(const QStringList& problems) {
    const qsizetype rest = problems.size() - mostProblems;
    if (rest <= 1) {
        return problems.join(u'\n');
    }
    return problems.first(mostProblems).join(u'\n') + u'\n' + localized("and %1 more").arg(rest);
}

} // namespace

ProblemFoot::ProblemFoot(QWidget* parent)
    : QScrollArea(parent)
    , text_(new QLabel(this)) {
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    text_->setMargin(fontMetrics().height() / 2);
    text_->setObjectName(QStringLiteral("calendarProblems"));
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWidget(text_);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setAccessibleName(localized("Problems"));
    viewport()->setAutoFillBackground(false);
    text_->setAutoFillBackground(false);
    const auto takeFocusWhereThereIsMore = [this] {
        setFocusPolicy(verticalScrollBar()->maximum() > 0 ? Qt::StrongFocus : Qt::NoFocus);
    };
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, takeFocusWhereThereIsMore);
    takeFocusWhereThereIsMore();
    hide();
}

ProblemFoot::~ProblemFoot() = default;

void ProblemFoot::showProblems(const QStringList& problems) {
    if (const QString text = textOf(problems); text != text_->text()) {
        text_->setText(text);
        updateGeometry();
    }
    setVisible(!problems.isEmpty());
}

int ProblemFoot::heightForWidth(int width) const {
    const int most = fontMetrics().lineSpacing() * mostLines + 2 * text_->margin();
    return std::min(text_->heightForWidth(width), most);
}

QSize ProblemFoot::sizeHint() const {
    return {0, heightForWidth(width())};
}

void ProblemFoot::resizeEvent(QResizeEvent* event) {
    // A bar that was there before the room was would narrow the lines, and so be needed for ever.
    setVerticalScrollBarPolicy(text_->heightForWidth(width()) <= height() ? Qt::ScrollBarAlwaysOff
                                                                          : Qt::ScrollBarAsNeeded);
    QScrollArea::resizeEvent(event);
    // The lines break elsewhere.
    if (event->size().width() != event->oldSize().width()) {
        updateGeometry();
    }
}

QSize ProblemFoot::minimumSizeHint() const {
    return {0, fontMetrics().lineSpacing()};
}

} // namespace quillet
