#include "window/period/PeriodLabels.h"

#include <QWidget>

namespace quillet {

namespace {

void writeIfOther(SettingsStore& settings, const QString& key, const QVariant& value) {
    if (settings.object(key) != value) {
        settings.setObject(key, value);
    }
}

} // namespace

void followReportingPeriod(EventItemViewController& labels, DateInspectorController& inspector,
                           SettingsStore& settings) {
    const auto follow = [&labels, &inspector, &settings] {
        writeIfOther(settings, QStringLiteral("quickDatePeriodIndex"),
                     inspector.quickDatePeriodIndex());
        writeIfOther(settings, QStringLiteral("isCustomDateOn"), inspector.isCustomDateOn());
        writeIfOther(settings, QStringLiteral("eventStartDate"),
                     settings.object(QStringLiteral("filterStartDate")));
        writeIfOther(settings, QStringLiteral("eventEndDate"),
                     settings.object(QStringLiteral("filterEndDate")));
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
