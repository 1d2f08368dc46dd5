#include "window/InspectorPane.h"

#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QCalendarWidget>

#include <gtest/gtest.h>

namespace quillet {

using test::utc;

/// In locales that write dates in a calendar of their own.
TEST(InspectorPaneTest, ThePickersShowAndTakeGregorianDatesInEveryLocale) {
    for (const char* locale : {"fa_IR", "ar_SA", "th_TH", "en_US"}) {
        test::MemorySettings settings;
        const test::FakeClock clock{utc(2024, 3, 6, 15)};
        const IcuCalendarArithmetic gregorian(locale, "UTC", CalendarSystem::Gregorian);
        const IcuCalendarArithmetic current(locale, "UTC", CalendarSystem::OfLocale);
        const IcuLocaleFormats formats({"en_US", "en_US", "en_US"}, "UTC");
        DateInspectorController inspector({settings, clock, gregorian, current, formats});
        settings.setObject("isCalendarAccessGranted", true);
        inspector.awakeFromNib();
        InspectorPane pane(inspector, settings, gregorian);
        inspector.choosePeriodKind(PeriodKind::Month);
        QList<QCalendarWidget*> pickers = pane.findChildren<QCalendarWidget*>();
        ASSERT_EQ(pickers.size(), 2);
        if (pickers[0]->accessibleName() != u"Start Date") {
            pickers.swapItemsAt(0, 1);
        }
        EXPECT_EQ(pickers[0]->selectedDate(), QDate(2024, 3, 1)) << locale;
        EXPECT_EQ(pickers[1]->selectedDate(), QDate(2024, 3, 31)) << locale;
        Q_EMIT pickers[1]->clicked(QDate(2024, 3, 30));
        EXPECT_EQ(inspector.endDate(), utc(2024, 3, 30, 23, 59, 59)) << locale;
        EXPECT_EQ(pickers[0]->firstDayOfWeek(),
                  locale == std::string_view("fa_IR") ? Qt::Saturday : Qt::Sunday)
            << locale;
    }
}

} // namespace quillet
