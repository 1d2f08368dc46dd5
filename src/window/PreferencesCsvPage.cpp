#include "window/PreferencesCsvPage.h"

#include "platform/Localized.h"

#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

constexpr std::array<PreferencesSwitch, 2> recordSwitches{{
    {"isCSVHeader", "Write a &header record", "The first line of the file names the columns"},
    {"isCSVIncludeUID", "Write the event's &identifier",
     "The first column is the calendar's own identifier of the event"},
}};

constexpr std::array<PreferencesSwitch, 4> quoteSwitches{{
    {"isCSVQuotesForTitle", "&Titles", nullptr},
    {"isCSVQuotesForNote", "&Notes", nullptr},
    {"isCSVQuotesForLocation", "&Locations", nullptr},
    {"isCSVQuotesForCalendar", "C&alendars", nullptr},
}};

constexpr std::array<PreferencesSwitch, 1> lineSwitches{{
    {"isCSVRemoveReturns", "Replace line &breaks by blanks",
     "In titles, notes, locations and calendars, for programs that take every line for an event"},
}};

} // namespace

PreferencesCsvPage::PreferencesCsvPage(SettingsStore& settings, QWidget* parent)
    : PreferencesPage(settings, parent) {
    auto* layout = new QVBoxLayout(&body());
    layout->addWidget(makeNote(localized("These hold for CSV and TSV files alike.")));
    layout->addWidget(makeGroup(localized("Records"), recordSwitches, 1));
    QWidget* quotes = makeGroup(localized("In Quotation Marks"), quoteSwitches, 2);
    quotes->setToolTip(localized("Quoted fields may hold separators and quotation marks"));
    layout->addWidget(quotes);
    layout->addWidget(makeGroup(localized("Line Breaks"), lineSwitches, 1));
    layout->addStretch();
}

} // namespace quillet
