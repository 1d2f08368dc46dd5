#include "backends/icsfolder/CalendarContents.h"
#include "backends/icsfolder/IcsFile.h"

#include <QTimeZone>

#include <cstdint>
#include <cstdlib>

// Whatever stands in a file, its events of a year are found within the budget, in order.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quillet;
    static const auto calendar = std::make_shared<const StoreCalendar>(
        StoreCalendar{.calendarIdentifier = "folder:fuzz", .title = "Fuzz", .colorName = {}});
    static ZoneCatalog zones(QTimeZone("Europe/Berlin"));
    IcsFile file = readIcs(std::string(reinterpret_cast<const char*>(data), size), calendar, zones);
    const CalendarContents contents(std::move(file.events), std::move(file.series));
    const Instant from = std::chrono::sys_days(std::chrono::year(2024) / 1 / 1);
    const Instant to = from + std::chrono::days(366);
    constexpr std::int64_t budgetOfTest = 200'000;
    WorkBudget budget(budgetOfTest);
    const EventList events = contents.events(from, to, budget);
    for (const Event& event : events) {
        if (event.startDate >= to || event.endDate < from || event.endDate < event.startDate ||
            event.details == nullptr || event.details->eventIdentifier.isEmpty()) {
            std::abort();
        }
    }
    return 0;
}
