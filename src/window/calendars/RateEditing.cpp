#include "window/calendars/RateEditing.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace quillet {

RateEditing::RateEditing(QLineEdit& edit, QLabel& complaint, const LocaleFormats& formats,
                         EditedRate edited)
    : QObject(&edit)
    , edit_(edit)
    , complaint_(complaint)
    , formats_(formats)
    , edited_(std::move(edited)) {
    edit_.setObjectName(settings::hourlyRate.name());
    edit_.setAlignment(Qt::AlignRight);
    complaint_.setObjectName(QStringLiteral("hourlyRateProblem"));
    connect(&edit_, &QLineEdit::textEdited, this, &RateEditing::takeTyped);
    connect(&edit_, &QLineEdit::editingFinished, this, &RateEditing::finish);
    connect(&edit_, &QLineEdit::textChanged, this, &RateEditing::takeTextOfAssistiveProgram);
    show();
}

RateEditing::~RateEditing() = default;

void RateEditing::refresh() {
    if (isWriting_) {
        return;
    }
    if (isTyping_ && edited_.owner() == typedOwner_) {
        if (edited_.rate() != written_) {
            // Somebody else set it meanwhile: that is what a refused text leaves.
            beginTyping();
        }
        return;
    }
    isTyping_ = false;
    show();
}

void RateEditing::show() {
    shownText_ = textOfRate();
    // Setting a text anew would forget what can be undone.
    if (edit_.text() != shownText_) {
        edit_.setText(shownText_);
    }
}

void RateEditing::beginTyping() {
    isTyping_ = true;
    shownText_ = textOfRate();
    typedOwner_ = edited_.owner();
    written_ = edited_.rate();
    bringBack_ = edited_.remember();
}

void RateEditing::takeTyped() {
    complaint_.clear();
    if (!isTyping_) {
        beginTyping();
    }
    const QScopedValueRollback writing(isWriting_, true);
    const std::optional<Decimal> rate = typedRate();
    if (rate && edit_.text() != shownText_) {
        edited_.setRate(*rate);
    } else {
        bringBack_();
    }
    written_ = edited_.rate();
}

void RateEditing::takeTextOfAssistiveProgram(const QString& text) {
    // They put in a whole text, as show() does, and need not press a key then.
    if (!edit_.isModified() && text != shownText_) {
        takeTyped();
        finish();
    }
}

void RateEditing::finish() {
    edit_.setModified(false);
    if (!isTyping_) {
        return;
    }
    takeTyped();
    isTyping_ = false;
    const QString text = edit_.text();
    const bool isRefused = text != shownText_ && !typedRate();
    show();
    if (isRefused) {
        complaint_.setText(
            localized("“%1” is not a rate; the old one was kept.").arg(text.trimmed()));
    }
}

QString RateEditing::textOfRate() const {
    const std::optional<Decimal> rate = edited_.rate();
    // The sign of a rate does not count.
    return rate ? formats_.number(rate->absolute()) : QString();
}

std::optional<Decimal> RateEditing::typedRate() const {
    const Decimal rate = formats_.parsedNumber(edit_.text().trimmed());
    return rate.isNaN() || rate.isNegative() ? std::nullopt : std::optional(rate);
}

} // namespace quillet
