#include "backends/combined/CalendarAccess.h"
#include "support/Fakes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <thread>

namespace quillet::test {

namespace {

class CalendarAccessTest : public testing::Test {
protected:
    [[nodiscard]] CalendarAccess::Asker asker() {
        return [this](CalendarAccess::Answer answer) { questions.push_back(std::move(answer)); };
    }
    [[nodiscard]] EventStore::AccessCompletion completion() {
        return [this](bool isGranted, const std::optional<QString>& error) {
            answers.push_back(isGranted);
            errors.push_back(error);
        };
    }

    QTemporaryDir folder;
    QString statePath = folder.filePath(QStringLiteral("state"));
    std::vector<CalendarAccess::Answer> questions;
    std::vector<bool> answers;
    std::vector<std::optional<QString>> errors;
    CalendarAccess access{statePath, asker()};
};

TEST_F(CalendarAccessTest, isNotDeterminedBeforeItsFirstAnswer) {
    EXPECT_EQ(access.status(), AuthorizationStatus::NotDetermined);
    EXPECT_TRUE(questions.empty());
}

TEST_F(CalendarAccessTest, keepsTheAnswerForTheNextRun) {
    access.request(completion());
    questions.at(0)(true);
    EXPECT_EQ(answers, std::vector<bool>{true});
    EXPECT_EQ(CalendarAccess(statePath, asker()).status(), AuthorizationStatus::Authorized);
    access.forget();
    access.request(completion());
    questions.at(1)(false);
    EXPECT_EQ(CalendarAccess(statePath, asker()).status(), AuthorizationStatus::Denied);
}

TEST_F(CalendarAccessTest, asksOnlyOnce) {
    access.request(completion());
    questions.at(0)(false);
    access.request(completion());
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(answers, (std::vector<bool>{false, false}));
}

TEST_F(CalendarAccessTest, asksNobodyWhoHasAllowedItInAnEarlierRun) {
    access.request(completion());
    questions.at(0)(true);
    CalendarAccess later(statePath, asker());
    later.request(completion());
    EXPECT_EQ(questions.size(), 1U);
    EXPECT_EQ(answers, (std::vector<bool>{true, true}));
}

TEST_F(CalendarAccessTest, takesTheFirstAnswerToAQuestion) {
    access.request(completion());
    questions.at(0)(false);
    questions.at(0)(true);
    EXPECT_EQ(access.status(), AuthorizationStatus::Denied);
    EXPECT_EQ(CalendarAccess(statePath, asker()).status(), AuthorizationStatus::Denied);
    EXPECT_EQ(answers, std::vector<bool>{false});
}

TEST_F(CalendarAccessTest, tellsOnlyOfAStatusThatIsAnother) {
    int changes = 0;
    const Observation observation = access.observeStatus([&] { ++changes; });
    access.forget();
    EXPECT_EQ(changes, 0);
    access.request(completion());
    questions.at(0)(true);
    access.forget();
    access.forget();
    EXPECT_EQ(changes, 2);
}

TEST_F(CalendarAccessTest, answersAllRequestsMadeWhileTheQuestionIsOpen) {
    access.request(completion());
    access.request(completion());
    ASSERT_EQ(questions.size(), 1U);
    questions[0](true);
    EXPECT_EQ(answers, (std::vector<bool>{true, true}));
}

TEST_F(CalendarAccessTest, forgetsSoThatTheNextRequestAsksAgain) {
    access.request(completion());
    questions.at(0)(false);
    access.forget();
    EXPECT_EQ(access.status(), AuthorizationStatus::NotDetermined);
    EXPECT_EQ(CalendarAccess(statePath, asker()).status(), AuthorizationStatus::NotDetermined);
    access.request(completion());
    EXPECT_EQ(questions.size(), 2U);
}

TEST_F(CalendarAccessTest, tellsOfTheStatusBeforeTheRequestCompletes) {
    std::vector<QString> order;
    const Observation observation =
        access.observeStatus([&] { order.push_back(QStringLiteral("status")); });
    access.request([&](bool, const std::optional<QString>&) {
        order.push_back(QStringLiteral("completion"));
    });
    questions.at(0)(true);
    EXPECT_EQ(order,
              (std::vector<QString>{QStringLiteral("status"), QStringLiteral("completion")}));
}

TEST_F(CalendarAccessTest, saysOnceWhyAnAnswerCannotBeKeptAndHoldsItForThisRun) {
    QFile blocker(statePath);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    access.request(completion());
    access.request(completion());
    questions.at(0)(true);
    EXPECT_EQ(access.status(), AuthorizationStatus::Authorized);
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_TRUE(errors[0].has_value());
    EXPECT_FALSE(errors[1].has_value());
}

TEST_F(CalendarAccessTest, takesAnAnswerFromAnotherThreadOnTheMainOne) {
    access.request(completion());
    std::thread([&] { questions.at(0)(true); }).join();
    EXPECT_TRUE(answers.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ(answers, std::vector<bool>{true});
}

TEST_F(CalendarAccessTest, asksAgainWhenTheKeptAnswerIsDamaged) {
    QDir().mkpath(statePath);
    QFile file(statePath + QStringLiteral("/calendar-access"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("perhaps");
    file.close();
    EXPECT_EQ(CalendarAccess(statePath, asker()).status(), AuthorizationStatus::NotDetermined);
}

TEST_F(CalendarAccessTest, ignoresAnAnswerThatComesAfterItsEnd) {
    auto shortLived = std::make_unique<CalendarAccess>(statePath, asker());
    shortLived->request(completion());
    shortLived.reset();
    questions.at(0)(true);
    EXPECT_TRUE(answers.empty());
}

} // namespace

} // namespace quillet::test
