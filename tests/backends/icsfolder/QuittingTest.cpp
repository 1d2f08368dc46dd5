#include "StoreFixture.h"
#include "support/CpuTimer.h"

#include <QThread>

namespace quillet::test {

namespace {

using QuittingTest = StoreFixture;

TEST_F(QuittingTest, endsInTheMiddleOfAFile) {
    QByteArray text = "BEGIN:VCALENDAR\n";
    for (int number = 0; number < 250'000; ++number) {
        text += "BEGIN:VEVENT\nUID:" + QByteArray::number(number) +
                "\nSUMMARY:Visit\nDTSTART:20240302T110000Z\nDTEND:20240302T120000Z\n"
                "RRULE:FREQ=DAILY;COUNT=3\nEND:VEVENT\n";
    }
    write(QStringLiteral("big.ics"), text + "END:VCALENDAR\n");
    open();
    QThread::msleep(50);
    ASSERT_TRUE(store->isLoading());
    const CpuTimer timer(CpuTimer::Of::Process);
    store.reset();
    EXPECT_LT(timer.milliseconds(), 500);
}

} // namespace

} // namespace quillet::test
