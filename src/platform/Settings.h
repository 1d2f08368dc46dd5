#pragma once

#include "platform/Setting.h"
#include "texts/Localized.h"

/// All settings: each key stands here and nowhere else. `docs/settings.md` tells them to users; a
/// test compares the two.
///
/// Settings with a first-run value are written with it by their owner where they are absent; those
/// that are transient are reset to it at every start.
namespace quillet::settings {

/// @name General
/// @{

/// Which main view is shown; in 0, the events view, alone events are fetched.
inline constexpr Setting<qint64> viewMode{"viewMode", 0};
/// Hours for which one day of an all-day event counts; above 24 it is written back as 24.
inline constexpr Setting<qint64> allDayHours{"allDayHours", 24};
/// All-day events are left out of what is fetched.
inline constexpr Setting<bool> allDayEventsNotIncluded{"allDayEventsNotIncluded", false};
/// The calendars may be read.
inline constexpr Setting<bool> isCalendarAccessGranted{"isCalendarAccessGranted", false};
/// The user ignored the notice about a browser that breaks styled mails; any stored value does.
inline constexpr Setting<bool> safari50ExportNotice{"safari50ExportNotice"};
/// Exports are UTF-16 when 1, else UTF-8.
inline constexpr Setting<qint64> fileEncodingPopUpIndex{"fileEncodingPopUpIndex", 0};
/// A fetch runs, and no other may begin. Transient.
inline constexpr Setting<bool> isProgressIndicatorOn{"isProgressIndicatorOn", false};
/// A signal: every write asks for a fetch.
inline constexpr Setting<bool> datesChangedTrigger{"datesChangedTrigger", false};
/// Position of the preferences' pane. Transient.
inline constexpr Setting<qint64> selectedPreferencesToolbarItem{"selectedPreferencesToolbarItem",
                                                                0};
/// @}

/// @name Money
/// @{

/// Rates and costs are shown and computed.
inline constexpr Setting<bool> isDollarsOn{"isDollarsOn", false};
/// One rate for all calendars.
inline constexpr Setting<bool> isSingleRate{"isSingleRate", true};
/// That rate, money per hour; written once money is on.
inline constexpr Setting<Decimal> hourlyRate{"hourlyRate", 0};
/// Marks that a text rate of an old version has been brought up to date, and holds that text where
/// there was one.
inline constexpr Setting<Decimal> tempNumberRate{"tempNumberRate", 1};
/// @}

/// @name Calendars and groups
/// @{

/// The calendar list: records with title, tick and rate.
inline constexpr Setting<QVariantList> calendars{"calendars"};
/// Named groups; the first means no restriction.
inline constexpr Setting<QVariantList> calendarGroups{"calendarGroups"};
/// That first group has been made.
inline constexpr Setting<bool> isDefaultAllCalendarsGroupCreated{
    "isDefaultAllCalendarsGroupCreated", true};
/// The groups sheet is open. Transient.
inline constexpr Setting<bool> isCalendarGroupsSheetActive{"isCalendarGroupsSheetActive", false};
/// Position of the chosen group.
inline constexpr Setting<qint64> calendarGroupsSelectedIndex{"calendarGroupsSelectedIndex", 0};
/// @}

/// @name Reporting period
/// @{

/// The period's kind: 0 day, 1 week, 2 month, 3 year, 4 custom.
inline constexpr Setting<qint64> quickDatePeriod{"quickDatePeriod", 1};
/// The kind that was applied last.
inline constexpr Setting<qint64> quickDatePeriodPreviousValue{"quickDatePeriodPreviousValue"};
/// The day from which a newly chosen kind is built; the first run stores this week's first.
inline constexpr Setting<Instant> selectedDate{"selectedDate"};
/// The period's first second; the first run stores this week's.
inline constexpr Setting<Instant> filterStartDate{"filterStartDate"};
/// The period's last second, 23:59:59 of its last day; the first run stores this week's.
inline constexpr Setting<Instant> filterEndDate{"filterEndDate"};
/// What the labels beside the event table read: follows `quickDatePeriod`.
inline constexpr Setting<qint64> quickDatePeriodIndex{"quickDatePeriodIndex"};
/// For the same labels: follows `filterStartDate`.
inline constexpr Setting<Instant> eventStartDate{"eventStartDate"};
/// For the same labels: follows `filterEndDate`.
inline constexpr Setting<Instant> eventEndDate{"eventEndDate"};
/// For the same labels: both ends of a custom period are free. Transient.
inline constexpr Setting<bool> isCustomDateOn{"isCustomDateOn", false};
/// @}

/// @name Columns of the event table: titles
/// @{
inline constexpr Setting<QString> dateColumnTitle{"dateColumnTitle", localizable("Start Date")};
inline constexpr Setting<QString> hoursColumnTitle{"hoursColumnTitle", localizable("Hours")};
inline constexpr Setting<QString> titleColumnTitle{"titleColumnTitle", localizable("Title")};
inline constexpr Setting<QString> notesColumnTitle{"notesColumnTitle", localizable("Notes")};
inline constexpr Setting<QString> urlColumnTitle{"urlColumnTitle", localizable("URL")};
inline constexpr Setting<QString> locationColumnTitle{"locationColumnTitle",
                                                      localizable("Location")};
inline constexpr Setting<QString> startWeekdayColumnTitle{"startWeekdayColumnTitle",
                                                          localizable("Start Weekday")};
inline constexpr Setting<QString> endWeekdayColumnTitle{"endWeekdayColumnTitle",
                                                        localizable("End Weekday")};
inline constexpr Setting<QString> costColumnTitle{"costColumnTitle", localizable("Cost")};
inline constexpr Setting<QString> startTimeColumnTitle{"startTimeColumnTitle",
                                                       localizable("Start Time")};
inline constexpr Setting<QString> endTimeColumnTitle{"endTimeColumnTitle", localizable("End Time")};
inline constexpr Setting<QString> endDateColumnTitle{"endDateColumnTitle", localizable("End Date")};
inline constexpr Setting<QString> calendarColumnTitle{"calendarColumnTitle",
                                                      localizable("Calendar")};
inline constexpr Setting<QString> rateColumnTitle{"rateColumnTitle", localizable("Rate")};
inline constexpr Setting<QString> durationColumnTitle{"durationColumnTitle",
                                                      localizable("Duration")};
inline constexpr Setting<QString> minutesColumnTitle{"minutesColumnTitle", localizable("Minutes")};
/// Written by applying a layout, which makes title keys of stems; read nowhere.
inline constexpr Setting<QString> weekdayColumnTitle{"weekdayColumnTitle"};
/// @}

/// @name Columns of the event table: which are shown
/// @{
inline constexpr Setting<bool> isDateColumn{"isDateColumn", true};
/// Of the three time columns the one that `timeTypeSelection` says.
inline constexpr Setting<bool> isHoursColumn{"isHoursColumn", true};
inline constexpr Setting<bool> isTitleColumn{"isTitleColumn", true};
inline constexpr Setting<bool> isNotesColumn{"isNotesColumn", false};
inline constexpr Setting<bool> isUrlColumn{"isUrlColumn", false};
inline constexpr Setting<bool> isLocationColumn{"isLocationColumn", false};
inline constexpr Setting<bool> isWeekdayColumn{"isWeekdayColumn", false};
inline constexpr Setting<bool> isEndWeekdayColumn{"isEndWeekdayColumn", false};
/// Only while `isDollarsOn`.
inline constexpr Setting<bool> isCostColumn{"isCostColumn", true};
inline constexpr Setting<bool> isStartTimeColumn{"isStartTimeColumn", false};
inline constexpr Setting<bool> isEndTimeColumn{"isEndTimeColumn", false};
inline constexpr Setting<bool> isEndDateColumn{"isEndDateColumn", false};
inline constexpr Setting<bool> isCalendarColumn{"isCalendarColumn", true};
/// Only while `isDollarsOn`.
inline constexpr Setting<bool> isRateColumn{"isRateColumn", false};
/// @}

/// @name The event table as a whole
/// @{

/// 1 hours, 2 minutes, 3 duration; with 1 money is computed from hours, else from minutes.
inline constexpr Setting<qint64> timeTypeSelection{"timeTypeSelection", 1};
/// A signal: flipped after each change of the visible columns.
inline constexpr Setting<bool> hiddenColumnsChangedTrigger{"hiddenColumnsChangedTrigger"};
/// Named column layouts.
inline constexpr Setting<QVariantList> columnLayouts{"columnLayouts"};
/// The first layout has been made.
inline constexpr Setting<bool> isDefaultColumnLayoutsCreated{"isDefaultColumnLayoutsCreated", true};
/// Applying a layout brings its titles back too.
inline constexpr Setting<bool> isColumnLayoutUsesNames{"isColumnLayoutUsesNames", true};
/// A layout is being applied, and who follows the columns holds back. Transient.
inline constexpr Setting<bool> isApplyColumnLayoutOn{"isApplyColumnLayoutOn", false};
/// @}

/// @name Results and notes
/// @{

/// 0 all events, 1 the selected events; exports follow it. Transient.
inline constexpr Setting<qint64> totalsTabViewSelection{"totalsTabViewSelection", 0};
/// The notes pane is open. Transient.
inline constexpr Setting<bool> isNotesViewOn{"isNotesViewOn", false};
/// What notes headings name.
inline constexpr Setting<bool> isEventNotesCalendar{"isEventNotesCalendar", true};
inline constexpr Setting<bool> isEventNotesDate{"isEventNotesDate", true};
inline constexpr Setting<bool> isEventNotesTitle{"isEventNotesTitle", true};
inline constexpr Setting<bool> isEventNotesLocation{"isEventNotesLocation", true};
/// @}

/// @name CSV and TSV
/// @{

/// Which texts are quoted and escaped.
inline constexpr Setting<bool> isCSVQuotesForTitle{"isCSVQuotesForTitle", true};
inline constexpr Setting<bool> isCSVQuotesForLocation{"isCSVQuotesForLocation", true};
inline constexpr Setting<bool> isCSVQuotesForNote{"isCSVQuotesForNote", true};
inline constexpr Setting<bool> isCSVQuotesForCalendar{"isCSVQuotesForCalendar", true};
/// A header record.
inline constexpr Setting<bool> isCSVHeader{"isCSVHeader", true};
/// Line feeds in these four texts become blanks.
inline constexpr Setting<bool> isCSVRemoveReturns{"isCSVRemoveReturns", false};
/// The event's identifier first.
inline constexpr Setting<bool> isCSVIncludeUID{"isCSVIncludeUID", false};
/// @}

/// @name Text report
/// @{

/// Texts that are longer than their column go on in the next line.
inline constexpr Setting<bool> isTXTWrapping{"isTXTWrapping", true};
/// A last row with sums.
inline constexpr Setting<bool> isTXTSummaryRow{"isTXTSummaryRow", true};
/// What stands above the table.
inline constexpr Setting<bool> isTXTTotalEvents{"isTXTTotalEvents", false};
inline constexpr Setting<bool> isTXTDollars{"isTXTDollars", true};
inline constexpr Setting<bool> isTXTTotalHours{"isTXTTotalHours", true};
inline constexpr Setting<bool> isTXTMax{"isTXTMax", false};
inline constexpr Setting<bool> isTXTMin{"isTXTMin", false};
inline constexpr Setting<bool> isTXTAverage{"isTXTAverage", false};
inline constexpr Setting<bool> isTXTEndDate{"isTXTEndDate", true};
inline constexpr Setting<bool> isTXTBeginDate{"isTXTBeginDate", true};
inline constexpr Setting<bool> isTXTCalTitle{"isTXTCalTitle", true};
inline constexpr Setting<bool> isTXTTotalDays{"isTXTTotalDays", false};
/// Free texts above and below the report.
inline constexpr Setting<QString> txtHeader{"txtHeader", ""};
inline constexpr Setting<QString> txtFooter{"txtFooter", ""};
/// The report's pane is open. Transient.
inline constexpr Setting<bool> isExportTXTViewOn{"isExportTXTViewOn", false};
/// Named presets of the report's switches and texts.
inline constexpr Setting<QVariantList> txtSettings{"txtSettings"};
/// The first preset has been made.
inline constexpr Setting<bool> isDefaultTXTSettingsCreated{"isDefaultTXTSettingsCreated", true};
/// A preset is being applied, and the report holds back. Transient.
inline constexpr Setting<bool> isApplyTXTSettingsOn{"isApplyTXTSettingsOn", false};
/// @}

/// @name Mail report of old versions
/// Become the preset "Mail" at start, and are removed.
/// @{
inline constexpr Setting<bool> isMailSummaryRow{"isMailSummaryRow"};
inline constexpr Setting<bool> isMailTotalEvents{"isMailTotalEvents"};
inline constexpr Setting<bool> isMailDollars{"isMailDollars"};
inline constexpr Setting<bool> isMailTotalHours{"isMailTotalHours"};
inline constexpr Setting<bool> isMailMax{"isMailMax"};
inline constexpr Setting<bool> isMailMin{"isMailMin"};
inline constexpr Setting<bool> isMailAverage{"isMailAverage"};
inline constexpr Setting<bool> isMailEndDate{"isMailEndDate"};
inline constexpr Setting<bool> isMailBeginDate{"isMailBeginDate"};
inline constexpr Setting<bool> isMailCalTitle{"isMailCalTitle"};
inline constexpr Setting<QString> mailHeader{"mailHeader"};
inline constexpr Setting<QString> mailFooter{"mailFooter"};
/// @}

/// @name Exports of reminders
/// Made at launch and shown in the preferences, read by nothing yet.
/// @{
inline constexpr Setting<bool> isTodoCSVIncludeUID{"isTodoCSVIncludeUID", false};
inline constexpr Setting<bool> isTodoCSVCalendar{"isTodoCSVCalendar", true};
inline constexpr Setting<bool> isTodoCSVTitle{"isTodoCSVTitle", true};
inline constexpr Setting<bool> isTodoCSVCompleted{"isTodoCSVCompleted", true};
inline constexpr Setting<bool> isTodoCSVCompletedDate{"isTodoCSVCompletedDate", true};
inline constexpr Setting<bool> isTodoCSVPriority{"isTodoCSVPriority", true};
inline constexpr Setting<bool> isTodoCSVDueDate{"isTodoCSVDueDate", true};
inline constexpr Setting<bool> isTodoCSVURL{"isTodoCSVURL", true};
inline constexpr Setting<bool> isTodoCSVNotes{"isTodoCSVNotes", true};
inline constexpr Setting<bool> isTodoTXTIncludeCount{"isTodoTXTIncludeCount", true};
inline constexpr Setting<bool> isTodoTXTCalendar{"isTodoTXTCalendar", true};
inline constexpr Setting<bool> isTodoTXTTitle{"isTodoTXTTitle", true};
inline constexpr Setting<bool> isTodoTXTCompleted{"isTodoTXTCompleted", true};
inline constexpr Setting<bool> isTodoTXTCompletedDate{"isTodoTXTCompletedDate", true};
inline constexpr Setting<bool> isTodoTXTPriority{"isTodoTXTPriority", true};
inline constexpr Setting<bool> isTodoTXTDueDate{"isTodoTXTDueDate", true};
inline constexpr Setting<bool> isTodoTXTURL{"isTodoTXTURL", true};
inline constexpr Setting<bool> isTodoTXTNotes{"isTodoTXTNotes", true};
/// @}

/// @name Groups
/// @{

/// Whatever the figures of an event depend on besides the event.
using BillingValues = SettingValues<filterStartDate, filterEndDate, allDayHours, isSingleRate,
                                    hourlyRate, calendars, isDollarsOn, timeTypeSelection>;
inline constexpr auto ofBilling = BillingValues::group();
/// What notes headings name, and whether the notes are shown.
inline constexpr auto ofEventNotes = settingGroup(
    isEventNotesCalendar, isEventNotesDate, isEventNotesLocation, isEventNotesTitle, isNotesViewOn);
/// What launching writes where it is absent.
inline constexpr auto ofLaunch = settingGroup(
    viewMode, allDayHours, allDayEventsNotIncluded, isDollarsOn, fileEncodingPopUpIndex,
    isCSVQuotesForTitle, isCSVQuotesForLocation, isCSVQuotesForNote, isCSVQuotesForCalendar,
    isCSVHeader, isCSVRemoveReturns, isCSVIncludeUID, isTXTWrapping, isTXTSummaryRow,
    isTXTTotalEvents, isTXTDollars, isTXTTotalHours, isTXTMax, isTXTMin, isTXTAverage, isTXTEndDate,
    isTXTBeginDate, isTXTCalTitle, isTXTTotalDays, txtHeader, txtFooter, isTodoCSVIncludeUID,
    isTodoCSVCalendar, isTodoCSVTitle, isTodoCSVCompleted, isTodoCSVCompletedDate,
    isTodoCSVPriority, isTodoCSVDueDate, isTodoCSVURL, isTodoCSVNotes, isTodoTXTIncludeCount,
    isTodoTXTCalendar, isTodoTXTTitle, isTodoTXTCompleted, isTodoTXTCompletedDate,
    isTodoTXTPriority, isTodoTXTDueDate, isTodoTXTURL, isTodoTXTNotes);
/// @}

} // namespace quillet::settings
