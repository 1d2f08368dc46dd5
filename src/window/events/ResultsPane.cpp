#include "window/events/ResultsPane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/Figure.h"
#include "window/widgets/FoldingRow.h"
#include "window/widgets/SegmentedControl.h"

#include <QHBoxLayout>
#include <QTimer>

namespace quillet {

ResultsPane::ResultsPane(SettingsStore& settings, QWidget* parent)
    : QWidget(parent)
    , settings_(settings)
    , chooser_(new SegmentedControl(localized("Results"), this))
    , row_(new QHBoxLayout(this)) {
    makeChooser();
    makeFigures();
    arrange();
    for (const SettingKey* setting :
         settingGroup(settings::totalsTabViewSelection, settings::isDollarsOn)) {
        observeWhileAlive(*this, settings_, *setting, [this] { scheduleRefresh(); });
    }
}

ResultsPane::~ResultsPane() = default;

void ResultsPane::makeChooser() {
    chooser_->addSegment(localized("All Events"));
    chooser_->addSegment(localized("Selected Events"));
    connect(chooser_, &SegmentedControl::picked, this, [this](int tab) {
        if (tab != settings::totalsTabViewSelection.read(settings_)) {
            settings::totalsTabViewSelection.write(settings_, tab);
        }
    });
}

void ResultsPane::makeFigures() {
    constexpr std::array texts{localizable("Events"),   localizable("Total"),
                               localizable("Shortest"), localizable("Longest"),
                               localizable("Average"),  localizable("Days"),
                               localizable("Cost")};
    for (int position = 0; position < PositionCount; ++position) {
        const char* text = texts.at(static_cast<std::size_t>(position));
        const auto size =
            position == Total || position == Cost ? Figure::Size::Large : Figure::Size::Small;
        auto* made = new Figure(localized(text), size, this);
        made->setObjectName(QString::fromLatin1(text).toLower());
        // All figures are one stop of the Tab key, at which they are said together.
        made->setFocusPolicy(position == Total ? Qt::StrongFocus : Qt::ClickFocus);
        figures_.at(static_cast<std::size_t>(position)) = made;
    }
}

void ResultsPane::arrange() {
    auto* others = new FoldingRow(this);
    for (const Position position : {Events, Days, Average, Longest, Shortest}) {
        others->addWidget(figure(position));
    }
    const int unit = fontMetrics().height() / 4;
    row_->setContentsMargins(unit * 4, 0, unit * 2, unit * 2);
    row_->setSpacing(unit * 4);
    row_->addWidget(&figure(Total));
    row_->addWidget(&figure(Cost));
    row_->addWidget(others, 1);
    row_->addWidget(chooser_);
}

void ResultsPane::addControl(QWidget& control) {
    row_->addWidget(&control);
}

Figure& ResultsPane::figure(Position position) const {
    return *figures_.at(static_cast<std::size_t>(position));
}

void ResultsPane::follow(EventResultsViewController& controller) {
    controller_ = &controller;
    connect(controller_, &EventResultsViewController::textsChanged, this,
            &ResultsPane::scheduleRefresh);
    connect(controller_, &EventResultsViewController::isDurationHiddenChanged, this,
            &ResultsPane::scheduleRefresh);
    refresh();
}

void ResultsPane::scheduleRefresh() {
    // Many values change one by one; they are shown once.
    if (!isRefreshScheduled_) {
        isRefreshScheduled_ = true;
        QTimer::singleShot(0, this, &ResultsPane::refresh);
    }
}

ResultsTab ResultsPane::shownTab() const {
    return settings::totalsTabViewSelection.read(settings_) == 1 ? ResultsTab::SelectedEvents
                                                                 : ResultsTab::AllEvents;
}

std::array<ResultField, ResultsPane::PositionCount> ResultsPane::shownFields() const {
    using enum ResultField;
    if (!controller_->isHoursHidden()) {
        return {CountEvents, SumHours, MinHours, MaxHours, AvgHours, TotalDays, SumCost};
    }
    if (!controller_->isMinutesHidden()) {
        return {CountEvents, SumMinutes, MinMinutes, MaxMinutes, AvgMinutes, TotalDays, SumCost};
    }
    return {CountEvents, SumDuration, MinDuration, MaxDuration, AvgDuration, TotalDays, SumCost};
}

void ResultsPane::refresh() {
    isRefreshScheduled_ = false;
    if (controller_ == nullptr) {
        return;
    }
    chooser_->setChosen(static_cast<int>(shownTab()));
    const auto fields = shownFields();
    for (int position = 0; position < PositionCount; ++position) {
        const QString value =
            controller_->text(shownTab(), fields.at(static_cast<std::size_t>(position)));
        if (position == Total) {
            showTotal(value);
        } else {
            figure(static_cast<Position>(position)).setValue(value);
        }
    }
    figure(Cost).setVisible(settings::isDollarsOn.read(settings_));
    figure(Total).setAccessibleDescription(spokenFigures());
    Q_EMIT shown();
}

void ResultsPane::showTotal(const QString& value) {
    const bool isOne = value == QLatin1StringView("1");
    QString unit;
    // A duration says its own units.
    spokenTotal_ = value;
    if (!controller_->isHoursHidden()) {
        unit = localized("h");
        spokenTotal_ = (isOne ? localized("%1 hour") : localized("%1 hours")).arg(value);
    } else if (!controller_->isMinutesHidden()) {
        unit = localized("min");
        spokenTotal_ = (isOne ? localized("%1 minute") : localized("%1 minutes")).arg(value);
    }
    figure(Total).setValue(value, unit, spokenTotal_);
}

QString ResultsPane::spokenTotals() const {
    const QString count = figure(Events).text();
    QStringList parts{
        (count == QLatin1StringView("1") ? localized("%1 event") : localized("%1 events"))
            .arg(count),
        spokenTotal_};
    if (settings::isDollarsOn.read(settings_)) {
        parts << figure(Cost).text();
    }
    return parts.join(QStringLiteral(", "));
}

QString ResultsPane::spokenFigures() const {
    QStringList parts;
    for (const Position position : {Events, Total, Cost, Days, Average, Longest, Shortest}) {
        if (position != Cost || settings::isDollarsOn.read(settings_)) {
            parts << figure(position).accessibleName();
        }
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace quillet
