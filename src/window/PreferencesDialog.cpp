#include "window/PreferencesDialog.h"

#include "eventtable/EventColumns.h"
#include "platform/Localized.h"
#include "window/SettingsBinding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

/// What the tabs show.
constexpr std::array panes{PreferencesPane::General, PreferencesPane::Columns,
                           PreferencesPane::Csv};

using TimeColumns = PreferencesColumnsViewController;

struct HiddenFlag {
    bool (TimeColumns::*isHidden)() const = nullptr;
    void (TimeColumns::*changed)() = nullptr;
};

/// Null for a column that belongs to every time type.
HiddenFlag hiddenFlagOf(const QString& columnIdentifier) {
    if (columnIdentifier == u"hours") {
        return {&TimeColumns::isHoursHidden, &TimeColumns::isHoursHiddenChanged};
    }
    if (columnIdentifier == u"minutes") {
        return {&TimeColumns::isMinutesHidden, &TimeColumns::isMinutesHiddenChanged};
    }
    if (columnIdentifier == u"duration") {
        return {&TimeColumns::isDurationHidden, &TimeColumns::isDurationHiddenChanged};
    }
    return {};
}

} // namespace

PreferencesDialog::PreferencesDialog(SettingsStore& settings,
                                     std::function<void()> resetAllColumnTitles, QWidget* parent)
    : QDialog(parent)
    , settings_(settings)
    , timeColumns_(settings)
    , pages_(new QTabWidget(this)) {
    pages_->addTab(makeGeneralPage(), localized("General"));
    pages_->addTab(makeColumnsPage(std::move(resetAllColumnTitles)), localized("Columns"));
    pages_->addTab(makeCsvPage(), localized("CSV/TSV"));
    connect(pages_, &QTabWidget::currentChanged, this,
            [this](int tab) { Q_EMIT paneChosen(panes.at(static_cast<std::size_t>(tab))); });
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
}

PreferencesDialog::~PreferencesDialog() {
    // Tabs that go one by one at the end are not chosen by anybody.
    pages_->disconnect(this);
}

void PreferencesDialog::showPane(PreferencesPane pane) {
    if (const auto* found = std::ranges::find(panes, pane); found != panes.end()) {
        const QSignalBlocker blocker(pages_);
        pages_->setCurrentIndex(static_cast<int>(found - panes.begin()));
    }
}

QWidget* PreferencesDialog::makeCheckBox(const QString& text, const char* key) {
    auto* box = new QCheckBox(text, this);
    bindCheckBox(*box, settings_, QString::fromLatin1(key));
    return box;
}

QWidget* PreferencesDialog::makeGeneralPage() {
    auto* page = new QWidget(this);
    auto* form = new QFormLayout(page);
    auto* hours = new QSpinBox(page);
    constexpr int hoursOfADay = 24;
    hours->setRange(0, hoursOfADay);
    bindSpinBox(*hours, settings_, QStringLiteral("allDayHours"));
    form->addRow(localized("&Hours of an all-day event's day:"), hours);
    form->addRow({},
                 makeCheckBox(localized("&Leave all-day events out"), "allDayEventsNotIncluded"));
    form->addRow({}, makeCheckBox(localized("Show &money"), "isDollarsOn"));
    form->addRow({}, makeCheckBox(localized("&One rate for all calendars"), "isSingleRate"));
    auto* timeType = new QComboBox(page);
    timeType->addItem(localized("Hours"), 1);
    timeType->addItem(localized("Minutes"), 2);
    timeType->addItem(localized("Duration"), 3);
    bindComboBox(*timeType, settings_, QStringLiteral("timeTypeSelection"));
    form->addRow(localized("Show &time as:"), timeType);
    auto* encoding = new QComboBox(page);
    encoding->addItem(QStringLiteral("UTF-8"), 0);
    encoding->addItem(QStringLiteral("UTF-16"), 1);
    bindComboBox(*encoding, settings_, QStringLiteral("fileEncodingPopUpIndex"));
    form->addRow(localized("Text &encoding of saved files:"), encoding);
    return page;
}

QWidget* PreferencesDialog::makeColumnsPage(std::function<void()> resetAllColumnTitles) {
    auto* page = new QWidget(this);
    auto* grid = new QGridLayout(page);
    // The three time columns share a place, as they do in the table.
    const int places = static_cast<int>(eventColumns().size()) - 2;
    int timePlace = -1;
    int nextPlace = 0;
    for (const EventColumn& column : eventColumns()) {
        const QString identifier = QString::fromLatin1(column.identifier);
        const auto [isHidden, changed] = hiddenFlagOf(identifier);
        const bool isTime = isHidden != nullptr;
        const int place = isTime && timePlace >= 0 ? timePlace : nextPlace++;
        timePlace = isTime ? place : timePlace;
        auto* box = new QCheckBox(localized(column.defaultTitle), page);
        bindCheckBox(*box, settings_, QString::fromLatin1(column.visibilityKey));
        auto* title = new QLineEdit(page);
        title->setAccessibleName(localized("Title of “%1”").arg(localized(column.defaultTitle)));
        bindLineEdit(*title, settings_, QString::fromLatin1(column.titleKey));
        grid->addWidget(box, place % (places / 2), place / (places / 2) * 2);
        grid->addWidget(title, place % (places / 2), place / (places / 2) * 2 + 1);
        if (isTime) {
            connect(&timeColumns_, changed, page, [this, box, title, isHidden] {
                box->setHidden((timeColumns_.*isHidden)());
                title->setHidden((timeColumns_.*isHidden)());
            });
        }
    }
    timeColumns_.awakeFromNib();
    auto* reset = new QPushButton(localized("&Reset All Titles"), page);
    reset->setObjectName(QStringLiteral("resetAllColumnTitles"));
    connect(reset, &QPushButton::clicked, this, std::move(resetAllColumnTitles));
    grid->addWidget(reset, grid->rowCount(), 0, 1, -1, Qt::AlignRight);
    return page;
}

QWidget* PreferencesDialog::makeCsvPage() {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    constexpr std::array<std::pair<const char*, const char*>, 7> switches{{
        {"Write a &header record", "isCSVHeader"},
        {"Write the event's &identifier", "isCSVIncludeUID"},
        {"Quote &titles", "isCSVQuotesForTitle"},
        {"Quote &notes", "isCSVQuotesForNote"},
        {"Quote &locations", "isCSVQuotesForLocation"},
        {"Quote &calendars", "isCSVQuotesForCalendar"},
        {"Replace line &breaks by blanks", "isCSVRemoveReturns"},
    }};
    for (const auto& [text, key] : switches) {
        layout->addWidget(makeCheckBox(localized(text), key));
    }
    layout->addStretch();
    return page;
}

} // namespace quillet
