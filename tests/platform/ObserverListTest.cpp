#include "platform/ObserverList.h"

#include <gtest/gtest.h>

#include <string>

namespace quillet {

TEST(ObserverListTest, CallsInOrderOfRegistration) {
    ObserverList<int> observers;
    std::string calls;
    const Observation first =
        observers.add([&](int value) { calls += "a" + std::to_string(value); });
    const Observation second =
        observers.add([&](int value) { calls += "b" + std::to_string(value); });
    observers.notify(1);
    EXPECT_EQ(calls, "a1b1");
}

TEST(ObserverListTest, AnObserverLeavesWithItsToken) {
    ObserverList<> observers;
    int calls = 0;
    {
        const Observation token = observers.add([&] { ++calls; });
        observers.notify();
    }
    observers.notify();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(observers.count(), 0U);
}

TEST(ObserverListTest, AnObserverRemovedDuringANotificationIsNotCalledAnyMore) {
    ObserverList<> observers;
    int calls = 0;
    Observation second;
    const Observation first = observers.add([&] { second.reset(); });
    second = observers.add([&] { ++calls; });
    observers.notify();
    EXPECT_EQ(calls, 0);
}

TEST(ObserverListTest, AnObserverAddedDuringANotificationWaitsForTheNext) {
    ObserverList<> observers;
    bool isAdded = false;
    int calls = 0;
    Observation late;
    const Observation first = observers.add([&] {
        if (!std::exchange(isAdded, true)) {
            late = observers.add([&] { ++calls; });
        }
    });
    observers.notify();
    EXPECT_EQ(calls, 0);
    observers.notify();
    EXPECT_EQ(calls, 1);
}

TEST(ObserverListTest, ATokenMayOutliveTheList) {
    Observation token;
    {
        ObserverList<> observers;
        token = observers.add([] {});
    }
    token.reset();
}

TEST(ObserverListTest, AnObserverMayRemoveItself) {
    ObserverList<> observers;
    int calls = 0;
    Observation token;
    token = observers.add([&] {
        token.reset();
        ++calls;
    });
    observers.notify();
    observers.notify();
    EXPECT_EQ(calls, 1);
}

} // namespace quillet
