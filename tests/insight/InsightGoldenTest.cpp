#include "insight/Explanation.h"
#include "insight/InsightFixture.h"
#include "insight/Summary.h"
#include "insight/SummaryTexts.h"
#include "insight/WeekGrid.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillet {

namespace {

using test::Place;

QByteArray contentOf(const QString& path) {
    QFile file(QStringLiteral(QUILLET_TEST_DATA "/") + path);
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path.toStdString();
    }
    return file.readAll();
}

const QJsonObject& cases() {
    static const QJsonObject read =
        QJsonDocument::fromJson(contentOf(QStringLiteral("cases.json"))).object();
    return read;
}

/// A date, or a date and time, on the clocks of the place.
Instant localInstant(const Place& place, const QJsonValue& text) {
    const QDateTime local = QDateTime::fromString(text.toString(), Qt::ISODate);
    return place.calendar.instant({.year = local.date().year(),
                                   .month = local.date().month(),
                                   .day = local.date().day(),
                                   .hour = local.time().hour(),
                                   .minute = local.time().minute(),
                                   .second = local.time().second()});
}

Event eventFrom(const QJsonObject& entry, const Place& place) {
    Event event =
        test::timedEvent(localInstant(place, entry[u"start"]), localInstant(place, entry[u"end"]),
                         entry[u"calendar"].toString(), entry[u"title"].toString());
    auto details = std::make_shared<EventDetails>(*event.details);
    details->location = entry[u"location"].toString();
    details->isAllDay = entry[u"isAllDay"].toBool();
    event.details = std::move(details);
    return event;
}

/// One locale in one zone.
class InsightGoldenTest : public testing::TestWithParam<std::tuple<const char*, const char*>> {
protected:
    InsightGoldenTest() {
        place.setPeriod(localInstant(place, cases()[u"firstDay"]),
                        localInstant(place, cases()[u"lastDay"]));
        place.billing.allDayHours = cases()[u"allDayHours"].toInt();
        place.billing.isMoneyFromHours = cases()[u"isMoneyFromHours"][zone].toBool();
        place.billing.isSingleRate = false;
        const QJsonObject rates = cases()[u"rates"].toObject();
        for (auto rate = rates.begin(); rate != rates.end(); ++rate) {
            place.billing.calendarRates.insert(rate.key(),
                                               Decimal::fromString(rate.value().toString()));
        }
        for (const QJsonValue& entry : cases()[u"events"].toArray()) {
            place.events.push_back(eventFrom(entry.toObject(), place));
        }
    }
    void expectSame(const QStringList& texts, const char* name) const {
        const QString path =
            QStringLiteral("expected/%1-%2/%3.txt")
                .arg(locale, QString(zone).replace(u'/', u'-'), QString::fromLatin1(name));
        EXPECT_EQ(texts.join(QStringLiteral("\n\n")).toStdString(), contentOf(path).toStdString());
    }

    QString locale = QString::fromLatin1(std::get<0>(GetParam()));
    QString zone = QString::fromLatin1(std::get<1>(GetParam()));
    Place place{zone, locale};
};

} // namespace

TEST_P(InsightGoldenTest, SummariesAreTheExpectedOnes) {
    const auto text = [this](SummaryKey first, SummaryKey second, TimeUnit unit) {
        return summaryText(summaryOf(place.input(), first, second), unit, place.formats);
    };
    expectSame({text(SummaryKey::Week, SummaryKey::Calendar, TimeUnit::Hours),
                text(SummaryKey::Month, SummaryKey::Title, TimeUnit::Duration)},
               "summary");
}

TEST_P(InsightGoldenTest, GridsAreTheExpectedOnes) {
    const WeekGrid grid = weekGridOf(place.input(), GridRows::Calendars);
    expectSame({gridText(grid, GridValue::Time, TimeUnit::Hours, place.formats),
                gridText(grid, GridValue::Money, TimeUnit::Hours, place.formats)},
               "grid");
}

TEST_P(InsightGoldenTest, ExplanationsAreTheExpectedOnes) {
    const ExplanationFormats shown{
        .formats = place.formats, .unit = TimeUnit::Hours, .zone = zone, .placeOf = {}};
    constexpr std::array explained{ExplainedFigure::Time, ExplainedFigure::Cost};
    QStringList texts;
    for (const Event& event : place.events) {
        for (const ExplainedFigure figure : explained) {
            texts.append(explanationText(explainEvent(event, place.billing, figure, shown)));
        }
    }
    for (const ExplainedFigure figure : explained) {
        texts.append(explanationText(explainTotal(place.input(), figure, shown)));
    }
    expectSame(texts, "why");
}

INSTANTIATE_TEST_SUITE_P(Places, InsightGoldenTest,
                         testing::Combine(testing::Values("en_US", "de_DE", "fr_FR", "ja_JP"),
                                          testing::Values("UTC", "Europe/Berlin", "Asia/Kolkata")),
                         [](const auto& each) {
                             std::string name =
                                 std::string(std::get<0>(each.param)) + std::get<1>(each.param);
                             std::erase_if(
                                 name, [](char character) { return std::isalnum(character) == 0; });
                             return name;
                         });

} // namespace quillet
