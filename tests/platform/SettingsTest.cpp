#include "platform/Settings.h"

#include "support/MemorySettings.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <ostream>

namespace quillet {

namespace {

/// A setting as it is told: its type, and its first-run value as JSON would have it, empty for
/// none.
struct Told {
    QString type;
    QString firstRun;

    friend bool operator==(const Told&, const Told&) = default;
    friend void PrintTo(const Told& told, std::ostream* stream) {
        *stream << told.type.toStdString() << " = " << told.firstRun.toStdString();
    }
};

using Tellings = QMap<QString, Told>;

QString textOf(const char* path) {
    QFile file(QStringLiteral(QUILLET_ROOT "/") + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

QString typeName(const QString& cppType) {
    static const QHash<QString, QString> names{{"bool", "bool"},       {"qint64", "integer"},
                                               {"Decimal", "decimal"}, {"QString", "text"},
                                               {"Instant", "date"},    {"QVariantList", "array"}};
    return names.value(cppType);
}

/// What the table declares.
Tellings declared() {
    static const QRegularExpression declaration(
        QStringLiteral(R"re(Setting<(\w+)>\s+(\w+)\{\s*"(\w+)"(?:,\s*([^;]*?))?\};)re"));
    static const QRegularExpression marked(QStringLiteral(R"re(localizable\((".*")\))re"));
    Tellings result;
    for (const auto& match : declaration.globalMatch(textOf("src/platform/Settings.h"))) {
        EXPECT_EQ(match.captured(2), match.captured(3)) << "a setting is called as its key";
        const QString type = typeName(match.captured(1));
        QString firstRun = type == u"array" ? QStringLiteral("[]") : match.captured(4);
        result.insert(match.captured(3), {type, firstRun.replace(marked, QStringLiteral("\\1"))});
    }
    return result;
}

/// A cell of the column "default" as JSON; empty for what is said in words.
QString literal(const QString& cell) {
    static const QRegularExpression begin(QStringLiteral(R"re(^(true|false|[0-9]+|"[^"]*"))re"));
    return begin.match(cell).captured(1);
}

/// The cells of a row of a table, without those outside its bars.
QStringList cellsOf(const QString& line) {
    QStringList cells = line.split(u'|');
    for (QString& cell : cells) {
        cell = cell.trimmed();
    }
    return cells.mid(1, cells.size() - 2);
}

/// What users are told, by the tables whose columns are called so. The table of columns tells two
/// settings in a row, by words of its own.
Tellings documented() {
    Tellings result;
    QStringList head;
    static const QRegularExpression key(QStringLiteral("^`(\\w+)`$"));
    const auto add = [&](const QString& name, const QString& type, const QString& value) {
        if (const auto match = key.match(name); match.hasMatch()) {
            EXPECT_FALSE(result.contains(match.captured(1))) << name.toStdString();
            const QString shortType = type.section(u' ', 0, 0);
            QString firstRun = literal(value);
            if (value.startsWith(u"empty")) {
                firstRun = shortType == u"array" ? QStringLiteral("[]") : QStringLiteral("\"\"");
            }
            result.insert(match.captured(1), {shortType, firstRun});
        }
    };
    for (const QString& line : textOf("docs/settings.md").split(u'\n')) {
        const QStringList cells = line.startsWith(u'|') ? cellsOf(line) : QStringList();
        if (cells.isEmpty()) {
            head.clear();
        } else if (head.isEmpty()) {
            head = cells;
        } else if (head.first() == u"key") {
            add(cells.at(0), cells.at(1), cells.at(2));
        } else if (head.first() == u"column") {
            add(cells.at(1), QStringLiteral("text"), cells.at(2));
            // The three time columns share theirs.
            if (!result.contains(QString(cells.at(3)).remove(u'`'))) {
                add(cells.at(3), QStringLiteral("bool"), cells.at(4));
            }
        }
    }
    return result;
}

} // namespace

TEST(SettingsTest, UsersAreToldEverySettingWithItsTypeAndFirstValueAndNoOther) {
    const Tellings table = declared();
    const Tellings told = documented();
    ASSERT_GT(table.size(), 100);
    for (auto each = table.begin(); each != table.end(); ++each) {
        EXPECT_EQ(told.value(each.key()), each.value()) << each.key().toStdString();
    }
    for (const QString& key : told.keys()) {
        EXPECT_TRUE(table.contains(key)) << key.toStdString() << " is told, but no setting";
    }
}

TEST(SettingsTest, AnAbsentSettingGetsItsFirstRunValueAndAStoredOneKeepsItsOwn) {
    test::MemorySettings store;
    settings::allDayHours.writeIfAbsent(store);
    EXPECT_EQ(store.object("allDayHours"), QVariant::fromValue<qint64>(24));
    EXPECT_EQ(store.object("allDayHours").typeId(), QMetaType::LongLong);
    settings::allDayHours.write(store, 8);
    settings::allDayHours.writeIfAbsent(store);
    EXPECT_EQ(settings::allDayHours.read(store), 8);
    EXPECT_EQ(store.writes, QStringList({"allDayHours", "allDayHours"}));
}

TEST(SettingsTest, FirstRunValuesAreStoredInTheTypeOfTheSetting) {
    EXPECT_EQ(settings::isSingleRate.firstRunValue(), QVariant(true));
    EXPECT_EQ(settings::hourlyRate.firstRunValue(), QVariant::fromValue(Decimal()));
    EXPECT_EQ(settings::tempNumberRate.firstRunValue(),
              QVariant::fromValue(Decimal::fromInteger(1)));
    EXPECT_EQ(settings::dateColumnTitle.firstRunValue(), QVariant("Start Date"));
    EXPECT_EQ(settings::calendars.firstRunValue(), QVariant(QVariantList()));
    const QVariant empty = settings::txtHeader.firstRunValue();
    EXPECT_EQ(empty.typeId(), QMetaType::QString);
    EXPECT_FALSE(empty.toString().isNull());
    EXPECT_FALSE(settings::filterStartDate.firstRunValue().isValid());
    EXPECT_FALSE(settings::isMailMax.firstRunValue().isValid());
}

TEST(SettingsTest, ResettingWritesTheFirstRunValueOverWhateverIsThere) {
    test::MemorySettings store;
    settings::isNotesViewOn.write(store, true);
    settings::isNotesViewOn.reset(store);
    EXPECT_EQ(store.object("isNotesViewOn"), QVariant(false));
    EXPECT_EQ(store.writes, QStringList({"isNotesViewOn", "isNotesViewOn"}));
}

TEST(SettingsTest, AValueOfAnotherTypeIsReadAsFarAsItHasAMeaning) {
    test::MemorySettings store;
    store.setObject("allDayHours", "8");
    store.setObject("isDollarsOn", "yes");
    store.setObject("hourlyRate", "12.5 dollars");
    store.setObject("filterStartDate", 17);
    EXPECT_EQ(settings::allDayHours.read(store), 8);
    EXPECT_TRUE(settings::isDollarsOn.read(store));
    EXPECT_EQ(settings::hourlyRate.read(store), Decimal::fromString(u"12.5"));
    EXPECT_FALSE(settings::filterStartDate.read(store).has_value());
}

TEST(SettingsTest, AnAbsentSettingReadsAsNothingOrAsItsFirstRunValueWhereThatIsAskedFor) {
    const test::MemorySettings store;
    EXPECT_FALSE(settings::isSingleRate.read(store));
    EXPECT_TRUE(settings::isSingleRate.readOrFirstRun(store));
    EXPECT_TRUE(settings::hourlyRate.read(store).isNaN());
    EXPECT_EQ(settings::quickDatePeriod.readOrFirstRun(store), 1);
}

TEST(SettingsTest, AGroupOfValuesBeginsWithThoseOfAFirstRunAndTakesWhatIsStored) {
    settings::BillingValues values;
    EXPECT_TRUE(values.get<settings::isSingleRate>());
    EXPECT_FALSE(values.get<settings::isDollarsOn>());
    EXPECT_FALSE(values.get<settings::filterStartDate>().has_value());
    test::MemorySettings store;
    settings::isDollarsOn.write(store, true);
    settings::hourlyRate.write(store, Decimal::fromInteger(80));
    values = settings::BillingValues(store);
    EXPECT_TRUE(values.get<settings::isDollarsOn>());
    EXPECT_EQ(values.get<settings::hourlyRate>(), Decimal::fromInteger(80));
    EXPECT_FALSE(values.get<settings::isSingleRate>()) << "absent reads as false";
    values.set<settings::isSingleRate>(true);
    EXPECT_TRUE(values.get<settings::isSingleRate>());
    EXPECT_TRUE(values.get<settings::isDollarsOn>());
}

TEST(SettingsTest, FlippingWritesTheNegationAndTellsTheObserver) {
    test::MemorySettings store;
    QList<bool> seen;
    const Observation observation = settings::datesChangedTrigger.observe(
        store, [&] { seen << settings::datesChangedTrigger.read(store); });
    settings::datesChangedTrigger.flip(store);
    settings::datesChangedTrigger.flip(store);
    EXPECT_EQ(seen, QList<bool>({true, false}));
}

} // namespace quillet
