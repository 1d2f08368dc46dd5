#include "window/events/ResultsPane.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/preferences/SettingsBinding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

namespace quillet {

ResultsPane::ResultsPane(SettingsStore& settings, QWidget* parent)
    : QWidget(parent)
    , settings_(settings)
    , tabs_(new QTabBar(this)) {
    makeTabs();
    makeFigures();
    const int space = fontMetrics().height() / 2;
    auto* row = new QHBoxLayout;
    row->setContentsMargins(space, space, space, space);
    row->setSpacing(space);
    for (int position = 0; position < PositionCount; ++position) {
        if (position == Cost) {
            row->addStretch();
        } else if (position > 0) {
            // Gives way on a small screen.
            row->addSpacerItem(new QSpacerItem(space * 2, 0, QSizePolicy::Maximum));
        }
        auto* column = new QVBoxLayout;
        column->setSpacing(0);
        column->addWidget(names_.at(static_cast<std::size_t>(position)));
        column->addWidget(values_.at(static_cast<std::size_t>(position)));
        row->addLayout(column);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabs_);
    layout->addLayout(row);
}

ResultsPane::~ResultsPane() = default;

void ResultsPane::makeTabs() {
    tabs_->setDocumentMode(true);
    tabs_->setExpanding(false);
    tabs_->setDrawBase(false);
    tabs_->setAccessibleName(localized("Results"));
    tabs_->addTab(localized("All Events"));
    tabs_->addTab(localized("Selected Events"));
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
        if (tab != settings::totalsTabViewSelection.read(settings_)) {
            settings::totalsTabViewSelection.write(settings_, tab);
        }
    });
    for (const SettingKey* setting :
         settingGroup(settings::totalsTabViewSelection, settings::isDollarsOn)) {
        observeWhileAlive(*this, settings_, *setting, [this] { scheduleRefresh(); });
    }
}

void ResultsPane::makeFigures() {
    constexpr std::array texts{localizable("Events"),   localizable("Total"),
                               localizable("Shortest"), localizable("Longest"),
                               localizable("Average"),  localizable("Days"),
                               localizable("Cost")};
    for (std::size_t position = 0; position < texts.size(); ++position) {
        auto* name = new QLabel(localized(texts.at(position)), this);
        auto* value = new QLabel(this);
        QFont font = value->font();
        font.setBold(true);
        value->setFont(font);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        value->setObjectName(QString::fromLatin1(texts.at(position)).toLower());
        names_.at(position) = name;
        values_.at(position) = value;
    }
    names_.at(Cost)->setAlignment(Qt::AlignRight);
    values_.at(Cost)->setAlignment(Qt::AlignRight);
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
    tabs_->setCurrentIndex(static_cast<int>(shownTab()));
    const auto fields = shownFields();
    for (std::size_t position = 0; position < fields.size(); ++position) {
        values_.at(position)->setText(controller_->text(shownTab(), fields.at(position)));
    }
    const bool isMoneyOn = settings::isDollarsOn.read(settings_);
    names_.at(Cost)->setVisible(isMoneyOn);
    values_.at(Cost)->setVisible(isMoneyOn);
}

} // namespace quillet
