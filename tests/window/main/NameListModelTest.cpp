#include "window/main/NameListModel.h"

#include "export/TXTSettingsArrayController.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace quillet {

namespace {

class NameListModelTest : public testing::Test {
protected:
    NameListModelTest() { presets.awakeFromNib(); }

    void store(const QStringList& names) {
        QVariantList values;
        for (const QString& name : names) {
            values << QVariantMap{{"txtSettingsName", name}};
        }
        settings.setObject("txtSettings", values);
    }
    [[nodiscard]] QStringList shown() const {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names << model.index(row).data().toString();
        }
        return names;
    }
    [[nodiscard]] QString storedName(std::size_t row) const { return presets.arranged(row).name; }

    test::MemorySettings settings;
    test::FakeAlerts alerts;
    TXTSettingsArrayController presets{settings, alerts};
    NameListModel model{nameList(presets, &NamedRecord::name, &TXTSettingsArrayController::rename)};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(NameListModelTest, TheNamesFollowEveryChangeOfTheList) {
    EXPECT_EQ(shown(), QStringList{"Default"});
    for (const QStringList& names :
         {QStringList{"Default", "A", "B", "C"}, QStringList{"Default", "B", "C"},
          QStringList{"Default", "B", "New", "C"}, QStringList{"B", "C", "Default"},
          QStringList{"X", "Y"}, QStringList{"X", "Y", "Y", "Y"}, QStringList{"Y", "Y"},
          QStringList{}, QStringList{"Z"}}) {
        store(names);
        EXPECT_EQ(shown(), names);
    }
}

TEST_F(NameListModelTest, ARenameTouchesItsRowAlone) {
    store({"Default", "A", "B"});
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    EXPECT_TRUE(model.setData(model.index(1), "Invoice", Qt::EditRole));
    EXPECT_EQ(storedName(1), "Invoice");
    EXPECT_EQ(shown(), (QStringList{"Default", "Invoice", "B"}));
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
    EXPECT_EQ(changes[0][1].toModelIndex().row(), 1);
    EXPECT_EQ(resets.size() + removals.size(), 0);
}

TEST_F(NameListModelTest, ANameThatNobodyCouldSeeIsRefused) {
    store({"Default", "A"});
    settings.writes.clear();
    EXPECT_FALSE(model.setData(model.index(1), "", Qt::EditRole));
    EXPECT_FALSE(model.setData(model.index(1), " \t", Qt::EditRole));
    EXPECT_FALSE(model.setData(model.index(1), "A", Qt::EditRole)) << "nothing changes";
    EXPECT_TRUE(settings.writes.isEmpty());
}

TEST_F(NameListModelTest, StrangeNamesShowInOneLineAndAreEditedAsTheyAre) {
    const QString long1000(1000, u'x');
    store({"", "two\nlines", "\"quoted\" \\ <b>%1</b>", long1000});
    EXPECT_EQ(shown(),
              (QStringList{"(no name)", "two lines", "\"quoted\" \\ <b>%1</b>", long1000}));
    EXPECT_EQ(model.index(1).data(Qt::EditRole), QVariant("two\nlines"));
    EXPECT_TRUE(model.setData(model.index(0), "Named", Qt::EditRole));
    EXPECT_EQ(storedName(0), "Named");
    EXPECT_EQ(storedName(1), "two\nlines");
    EXPECT_TRUE(model.setData(model.index(1), "one\r\nline ", Qt::EditRole));
    EXPECT_EQ(storedName(1), "one line");
    EXPECT_EQ(model.index(2).data(Qt::ToolTipRole),
              QVariant("&quot;quoted&quot; \\ &lt;b&gt;%1&lt;/b&gt;"));
}

TEST_F(NameListModelTest, RowsWithoutATickAreNotTicked) {
    EXPECT_FALSE(model.index(0).data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(model.setData(model.index(0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model.flags(model.index(0)).testFlag(Qt::ItemIsUserCheckable));
}

namespace {

struct Choice {
    QString text;
    bool isOn = false;
};

class Choices : public ListController<Choice> {
public:
    void choose(std::size_t row, bool isOn) {
        std::vector<Choice> choices = *content();
        choices[row].isOn = isOn;
        setContent(std::move(choices));
    }
};

} // namespace

TEST(ChecklistTest, RowsAreTickedButNotRenamed) {
    Choices choices;
    choices.setContent(std::vector<Choice>{{"a"}, {"b"}});
    NameListModel model(checklist(choices, &Choice::text, &Choice::isOn, &Choices::choose));
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    EXPECT_FALSE(model.flags(model.index(1)).testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(model.setData(model.index(1), "c", Qt::EditRole));
    EXPECT_TRUE(model.setData(model.index(1), Qt::Checked, Qt::CheckStateRole));
    EXPECT_TRUE(choices.arranged(1).isOn);
    EXPECT_EQ(model.index(0).data(Qt::CheckStateRole), QVariant(Qt::Unchecked));
    EXPECT_EQ(model.index(1).data(Qt::CheckStateRole), QVariant(Qt::Checked));
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][0].toModelIndex().row(), 1);
}

} // namespace quillet
