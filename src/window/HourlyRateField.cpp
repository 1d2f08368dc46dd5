#include "window/HourlyRateField.h"

#include "platform/Localized.h"
#include "window/SettingsBinding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace quillet {

namespace {

const QString rateKey = QStringLiteral("hourlyRate");

} // namespace

HourlyRateField::HourlyRateField(SettingsStore& settings, const LocaleFormats& formats,
                                 QWidget* parent)
    : QWidget(parent)
    , settings_(settings)
    , formats_(formats)
    , edit_(new QLineEdit(this))
    , complaint_(new QLabel(this)) {
    edit_->setObjectName(rateKey);
    edit_->setAlignment(Qt::AlignRight);
    edit_->setMaximumWidth(fontMetrics().averageCharWidth() * 16);
    setFocusProxy(edit_);
    complaint_->setTextFormat(Qt::PlainText);
    complaint_->setObjectName(QStringLiteral("hourlyRateProblem"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit_);
    layout->addWidget(complaint_, 1);

    connect(edit_, &QLineEdit::editingFinished, this, &HourlyRateField::takeText);
    connect(edit_, &QLineEdit::textEdited, complaint_, &QLabel::clear);
    connect(edit_, &QLineEdit::textChanged, this, &HourlyRateField::takeTextOfAssistiveProgram);
    observeWhileAlive(*this, settings_, rateKey, [this] {
        // What is being typed stays.
        if (!edit_->isModified()) {
            showRate();
        }
    });
    showRate();
}

HourlyRateField::~HourlyRateField() {
    // The field's end is nobody's editing.
    edit_->disconnect(this);
}

void HourlyRateField::hideEvent(QHideEvent* event) {
    takeText();
    complaint_->clear();
    QWidget::hideEvent(event);
}

void HourlyRateField::showRate() {
    const Decimal rate = decimalFromValue(settings_.object(rateKey));
    shownText_ = formats_.number(rate.isNaN() ? Decimal() : rate);
    edit_->setText(shownText_);
}

void HourlyRateField::takeTextOfAssistiveProgram(const QString& text) {
    // They put in a whole text and need not press a key then.
    if (!edit_->isModified() && text != shownText_) {
        takeText();
    }
}

void HourlyRateField::takeText() {
    edit_->setModified(false);
    const QString text = edit_->text();
    if (text == shownText_) {
        return;
    }
    const Decimal rate = formats_.parsedNumber(text.trimmed());
    if (rate.isNaN() || rate.isNegative()) {
        showRate();
        complaint_->setText(
            localized("“%1” is not a rate; the old one was kept.").arg(text.trimmed()));
        return;
    }
    complaint_->clear();
    settings_.setObject(rateKey, QVariant::fromValue(rate));
}

} // namespace quillet
