#include "window/exports/ReportPane.h"

#include "texts/Localized.h"
#include "window/exports/ReportView.h"

#include <QPointer>
#include <QPushButton>

namespace quillet {

namespace {

/// A report of so many events is built within a frame.
constexpr std::size_t fewEvents = 1000;

} // namespace

ReportPane::ReportPane(ExportTxtViewController& report, Building building,
                       std::function<void()> showOptions, Actions actions, QWidget* parent)
    : ReportPane(new ReportView, report, building, std::move(showOptions), std::move(actions),
                 parent) {}

ReportPane::ReportPane(ReportView* view, ExportTxtViewController& report, Building building,
                       std::function<void()> showOptions, Actions actions, QWidget* parent)
    : ExportPane(localized("Text Report"), *view, std::move(actions), parent)
    , view_(view)
    , report_(report)
    , building_(building) {
    auto* options = new QPushButton(localized("Op&tions…"), this);
    options->setAutoDefault(false);
    options->setToolTip(localized("Choose what the report tells"));
    connect(options, &QPushButton::clicked, this, std::move(showOptions));
    addTool(*options);
    refreshing_.setSingleShot(true);
    refreshing_.setInterval(0);
    connect(&refreshing_, &QTimer::timeout, this, &ReportPane::refresh);
    connect(&report_, &ExportTxtViewController::eventsAttributedStringChanged, &refreshing_,
            qOverload<>(&QTimer::start));
}

ReportPane::~ReportPane() {
    if (isGivenUp_) {
        *isGivenUp_ = true;
    }
}

void ReportPane::refresh() {
    if (isGivenUp_) {
        *isGivenUp_ = true;
    }
    TextReportContent content = report_.content();
    if (content.events.size() <= fewEvents) {
        show(TextLines(textReport(content)->text()));
    } else {
        buildInBackground(std::move(content));
    }
}

std::optional<QString> ReportPane::shownText() const {
    return refreshing_.isActive() || isBuilding_ ? std::nullopt : std::optional(view_->text());
}

void ReportPane::buildInBackground(TextReportContent content) {
    isBuilding_ = true;
    isGivenUp_ = std::make_shared<std::atomic<bool>>(false);
    content.formats = &building_.formats;
    content.calendar = &building_.calendar;
    setRemark(localized("Updating…"));
    building_.background.async([self = QPointer(this), isGivenUp = isGivenUp_,
                                &main = building_.main, content = std::move(content)] {
        const auto report = textReport(content, [&isGivenUp](std::size_t, std::size_t) {
            return *isGivenUp ? ExportAnswer::Cancel : ExportAnswer::GoOn;
        });
        if (!report) {
            return;
        }
        auto lines = std::make_shared<TextLines>(report->text());
        main.async([self, isGivenUp, lines] {
            if (self && !*isGivenUp) {
                self->show(std::move(*lines));
            }
        });
    });
}

void ReportPane::show(TextLines lines) {
    isBuilding_ = false;
    setRemark({});
    view_->setLines(std::move(lines));
}

} // namespace quillet
