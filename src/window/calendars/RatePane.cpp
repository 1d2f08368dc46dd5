#include "window/calendars/RatePane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/calendars/HourlyRateField.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/ElidedLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace quillet {

RatePane::RatePane(CalendarsArrayController& calendars, EventItemViewController& labels,
                   SettingsStore& settings, const LocaleFormats& formats, QWidget* parent)
    : QWidget(parent)
    , calendars_(calendars)
    , labels_(labels)
    , settings_(settings)
    , label_(new ElidedLabel(this))
    , field_(new QLineEdit(this))
    , complaint_(new ElidedLabel(this))
    , editing_(new RateEditing(*field_, *complaint_, formats, editedRate())) {
    auto* single = new QCheckBox(localized("&One rate for all calendars"), this);
    bindCheckBox(*single, settings_, settings::isSingleRate);
    field_->setAccessibleName(localized("Hourly Rate"));
    const int digit = fontMetrics().horizontalAdvance(u'0');
    field_->setMinimumWidth(digit * 8);
    field_->setMaximumWidth(digit * 12);

    const int space = fontMetrics().height() / 2;
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(space, space, space, space);
    layout->setSpacing(space);
    layout->addWidget(label_);
    layout->addWidget(field_);
    layout->addWidget(complaint_);
    layout->addStretch();
    layout->addWidget(single);

    connect(&labels_, &EventItemViewController::hourlyRateLabelStringChanged, this,
            &RatePane::refresh);
    connect(&calendars_, &ListControllerNotices::selectedObjectsChanged, this, &RatePane::refresh);
    for (const SettingKey* key :
         settingGroup(settings::isSingleRate, settings::hourlyRate, settings::calendars)) {
        observeWhileAlive(*this, settings_, *key, [this] { refresh(); });
    }
    refresh();
}

RatePane::~RatePane() {
    // The field's end is nobody's editing.
    field_->disconnect(editing_);
}

bool RatePane::isSingleRate() const {
    return settings::isSingleRate.read(settings_);
}

void RatePane::refresh() {
    const bool hasSelection = !calendars_.selectedRows().empty();
    field_->setEnabled(isSingleRate() || hasSelection);
    if (isSingleRate()) {
        label_->setText(
            QStringLiteral("%1: %2").arg(localized("Hourly Rate"), labels_.currencySymbol()));
    } else if (hasSelection) {
        label_->setText(labels_.hourlyRateLabelString());
    } else {
        label_->setText(localized("Select a calendar to set its hourly rate"));
    }
    editing_->refresh();
}

EditedRate RatePane::editedRate() {
    const EditedRate shared = sharedRate(settings_);
    const auto selected = [this] {
        return isSingleRate() ? std::vector<CalendarRecord>() : calendars_.selectedObjects();
    };
    return {.owner =
                [selected] {
                    QStringList identifiers;
                    for (const CalendarRecord& calendar : selected()) {
                        identifiers << calendar.calendarIdentifier;
                    }
                    return identifiers.join(u'\n');
                },
            .rate = [this, shared, selected]() -> std::optional<Decimal> {
                if (isSingleRate()) {
                    return shared.rate();
                }
                const std::vector<CalendarRecord> calendars = selected();
                return calendars.empty()
                           ? std::nullopt
                           : std::optional(calendars.front().rate.value_or(Decimal()));
            },
            .setRate =
                [this, shared, selected](const Decimal& rate) {
                    if (isSingleRate()) {
                        shared.setRate(rate);
                    }
                    for (const CalendarRecord& calendar : selected()) {
                        setRate(calendar.calendarIdentifier, rate);
                    }
                },
            .remember = [this, shared, selected]() -> std::function<void()> {
                if (isSingleRate()) {
                    return shared.remember();
                }
                return [this, old = selected()] {
                    for (const CalendarRecord& calendar : old) {
                        setRate(calendar.calendarIdentifier, calendar.rate.value_or(Decimal()));
                    }
                };
            }};
}

void RatePane::setRate(const QString& calendarIdentifier, const Decimal& rate) {
    for (std::size_t row = 0; row < calendars_.arrangedCount(); ++row) {
        const CalendarRecord& calendar = calendars_.arranged(row);
        if (calendar.calendarIdentifier == calendarIdentifier &&
            calendar.rate.value_or(Decimal()) != rate) {
            calendars_.setRate(row, rate);
        }
    }
}

} // namespace quillet
