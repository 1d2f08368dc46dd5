#include "results/EventResultsViewController.h"

#include "eventtable/EventColumns.h"
#include "platform/Settings.h"

namespace quillet {

namespace {

/// Every character that ends a line.
const QString newlineCharacters = QStringLiteral("\n\v\f\r\u0085\u2028\u2029");

} // namespace

EventResultsViewController::EventResultsViewController(const Collaborators& collaborators)
    : with_(collaborators) {}

void EventResultsViewController::awakeFromNib() {
    settings::totalsTabViewSelection.reset(with_.settings);
    settings::timeTypeSelection.writeIfAbsent(with_.settings);
    observations_.push_back(settings::timeTypeSelection.observe(
        with_.settings, [this] { observeValueForKeyPath(settings::timeTypeSelection.name()); }));
    followValues();
    Q_EMIT tabContentInstalled(ResultsTab::AllEvents);
    Q_EMIT tabContentInstalled(ResultsTab::SelectedEvents);
    setHiddenControls();
    configureTokenFields();
}

void EventResultsViewController::observeValueForKeyPath(const QString& keyPath) {
    if (keyPath == settings::timeTypeSelection.name()) {
        setHiddenControls();
    }
}

void EventResultsViewController::setHiddenControls() {
    Q_EMIT isHoursHiddenWillChange();
    Q_EMIT isMinutesHiddenWillChange();
    Q_EMIT isDurationHiddenWillChange();
    const qint64 selection = settings::timeTypeSelection.read(with_.settings);
    if (selection >= 1 && selection <= 3) {
        const auto timeType = static_cast<TimeType>(selection);
        isHoursHidden_ = timeType != TimeType::Hours;
        isMinutesHidden_ = timeType != TimeType::Minutes;
        isDurationHidden_ = timeType != TimeType::Duration;
    }
    Q_EMIT isHoursHiddenChanged();
    Q_EMIT isMinutesHiddenChanged();
    Q_EMIT isDurationHiddenChanged();
}

void EventResultsViewController::configureTokenFields() {
    for (const ResultsTab tab : {ResultsTab::AllEvents, ResultsTab::SelectedEvents}) {
        for (const ResultField field : resultFields()) {
            Q_EMIT tokenizingCharactersChanged(resultFieldName(tab, field), newlineCharacters);
        }
    }
}

void EventResultsViewController::followValues() {
    connect(&with_.billing, &BillingSettingsSource::changed, this,
            &EventResultsViewController::forgetTotals);
    const auto& list = with_.eventsArrayController;
    connect(&list, &ListControllerNotices::arrangedObjectsChanged, this,
            &EventResultsViewController::forgetTotals);
    connect(&list, &ListControllerNotices::selectedObjectsChanged, this,
            &EventResultsViewController::forgetTotals);
    connect(&with_.eventsController, &EventsController::aggregateChanged, this,
            &EventResultsViewController::textsChanged);
}

void EventResultsViewController::forgetTotals() {
    for (auto& totals : totals_) {
        totals.reset();
    }
    Q_EMIT textsChanged();
}

const EventTotals& EventResultsViewController::totals(ResultsTab tab) {
    auto& totals = totals_.at(static_cast<std::size_t>(tab));
    if (!totals) {
        // First: taking a snapshot may repair settings, and that forgets all totals.
        const BillingSettings& billing = with_.billing.current();
        totals.emplace(billing);
        const auto& list = with_.eventsArrayController;
        if (tab == ResultsTab::SelectedEvents) {
            for (const std::size_t row : list.selectedRows()) {
                totals->add(list.arranged(row));
            }
        } else {
            for (std::size_t row = 0; row < list.arrangedCount(); ++row) {
                totals->add(list.arranged(row));
            }
        }
    }
    return *totals;
}

QVariant EventResultsViewController::aggregate(ResultsTab tab, ResultField field) const {
    using Aggregate = EventsController::Aggregate;
    const bool isSelected = tab == ResultsTab::SelectedEvents;
    const auto value = [&](Aggregate all, Aggregate selected) {
        return with_.eventsController.aggregate(isSelected ? selected : all);
    };
    switch (field) {
    case ResultField::SumDuration:
        return value(Aggregate::TotalDuration, Aggregate::TotalSelectedDuration);
    case ResultField::AvgDuration:
        return value(Aggregate::AvgDuration, Aggregate::AvgSelectedDuration);
    case ResultField::MinDuration:
        return value(Aggregate::MinDuration, Aggregate::MinSelectedDuration);
    case ResultField::MaxDuration:
        return value(Aggregate::MaxDuration, Aggregate::MaxSelectedDuration);
    default:
        return value(Aggregate::TotalDays, Aggregate::TotalSelectedDays);
    }
}

QString EventResultsViewController::text(ResultsTab tab, ResultField field) {
    const EventTotals& figures = totals(tab);
    const auto number = [this](const std::optional<Decimal>& value) {
        return value ? with_.formats.number(*value) : QString();
    };
    switch (field) {
    case ResultField::SumCost: {
        const auto cost = figures.sumCost();
        return cost ? with_.formats.currency(*cost) : QString();
    }
    case ResultField::SumHours:
        return number(figures.sumHours());
    case ResultField::AvgHours:
        return number(figures.avgHours());
    case ResultField::MinHours:
        return number(figures.minHours());
    case ResultField::MaxHours:
        return number(figures.maxHours());
    case ResultField::SumMinutes:
        return number(figures.sumMinutes());
    case ResultField::AvgMinutes:
        return number(figures.avgMinutes());
    case ResultField::MinMinutes:
        return number(figures.minMinutes());
    case ResultField::MaxMinutes:
        return number(figures.maxMinutes());
    case ResultField::CountEvents:
        return QString::number(figures.count());
    default:
        return stringFromValue(aggregate(tab, field));
    }
}

} // namespace quillet
