#include "StoreFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

namespace quillet::test {

namespace {

constexpr int caseCount = 3000;

struct RuleCase {
    QString rule;
    QDateTime start;
    QString zone;
    QStringList exceptions;
    Instant from;
    Instant to;
};

/// Makes rules that programs could write, the same ones in every run.
class RuleMaker {
public:
    [[nodiscard]] RuleCase next() {
        RuleCase made = make();
        while (isYearlyWithoutMonth(made.rule)) {
            made = make();
        }
        return made;
    }

private:
    /// Yearly on a day of the month: meant otherwise by those who write it than by the standard. A
    /// test of its own has it.
    static bool isYearlyWithoutMonth(const QString& rule) {
        return rule.contains(QStringLiteral("FREQ=YEARLY")) &&
               rule.contains(QStringLiteral("BYMONTHDAY=")) &&
               !rule.contains(QStringLiteral("BYMONTH=")) &&
               !rule.contains(QStringLiteral("BYYEARDAY=")) &&
               !rule.contains(QStringLiteral("BYWEEKNO="));
    }
    RuleCase make() {
        RuleCase made;
        made.zone = pick({"UTC", "Europe/Berlin", "America/New_York", "Australia/Lord_Howe",
                          "Asia/Kolkata", "America/Sao_Paulo"});
        const QDate day = QDate(2015, 1, 1).addDays(random_.bounded(3000));
        made.start = QDateTime(day, QTime(random_.bounded(24), 15 * random_.bounded(4)), Qt::UTC);
        const QString frequency = pick({"DAILY", "WEEKLY", "MONTHLY", "YEARLY"});
        made.rule = QStringLiteral("FREQ=") + frequency;
        if (random_.bounded(2) == 0) {
            add(made, "INTERVAL", QString::number(random_.bounded(1, 5)));
        }
        addEnd(made);
        addParts(made, frequency);
        addExceptions(made);
        const QDate first = day.addDays(random_.bounded(1500) - 200);
        made.from = instantOf(first);
        made.to = instantOf(first.addDays(random_.bounded(1, 900)));
        return made;
    }
    static Instant instantOf(const QDate& day) {
        return Instant(std::chrono::milliseconds(day.startOfDay(Qt::UTC).toMSecsSinceEpoch()));
    }
    QString pick(const QStringList& choices) {
        return choices.at(random_.bounded(static_cast<int>(choices.size())));
    }
    static void add(RuleCase& made, const char* part, const QString& value) {
        made.rule += QStringLiteral(";%1=%2").arg(QLatin1String(part), value);
    }
    QString some(int most, const std::function<QString()>& make) {
        QStringList values;
        for (int count = random_.bounded(1, most + 1); count > 0; --count) {
            const QString value = make();
            if (!values.contains(value)) {
                values.append(value);
            }
        }
        return values.join(u',');
    }
    void addEnd(RuleCase& made) {
        if (const int kind = random_.bounded(3); kind == 0) {
            add(made, "COUNT", QString::number(random_.bounded(1, 60)));
        } else if (kind == 1) {
            add(made, "UNTIL",
                made.start.addDays(random_.bounded(1500))
                    .toString(QStringLiteral("yyyyMMddTHHmmss")));
        }
    }
    void addParts(RuleCase& made, const QString& frequency) {
        const QStringList weekdays{"MO", "TU", "WE", "TH", "FR", "SA", "SU"};
        const bool isWeekly = frequency == QStringLiteral("WEEKLY");
        const bool hasOrdinals =
            frequency == QStringLiteral("MONTHLY") || frequency == QStringLiteral("YEARLY");
        bool hasDays = false;
        if (random_.bounded(3) == 0) {
            add(made, "BYMONTH", some(4, [&] { return QString::number(random_.bounded(1, 13)); }));
        }
        if (random_.bounded(2) == 0) {
            hasDays = true;
            const bool useOrdinals = hasOrdinals && random_.bounded(2) == 0;
            add(made, "BYDAY", some(4, [&] {
                    const int ordinal = random_.bounded(1, 6) * (random_.bounded(2) == 0 ? 1 : -1);
                    return (useOrdinals ? QString::number(ordinal) : QString()) + pick(weekdays);
                }));
        }
        if (!isWeekly && random_.bounded(3) == 0) {
            hasDays = true;
            add(made, "BYMONTHDAY", some(4, [&] {
                    return QString::number(random_.bounded(1, 32) *
                                           (random_.bounded(3) == 0 ? -1 : 1));
                }));
        }
        if (frequency == QStringLiteral("YEARLY") && random_.bounded(5) == 0) {
            hasDays = true;
            // The expander knows no weekday of the start for a week number; a test of its own does.
            const bool isByWeek =
                made.rule.contains(QRegularExpression(QStringLiteral("BYDAY=[A-Z,]+(;|$)")));
            add(made, isByWeek ? "BYWEEKNO" : "BYYEARDAY", some(4, [&] {
                    return QString::number(random_.bounded(1, isByWeek ? 54 : 367) *
                                           (random_.bounded(3) == 0 ? -1 : 1));
                }));
        }
        if (hasOrdinals && hasDays && random_.bounded(3) == 0) {
            add(made, "BYSETPOS", some(2, [&] {
                    return QString::number(random_.bounded(1, 4) *
                                           (random_.bounded(2) == 0 ? 1 : -1));
                }));
        }
        if (isWeekly && random_.bounded(2) == 0) {
            add(made, "WKST", pick(weekdays));
        }
    }
    void addExceptions(RuleCase& made) {
        for (int count = random_.bounded(4); count > 0; --count) {
            made.exceptions.append(made.start.addDays(random_.bounded(60))
                                       .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")));
        }
    }

    QRandomGenerator random_{4711};
};

QByteArray asEvent(const RuleCase& made) {
    const auto compact = [](QString text) { return text.remove(u'-').remove(u':'); };
    QString text =
        QStringLiteral("DTSTART;TZID=%1:%2\r\nRRULE:%3")
            .arg(made.zone, made.start.toString(QStringLiteral("yyyyMMddTHHmmss")), made.rule);
    for (const QString& exception : made.exceptions) {
        text += QStringLiteral("\r\nEXDATE;TZID=%1:%2").arg(made.zone, compact(exception));
    }
    return text.toUtf8();
}

QByteArray asLine(const RuleCase& made) {
    const auto seconds = [](Instant instant) {
        return static_cast<qint64>(instant.time_since_epoch().count() / 1000);
    };
    const QJsonObject line{{"rule", made.rule},
                           {"start", made.start.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"))},
                           {"zone", made.zone},
                           {"exceptions", QJsonArray::fromStringList(made.exceptions)},
                           {"from", seconds(made.from)},
                           {"to", seconds(made.to)}};
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

/// What the independent expander makes of the cases, a list of UTC seconds each.
QList<QJsonArray> secondOpinion(const QByteArray& lines) {
    QProcess python;
    python.start(QStringLiteral("/usr/bin/python3"),
                 {QStringLiteral(QUILLET_TEST_DATA "/expand_rules.py")});
    python.write(lines);
    python.closeWriteChannel();
    EXPECT_TRUE(python.waitForFinished(100'000));
    EXPECT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    QList<QJsonArray> lists;
    for (const QByteArray& line : python.readAllStandardOutput().split('\n')) {
        if (!line.isEmpty()) {
            lists.append(QJsonDocument::fromJson(line).array());
        }
    }
    return lists;
}

using RecurrencePropertyTest = StoreFixture;

TEST_F(RecurrencePropertyTest, agreesWithAnIndependentExpander) {
    RuleMaker maker;
    std::vector<RuleCase> cases;
    QByteArray lines;
    for (int number = 0; number < caseCount; ++number) {
        cases.push_back(maker.next());
        lines += asLine(cases.back());
        write(QStringLiteral("%1.ics").arg(number, 5, 10, QLatin1Char('0')),
              eventFile(asEvent(cases.back())));
    }
    open();
    const QList<QJsonArray> opinions = secondOpinion(lines);
    ASSERT_EQ(opinions.size(), caseCount);
    const CalendarList calendars = store->calendars();
    ASSERT_EQ(calendars.size(), static_cast<std::size_t>(caseCount));
    int occurrences = 0;
    for (std::size_t number = 0; number < cases.size(); ++number) {
        const RuleCase& made = cases[number];
        QJsonArray found;
        for (const Event& event : store->events({calendars[number]}, made.from, made.to)) {
            found.append(static_cast<qint64>(event.startDate.time_since_epoch().count() / 1000));
        }
        const QJsonArray& wanted = opinions[static_cast<qsizetype>(number)];
        EXPECT_EQ(found, wanted)
            << asEvent(made).toStdString() << "\nfound  "
            << QJsonDocument(found).toJson(QJsonDocument::Compact).toStdString() << "\nwanted "
            << QJsonDocument(wanted).toJson(QJsonDocument::Compact).toStdString();
        occurrences += static_cast<int>(found.size());
    }
    // Rules that match nothing would agree as well.
    EXPECT_GT(occurrences, 20 * caseCount);
}

} // namespace

} // namespace quillet::test
