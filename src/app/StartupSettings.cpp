#include "app/StartupSettings.h"

#include <array>
#include <variant>

namespace quillet {

namespace {

struct StartupSetting {
    const char* key;
    std::variant<bool, int, const char*> value;
};

constexpr auto startupSettings = std::to_array<StartupSetting>({
    {"viewMode", 0},
    {"allDayHours", 24},
    {"allDayEventsNotIncluded", false},
    {"isDollarsOn", false},
    {"fileEncodingPopUpIndex", 0},
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
    {"txtHeader", ""},
    {"txtFooter", ""},
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
});

QVariant stored(const std::variant<bool, int, const char*>& value) {
    if (const bool* truth = std::get_if<bool>(&value)) {
        return *truth;
    }
    if (const int* number = std::get_if<int>(&value)) {
        return QVariant::fromValue<qint64>(*number);
    }
    return QString::fromLatin1(std::get<const char*>(value));
}

} // namespace

void writeStartupSettings(SettingsStore& settings) {
    for (const StartupSetting& setting : startupSettings) {
        setIfAbsent(settings, QString::fromLatin1(setting.key), stored(setting.value));
    }
}

} // namespace quillet
