#include "window/calendars/HourlyRateField.h"

#include "platform/Settings.h"
#include "window/calendars/RateEditing.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/LetterWidth.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace quillet {

EditedRate sharedRate(SettingsStore& settings) {
    return {.owner = [] { return QString(); },
            .rate =
                [&settings] {
                    const Decimal rate = settings::hourlyRate.read(settings);
                    return std::optional(rate.isNaN() ? Decimal() : rate);
                },
            .setRate =
                [&settings](const Decimal& rate) {
                    if (settings::hourlyRate.read(settings) != rate) {
                        settings::hourlyRate.write(settings, rate);
                    }
                },
            .remember = [&settings]() -> std::function<void()> {
                return [&settings, old = settings.object(settings::hourlyRate.name())] {
                    if (settings.object(settings::hourlyRate.name()) != old) {
                        settings.setObject(settings::hourlyRate.name(), old);
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
    edit_->setMaximumWidth(letterWidth(fontMetrics()) * 16);
    setFocusProxy(edit_);
    complaint_->setTextFormat(Qt::PlainText);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit_);
    layout->addWidget(complaint_, 1);
    observeWhileAlive(*this, settings, settings::hourlyRate, [this] { editing_->refresh(); });
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
