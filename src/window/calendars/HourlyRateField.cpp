#include "window/calendars/HourlyRateField.h"

#include "window/calendars/RateEditing.h"
#include "window/preferences/SettingsBinding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace quillet {

namespace {

const QString rateKey = QStringLiteral("hourlyRate");

} // namespace

EditedRate sharedRate(SettingsStore& settings) {
    return {.owner = [] { return QString(); },
            .rate =
                [&settings] {
                    const Decimal rate = decimalFromValue(settings.object(rateKey));
                    return std::optional(rate.isNaN() ? Decimal() : rate);
                },
            .setRate =
                [&settings](const Decimal& rate) {
                    if (decimalFromValue(settings.object(rateKey)) != rate) {
                        settings.setObject(rateKey, QVariant::fromValue(rate));
                    }
                },
            .remember = [&settings]() -> std::function<void()> {
                return [&settings, old = settings.object(rateKey)] {
                    if (settings.object(rateKey) != old) {
                        settings.setObject(rateKey, old);
                    }
                };
            }};
}

HourlyRateField::HourlyRateField(SettingsStore& settings, const LocaleFormats& formats,
                                 QWidget* parent)
    : QWidget(parent)
    , edit_(new QLineEdit(this))
    , complaint_(new QLabel(this))
    , editing_(new RateEditing(*edit_, *complaint_, formats, sharedRate(settings))) {
    edit_->setMaximumWidth(fontMetrics().averageCharWidth() * 16);
    setFocusProxy(edit_);
    complaint_->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit_);
    layout->addWidget(complaint_, 1);
    observeWhileAlive(*this, settings, rateKey, [this] { editing_->refresh(); });
}

HourlyRateField::~HourlyRateField() {
    // The field's end is nobody's editing.
    edit_->disconnect(editing_);
}

void HourlyRateField::hideEvent(QHideEvent* event) {
    editing_->finish();
    complaint_->clear();
    QWidget::hideEvent(event);
}

} // namespace quillet
