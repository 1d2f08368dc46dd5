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

#include <array>
#include <utility>

namespace quillet {

PreferencesDialog::PreferencesDialog(SettingsStore& settings,
                                     std::function<void()> resetAllColumnTitles, QWidget* parent)
    : QDialog(parent)
    , settings_(settings) {
    setWindowTitle(localized("Preferences"));
    auto* pages = new QTabWidget(this);
    pages->addTab(makeGeneralPage(), localized("General"));
    pages->addTab(makeColumnsPage(std::move(resetAllColumnTitles)), localized("Columns"));
    pages->addTab(makeCsvPage(), localized("CSV"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages);
    layout->addWidget(buttons);
}

PreferencesDialog::~PreferencesDialog() = default;

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
    for (int number = 0; std::cmp_less(number, eventColumns().size()); ++number) {
        const EventColumn& column = eventColumns()[static_cast<std::size_t>(number)];
        auto* box = new QCheckBox(localized(column.defaultTitle), page);
        bindCheckBox(*box, settings_, QString::fromLatin1(column.visibilityKey));
        auto* title = new QLineEdit(page);
        title->setAccessibleName(localized("Title of “%1”").arg(localized(column.defaultTitle)));
        bindLineEdit(*title, settings_, QString::fromLatin1(column.titleKey));
        const int half = static_cast<int>(eventColumns().size()) / 2;
        grid->addWidget(box, number % half, number / half * 2);
        grid->addWidget(title, number % half, number / half * 2 + 1);
    }
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
