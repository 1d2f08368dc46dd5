#include "app/AppDelegate.h"

namespace quillet {

const std::vector<StartUpSetting>& startUpSettings() {
    static const std::vector<StartUpSetting> settings{
        {"viewMode", qint64(0)},
        {"allDayHours", qint64(24)},
        {"allDayEventsNotIncluded", false},
        {"isDollarsOn", false},
        {"fileEncodingPopUpIndex", qint64(0)},
        {"isCSVQuotesForTitle", true},
        {"isCSVQuotesForLocation", true},
        {"isCSVQuotesForNote", true},
        {"isCSVQuotesForCalendar", true},
        {"isCSVHeader", true},
        {"isCSVRemoveReturns", false},
        {"isCSVIncludeUID", false},
        {"isTXTWrapping", true},
        {"isTXTSummaryRow", true},
        {"isTXTTotalEvents", false},
        {"isTXTDollars", true},
        {"isTXTTotalHours", true},
        {"isTXTMax", false},
        {"isTXTMin", false},
        {"isTXTAverage", false},
        {"isTXTEndDate", true},
        {"isTXTBeginDate", true},
        {"isTXTCalTitle", true},
        {"isTXTTotalDays", false},
        {"txtHeader", QString::fromLatin1("")},
        {"txtFooter", QString::fromLatin1("")},
        {"isTodoCSVIncludeUID", false},
        {"isTodoCSVCalendar", true},
        {"isTodoCSVTitle", true},
        {"isTodoCSVCompleted", true},
        {"isTodoCSVCompletedDate", true},
        {"isTodoCSVPriority", true},
        {"isTodoCSVDueDate", true},
        {"isTodoCSVURL", true},
        {"isTodoCSVNotes", true},
        {"isTodoTXTIncludeCount", true},
        {"isTodoTXTCalendar", true},
        {"isTodoTXTTitle", true},
        {"isTodoTXTCompleted", true},
        {"isTodoTXTCompletedDate", true},
        {"isTodoTXTPriority", true},
        {"isTodoTXTDueDate", true},
        {"isTodoTXTURL", true},
        {"isTodoTXTNotes", true},
    };
    return settings;
}

} // namespace quillet
