#include "window/period/PeriodLabels.h"

#include "platform/Settings.h"

#include <QWidget>

namespace quillet {

namespace {

void writeIfOther(SettingsStore& store, const SettingKey& setting, const QVariant& value) {
    if (store.object(setting.name()) != value) {
        store.setObject(setting.name(), value);
    }
}

} // namespace

void followReportingPeriod(EventItemViewController& labels, DateInspectorController& inspector,
                           SettingsStore& settings) {
    const auto follow = [&labels, &inspector, &settings] {
        writeIfOther(settings, settings::quickDatePeriodIndex, inspector.quickDatePeriodIndex());
        writeIfOther(settings, settings::isCustomDateOn, inspector.isCustomDateOn());
        writeIfOther(settings, settings::eventStartDate,
                     settings.object(settings::filterStartDate.name()));
        writeIfOther(settings, settings::eventEndDate,
                     settings.object(settings::filterEndDate.name()));
        labels.setPeriodLabel();
        labels.setDateRangeLabel();
    };
    QObject::connect(&inspector, &DateInspectorController::labelsChanged, &labels, follow);
    QObject::connect(&inspector, &DateInspectorController::isCustomDateOnChanged, &labels, follow);
    follow();
}

void describeWithPeriod(QWidget& table, EventItemViewController& labels) {
    const auto describe = [&table, &labels] {
        table.setAccessibleDescription(QStringLiteral("%1, %2").arg(labels.periodLabelString(),
                                                                    labels.dateRangeLabelString()));
    };
    QObject::connect(&labels, &EventItemViewController::periodLabelStringChanged, &table, describe);
    QObject::connect(&labels, &EventItemViewController::dateRangeLabelStringChanged, &table,
                     describe);
    describe();
}

} // namespace quillet
