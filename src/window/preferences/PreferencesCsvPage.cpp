#include "window/preferences/PreferencesCsvPage.h"

#include "platform/Settings.h"
#include "texts/Localized.h"

#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quillet {

namespace {

constexpr std::array<PreferencesSwitch, 2> recordSwitches{{
    {&settings::isCSVHeader, localizable("Write a &header record"),
     localizable("The first line of the file names the columns")},
    {&settings::isCSVIncludeUID, localizable("Write the event's &identifier"),
     localizable("The first column is the calendar's own identifier of the event")},
}};

constexpr std::array<PreferencesSwitch, 4> quoteSwitches{{
    {&settings::isCSVQuotesForTitle, localizable("&Titles"), nullptr},
    {&settings::isCSVQuotesForNote, localizable("&Notes"), nullptr},
    {&settings::isCSVQuotesForLocation, localizable("&Locations"), nullptr},
    {&settings::isCSVQuotesForCalendar, localizable("C&alendars"), nullptr},
}};

constexpr std::array<PreferencesSwitch, 1> lineSwitches{{
    {&settings::isCSVRemoveReturns, localizable("Replace line &breaks by blanks"),
     localizable("In titles, notes, locations and calendars, for programs that take every line for "
                 "an event")},
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
    layout->addStretch(1);
}

} // namespace quillet
