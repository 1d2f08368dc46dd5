#include "window/RatePane.h"

#include "platform/Localized.h"
#include "window/ElidedLabel.h"
#include "window/SettingsBinding.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>

namespace quillet {

namespace {

const QString singleRateKey = QStringLiteral("isSingleRate");
const QString hourlyRateKey = QStringLiteral("hourlyRate");

} // namespace

RatePane::RatePane(CalendarsArrayController& calendars, EventItemViewController& labels,
                   SettingsStore& settings, const LocaleFormats& formats, QWidget* parent)
    : QWidget(parent)
    , calendars_(calendars)
    , labels_(labels)
    , settings_(settings)
    , formats_(formats)
    , label_(new ElidedLabel(this))
    , field_(new QLineEdit(this))
    , complaint_(new ElidedLabel(this)) {
    auto* single = new QCheckBox(localized("&One rate for all calendars"), this);
    bindCheckBox(*single, settings_, singleRateKey);
    field_->setObjectName(hourlyRateKey);
    field_->setAccessibleName(localized("Hourly Rate"));
    field_->setAlignment(Qt::AlignRight);
    const int unit = fontMetrics().averageCharWidth();
    field_->setMinimumWidth(unit * 10);
    field_->setMaximumWidth(unit * 16);
    complaint_->setObjectName(QStringLiteral("hourlyRateProblem"));

    const int space = fontMetrics().height() / 2;
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(space, space, space, space);
    layout->setSpacing(space);
    layout->addWidget(label_);
    layout->addWidget(field_);
    layout->addWidget(complaint_);
    layout->addStretch();
    layout->addWidget(single);

    connect(field_, &QLineEdit::editingFinished, this, &RatePane::takeRate);
    connect(field_, &QLineEdit::textEdited, complaint_, &QLabel::clear);
    connect(field_, &QLineEdit::textChanged, this, &RatePane::takeTextOfAssistiveProgram);
    connect(&labels_, &EventItemViewController::hourlyRateLabelStringChanged, this,
            &RatePane::refresh);
    connect(&calendars_, &ListControllerNotices::selectedObjectsChanged, this, &RatePane::refresh);
    for (const QString& key : {singleRateKey, hourlyRateKey, QStringLiteral("calendars")}) {
        observeWhileAlive(*this, settings_, key, [this] { refresh(); });
    }
    showRate();
}

RatePane::~RatePane() = default;

bool RatePane::isSingleRate() const {
    return boolForKey(settings_, singleRateKey);
}

void RatePane::refresh() {
    // What is being typed stays, whatever the calendars do meanwhile.
    if (!field_->isModified()) {
        showRate();
    }
}

void RatePane::showRate() {
    const bool hasSelection = !calendars_.selectedRows().empty();
    field_->setEnabled(isSingleRate() || hasSelection);
    if (isSingleRate()) {
        label_->setText(
            QStringLiteral("%1: %2").arg(localized("Hourly Rate"), labels_.currencySymbol()));
        const Decimal rate = decimalFromValue(settings_.object(hourlyRateKey));
        showText(formats_.number(rate.isNaN() ? Decimal() : rate));
    } else if (hasSelection) {
        label_->setText(labels_.hourlyRateLabelString());
        showText(formats_.number(
            calendars_.arranged(calendars_.selectedRows().front()).rate.value_or(Decimal())));
    } else {
        label_->setText(localized("Select a calendar to set its hourly rate"));
        showText({});
    }
}

void RatePane::showText(const QString& text) {
    shownText_ = text;
    field_->setText(text);
}

void RatePane::takeTextOfAssistiveProgram(const QString& text) {
    // They put in a whole text, as this pane does, and need not press a key then.
    if (!field_->isModified() && text != shownText_) {
        takeRate();
    }
}

void RatePane::takeRate() {
    field_->setModified(false);
    if (field_->text() == shownText_) {
        return;
    }
    const QString text = field_->text().trimmed();
    const Decimal rate = formats_.parsedNumber(text);
    if (rate.isNaN() || rate.isNegative()) {
        showRate();
        complaint_->setText(localized("“%1” is not a rate; the old one was kept.").arg(text));
        return;
    }
    complaint_->clear();
    if (isSingleRate()) {
        settings_.setObject(hourlyRateKey, QVariant::fromValue(rate));
        return;
    }
    const std::vector<std::size_t> rows = calendars_.selectedRows();
    for (const std::size_t row : rows) {
        calendars_.setRate(row, rate);
    }
}

} // namespace quillet
