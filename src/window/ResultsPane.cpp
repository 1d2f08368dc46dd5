#include "window/ResultsPane.h"

#include "platform/Localized.h"
#include "window/SettingsBinding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

namespace quillet {

namespace {

const QString selectionKey = QStringLiteral("totalsTabViewSelection");

QVBoxLayout* column(QLabel* name, QLabel* value) {
    auto* layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->addWidget(name);
    layout->addWidget(value);
    return layout;
}

} // namespace

ResultsPane::ResultsPane(EventsController& controller, ListController<Event>& events,
                         BillingSettingsSource& billing, const LocaleFormats& formats,
                         SettingsStore& settings, QWidget* parent)
    : QWidget(parent)
    , controller_(controller)
    , events_(events)
    , billing_(billing)
    , formats_(formats)
    , settings_(settings)
    , tabs_(new QTabBar(this))
    , count_(addFigure(localized("Events")))
    , total_(addFigure(localized("Total")))
    , shortest_(addFigure(localized("Shortest")))
    , longest_(addFigure(localized("Longest")))
    , average_(addFigure(localized("Average")))
    , days_(addFigure(localized("Days")))
    , cost_(addFigure(localized("Cost"))) {
    tabs_->addTab(localized("All Events"));
    tabs_->addTab(localized("Selected Events"));
    tabs_->setDocumentMode(true);
    tabs_->setExpanding(false);
    tabs_->setAccessibleName(localized("Results"));
    const int space = fontMetrics().height() / 2;
    auto* row = new QHBoxLayout;
    row->setContentsMargins(space, space, space, space);
    row->setSpacing(space * 4);
    for (const Figure& figure : {count_, total_, shortest_, longest_, average_, days_}) {
        row->addLayout(column(figure.name, figure.value));
    }
    row->addStretch();
    cost_.name->setAlignment(Qt::AlignRight);
    cost_.value->setAlignment(Qt::AlignRight);
    row->addLayout(column(cost_.name, cost_.value));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabs_);
    layout->addLayout(row);

    connect(tabs_, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab >= 0) {
            settings_.setObject(selectionKey, QVariant::fromValue<qint64>(tab));
        }
    });
    connect(tabs_, &QTabBar::currentChanged, this, [this](int tab) {
        if (tab != integerForKey(settings_, selectionKey)) {
            settings_.setObject(selectionKey, QVariant::fromValue<qint64>(tab));
        }
    });
    connect(&controller_, &EventsController::aggregateChanged, this, &ResultsPane::scheduleRefresh);
    for (const char* key : {"totalsTabViewSelection", "isDollarsOn", "timeTypeSelection"}) {
        observeWhileAlive(*this, settings_, QString::fromLatin1(key),
                          [this] { scheduleRefresh(); });
    }
    refresh();
}

ResultsPane::~ResultsPane() = default;

ResultsPane::Figure ResultsPane::addFigure(const QString& name) {
    const Figure figure{new QLabel(name, this), new QLabel(this)};
    figure.name->setForegroundRole(QPalette::PlaceholderText);
    figure.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figure.value->setAccessibleName(name);
    QFont font = figure.value->font();
    font.setBold(true);
    figure.value->setFont(font);
    return figure;
}

void ResultsPane::scheduleRefresh() {
    // The ten aggregates are announced one by one; they are shown once.
    if (!isRefreshScheduled_) {
        isRefreshScheduled_ = true;
        QTimer::singleShot(0, this, &ResultsPane::refresh);
    }
}

bool ResultsPane::showsSelection() const {
    return integerForKey(settings_, selectionKey) == 1;
}

void ResultsPane::refresh() {
    using Aggregate = EventsController::Aggregate;
    isRefreshScheduled_ = false;
    const bool isSelection = showsSelection();
    tabs_->setCurrentIndex(isSelection ? 1 : 0);
    const auto show = [&](const Figure& figure, Aggregate all, Aggregate selected) {
        figure.value->setText(controller_.aggregate(isSelection ? selected : all).toString());
    };
    count_.value->setText(formats_.number(Decimal::fromInteger(static_cast<std::int64_t>(
        isSelection ? events_.selectedRows().size() : events_.arrangedCount()))));
    show(total_, Aggregate::TotalDuration, Aggregate::TotalSelectedDuration);
    show(shortest_, Aggregate::MinDuration, Aggregate::MinSelectedDuration);
    show(longest_, Aggregate::MaxDuration, Aggregate::MaxSelectedDuration);
    show(average_, Aggregate::AvgDuration, Aggregate::AvgSelectedDuration);
    show(days_, Aggregate::TotalDays, Aggregate::TotalSelectedDays);
    const bool isMoneyOn = billing_.current().isMoneyOn;
    cost_.name->setVisible(isMoneyOn);
    cost_.value->setVisible(isMoneyOn);
    cost_.value->setText(isMoneyOn ? totalCost() : QString());
}

QString ResultsPane::totalCost() const {
    MoneySummary summary(billing_.current());
    if (showsSelection()) {
        for (const std::size_t row : events_.selectedRows()) {
            summary.add(events_.arranged(row));
        }
    } else {
        for (std::size_t row = 0; row < events_.arrangedCount(); ++row) {
            summary.add(events_.arranged(row));
        }
    }
    return formats_.currency(summary.total());
}

} // namespace quillet
