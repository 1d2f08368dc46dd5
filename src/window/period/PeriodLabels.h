#pragma once

#include "eventtable/EventItemViewController.h"
#include "period/DateInspectorController.h"

class QWidget;

namespace quillet {

/// Keeps the labels that stand with the event table, and the settings that they are made from, in
/// step with the reporting period from now on. All must live as long as the inspector.
void followReportingPeriod(EventItemViewController& labels, DateInspectorController& inspector,
                           SettingsStore& settings);

/// Lets assistive programs tell, with the table, what period its events are of.
void describeWithPeriod(QWidget& table, EventItemViewController& labels);

} // namespace quillet
