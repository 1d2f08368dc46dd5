#include "eventtable/EventColumns.h"

#include "platform/Settings.h"

#include <gtest/gtest.h>

namespace quillet {

namespace {

QString identifiers(std::span<const EventColumn* const> columns) {
    QStringList names;
    for (const EventColumn* column : columns) {
        names << QString::fromLatin1(column->identifier);
    }
    return names.join(u' ');
}

template <typename Has>
QString identifiersWhere(Has has) {
    QStringList names;
    for (const EventColumn& column : eventColumns()) {
        if (has(column)) {
            names << QString::fromLatin1(column.identifier);
        }
    }
    return names.join(u' ');
}

} // namespace

TEST(EventColumnsTest, AreDeclaredInTheOrderOfLayouts) {
    EXPECT_EQ(identifiersWhere([](const EventColumn&) { return true; }),
              "date hours title notes url location weekday endWeekday cost start end endDate "
              "calendar rate duration minutes");
}

TEST(EventColumnsTest, TitlesAndVisibilitiesHaveOrdersOfTheirOwn) {
    EXPECT_EQ(identifiers(columnsInOrderOfTitles()),
              "title hours minutes duration date endDate notes location url start end weekday "
              "endWeekday calendar rate cost");
    EXPECT_EQ(identifiers(columnsInOrderOfVisibility()),
              "date hours minutes duration title notes url location weekday cost rate start end "
              "endDate calendar endWeekday");
}

TEST(EventColumnsTest, AreFoundByTheirIdentifiersAndByNothingElse) {
    for (const EventColumn& column : eventColumns()) {
        const QString identifier = QString::fromLatin1(column.identifier);
        EXPECT_EQ(findEventColumn(identifier), &column) << column.identifier;
        EXPECT_EQ(&eventColumn(identifier), &column) << column.identifier;
    }
    for (const char* identifier : {"", "colour", "Title", "URL", "startDate"}) {
        EXPECT_EQ(findEventColumn(QString::fromLatin1(identifier)), nullptr) << identifier;
    }
}

TEST(EventColumnsTest, TheThreeTimeColumnsShareOneSwitchAndAllOthersHaveTheirOwn) {
    EXPECT_EQ(identifiersWhere([](const EventColumn& column) { return column.timeType; }),
              "hours duration minutes");
    EXPECT_EQ(identifiersWhere([](const EventColumn& column) {
                  return &column.visibility == &settings::isHoursColumn;
              }),
              "hours duration minutes");
    QSet<const SettingKey*> keys;
    for (const EventColumn& column : eventColumns()) {
        keys.insert(&column.visibility);
    }
    EXPECT_EQ(keys.size(), 14);
}

TEST(EventColumnsTest, NumbersDurationsAndMoneyAreNumeric) {
    EXPECT_EQ(identifiersWhere([](const EventColumn& column) { return isNumeric(column.kind); }),
              "hours cost rate duration minutes");
    EXPECT_EQ(identifiersWhere(
                  [](const EventColumn& column) { return column.kind == ColumnKind::Money; }),
              "cost rate");
}

TEST(EventColumnsTest, FourColumnsHaveASumAndFourAQuotesSwitch) {
    EXPECT_EQ(identifiersWhere([](const EventColumn& column) { return column.sum != nullptr; }),
              "hours cost duration minutes");
    EXPECT_EQ(identifiersWhere([](const EventColumn& column) { return column.quotes != nullptr; }),
              "title notes location calendar");
}

} // namespace quillet
