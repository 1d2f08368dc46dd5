#include "window/preferences/PreferencesDialog.h"

#include "app/StartupSettings.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "support/MemorySettings.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace quillet {

namespace {

const QStringList columnKeys{"isDateColumn",      "isHoursColumn",      "isTitleColumn",
                             "isNotesColumn",     "isUrlColumn",        "isLocationColumn",
                             "isWeekdayColumn",   "isEndWeekdayColumn", "isCostColumn",
                             "isStartTimeColumn", "isEndTimeColumn",    "isEndDateColumn",
                             "isCalendarColumn",  "isRateColumn"};

class PreferencesPagesTest : public testing::Test {
protected:
    PreferencesPagesTest() {
        writeStartupSettings(settings);
        settings.setObject("isSingleRate", true);
        settings.setObject("hourlyRate", 90);
        for (const QString& key : columnKeys) {
            settings.setObject(key, true);
        }
        dialog.emplace(PreferencesCollaborators{settings, formats, [this] { ++titleResets; },
                                                [this] { ++sheetOpenings; }});
        dialog->show();
    }

    [[nodiscard]] QWidget& page(const char* identifier) const {
        return *dialog->findChild<QScrollArea*>(identifier);
    }
    template <typename Widget>
    [[nodiscard]] Widget& control(const char* key) const {
        return *dialog->findChild<Widget*>(key);
    }
    /// The keys of a pane's controls of a kind.
    template <typename Widget>
    [[nodiscard]] std::set<QString> keys(const char* identifier) const {
        std::set<QString> names;
        for (const Widget* each : page(identifier).findChildren<Widget*>()) {
            if (!each->objectName().startsWith("qt_")) {
                names.insert(each->objectName());
            }
        }
        return names;
    }
    static std::set<QString> setOf(const QStringList& names) {
        return {names.begin(), names.end()};
    }

    test::MemorySettings settings;
    const IcuLocaleFormats formats{{"de_DE", "de_DE", "de_DE"}, "UTC"};
    int titleResets = 0;
    int sheetOpenings = 0;
    std::optional<PreferencesDialog> dialog;
};

} // namespace

TEST_F(PreferencesPagesTest, EachPaneHasASwitchForEachOfItsKeys) {
    EXPECT_EQ(keys<QCheckBox>("general"),
              setOf({"allDayEventsNotIncluded", "isDollarsOn", "isSingleRate"}));
    EXPECT_EQ(keys<QCheckBox>("columns"), setOf(columnKeys));
    EXPECT_EQ(keys<QCheckBox>("text"),
              setOf({"isTXTWrapping", "isTXTSummaryRow", "isTXTTotalEvents", "isTXTDollars",
                     "isTXTTotalHours", "isTXTMax", "isTXTMin", "isTXTAverage", "isTXTEndDate",
                     "isTXTBeginDate", "isTXTCalTitle", "isTXTTotalDays"}));
    EXPECT_EQ(keys<QCheckBox>("csv"),
              setOf({"isCSVHeader", "isCSVIncludeUID", "isCSVQuotesForTitle", "isCSVQuotesForNote",
                     "isCSVQuotesForLocation", "isCSVQuotesForCalendar", "isCSVRemoveReturns"}));
    EXPECT_EQ(
        keys<QCheckBox>("reminders"),
        setOf({"isTodoCSVIncludeUID", "isTodoCSVCalendar", "isTodoCSVTitle", "isTodoCSVCompleted",
               "isTodoCSVCompletedDate", "isTodoCSVPriority", "isTodoCSVDueDate", "isTodoCSVURL",
               "isTodoCSVNotes", "isTodoTXTIncludeCount", "isTodoTXTCalendar", "isTodoTXTTitle",
               "isTodoTXTCompleted", "isTodoTXTCompletedDate", "isTodoTXTPriority",
               "isTodoTXTDueDate", "isTodoTXTURL", "isTodoTXTNotes"}));
}

TEST_F(PreferencesPagesTest, TheOtherControlsBearTheirKeysToo) {
    EXPECT_NE(page("general").findChild<QSpinBox*>("allDayHours"), nullptr);
    EXPECT_NE(page("general").findChild<QLineEdit*>("hourlyRate"), nullptr);
    EXPECT_NE(page("general").findChild<QComboBox*>("fileEncodingPopUpIndex"), nullptr);
    EXPECT_NE(page("columns").findChild<QComboBox*>("timeTypeSelection"), nullptr);
    EXPECT_EQ(keys<QLineEdit>("columns"),
              setOf({"dateColumnTitle", "hoursColumnTitle", "titleColumnTitle", "notesColumnTitle",
                     "urlColumnTitle", "locationColumnTitle", "startWeekdayColumnTitle",
                     "endWeekdayColumnTitle", "costColumnTitle", "startTimeColumnTitle",
                     "endTimeColumnTitle", "endDateColumnTitle", "calendarColumnTitle",
                     "rateColumnTitle", "durationColumnTitle", "minutesColumnTitle"}));
    EXPECT_EQ(keys<QPlainTextEdit>("text"), setOf({"txtHeader", "txtFooter"}));
}

TEST_F(PreferencesPagesTest, EverySwitchWritesItsKeyAtOnceAndFollowsIt) {
    for (QCheckBox* box : dialog->findChildren<QCheckBox*>()) {
        const QString key = box->objectName();
        const bool isOn = boolForKey(settings, key);
        ASSERT_EQ(box->isChecked(), isOn) << key.toStdString();
        settings.writes.clear();
        box->toggle();
        EXPECT_EQ(settings.object(key), QVariant(!isOn)) << key.toStdString();
        EXPECT_EQ(settings.writes, QStringList{key}) << "one write";
        settings.setObject(key, isOn);
        EXPECT_EQ(box->isChecked(), isOn) << key.toStdString();
    }
}

TEST_F(PreferencesPagesTest, EveryControlHasANameForAssistivePrograms) {
    int count = 0;
    for (QWidget* each : dialog->findChildren<QWidget*>()) {
        if (each->focusPolicy() == Qt::NoFocus || each->objectName().startsWith("qt_")) {
            continue;
        }
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(each);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty())
            << each->metaObject()->className() << ' ' << each->objectName().toStdString();
        ++count;
    }
    EXPECT_GT(count, 80);
}

TEST_F(PreferencesPagesTest, NoLetterOpensTwoControlsOfAPane) {
    for (const char* identifier : {"general", "columns", "text", "csv", "reminders"}) {
        std::set<QString> letters;
        const auto take = [&](const QString& text) {
            if (const QKeySequence letter = QKeySequence::mnemonic(text); !letter.isEmpty()) {
                EXPECT_TRUE(letters.insert(letter.toString()).second)
                    << identifier << ' ' << text.toStdString();
            }
        };
        for (const auto* button : page(identifier).findChildren<QAbstractButton*>()) {
            take(button->text());
        }
        for (const auto* label : page(identifier).findChildren<QLabel*>()) {
            take(label->text());
        }
    }
}

TEST_F(PreferencesPagesTest, TheHoursOfADayAreBetweenNoneAndTwentyFour) {
    auto& hours = control<QSpinBox>("allDayHours");
    EXPECT_EQ(hours.value(), 24);
    hours.setValue(8);
    EXPECT_EQ(settings.object("allDayHours"), QVariant(8));
    settings.setObject("allDayHours", 6);
    EXPECT_EQ(hours.value(), 6);
    EXPECT_EQ(hours.minimum(), 0);
    EXPECT_EQ(hours.maximum(), 24);
    control<QCheckBox>("allDayEventsNotIncluded").click();
    EXPECT_FALSE(hours.isEnabled()) << "left out events count for nothing";
}

TEST_F(PreferencesPagesTest, TheRateIsReadAsTheUserWritesNumbers) {
    auto& rate = control<QLineEdit>("hourlyRate");
    EXPECT_EQ(rate.text(), QStringLiteral("90"));
    rate.selectAll();
    QTest::keyClicks(&rate, "82,50");
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")).toString(), QStringLiteral("82.5"))
        << "at once";
    EXPECT_EQ(rate.text(), QStringLiteral("82,50")) << "as it is typed";
    QTest::keyClick(&rate, Qt::Key_Return);
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")).toString(), QStringLiteral("82.5"));
    EXPECT_EQ(rate.text(), QStringLiteral("82,5"));
    settings.setObject("hourlyRate", 70);
    EXPECT_EQ(rate.text(), QStringLiteral("70"));
    control<QCheckBox>("isSingleRate").click();
    EXPECT_FALSE(rate.isEnabled());
}

TEST_F(PreferencesPagesTest, ATextThatIsNoRateIsRefusedWithTheOldOneKept) {
    auto& rate = control<QLineEdit>("hourlyRate");
    for (const char* text : {"a lot", "-5", ""}) {
        rate.selectAll();
        QTest::keyClick(&rate, Qt::Key_Delete);
        QTest::keyClicks(&rate, QString::fromLatin1(text));
        QTest::keyClick(&rate, Qt::Key_Return);
        EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal::fromInteger(90))
            << text;
        EXPECT_EQ(rate.text(), QStringLiteral("90"));
        EXPECT_EQ(control<QLabel>("hourlyRateProblem").text(),
                  QStringLiteral("“%1” is not a rate; the old one was kept.").arg(text));
    }
}

TEST_F(PreferencesPagesTest, ATypedRateCountsWhenTheWindowClosesOverItAndStaysWhenOthersWrite) {
    auto& rate = control<QLineEdit>("hourlyRate");
    rate.selectAll();
    QTest::keyClicks(&rate, "75");
    settings.setObject("hourlyRate", 60);
    EXPECT_EQ(rate.text(), QStringLiteral("75")) << "what is being typed stays";
    dialog->close();
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal::fromInteger(75));
}

TEST_F(PreferencesPagesTest, ARateThatAnAssistiveProgramPutsInIsTaken) {
    auto& rate = control<QLineEdit>("hourlyRate");
    QAccessible::queryAccessibleInterface(&rate)->setText(QAccessible::Value, "65");
    EXPECT_EQ(decimalFromValue(settings.object("hourlyRate")), Decimal::fromInteger(65));
}

TEST_F(PreferencesPagesTest, TheEncodingIsChosenAndFollowed) {
    auto& encoding = control<QComboBox>("fileEncodingPopUpIndex");
    EXPECT_EQ(encoding.currentText(), QStringLiteral("UTF-8"));
    QTest::keyClick(&encoding, Qt::Key_Down);
    EXPECT_EQ(settings.object("fileEncodingPopUpIndex"), QVariant(1));
    EXPECT_EQ(encoding.currentText(), QStringLiteral("UTF-16"));
    settings.setObject("fileEncodingPopUpIndex", 0);
    EXPECT_EQ(encoding.currentText(), QStringLiteral("UTF-8"));
}

TEST_F(PreferencesPagesTest, TheReportsFreeTextsKeepTheirLines) {
    dialog->showPane(PreferencesPane::Text);
    auto& header = control<QPlainTextEdit>("txtHeader");
    header.setFocus();
    QTest::keyClicks(&header, "Dear all,");
    QTest::keyClick(&header, Qt::Key_Return);
    QTest::keyClicks(&header, "100 %");
    EXPECT_EQ(settings.object("txtHeader"), QVariant("Dear all,\n100 %"));
    EXPECT_EQ(header.textCursor().position(), 15) << "writing does not move the cursor";
    settings.setObject("txtHeader", "Other");
    EXPECT_EQ(header.toPlainText(), QStringLiteral("Other"));
    EXPECT_EQ(settings.object("txtFooter"), QVariant(""));
    QTest::keyClick(&header, Qt::Key_Tab);
    EXPECT_EQ(settings.object("txtHeader"), QVariant("Other")) << "Tab goes to the next control";
    EXPECT_FALSE(header.hasFocus());
}

TEST_F(PreferencesPagesTest, TitlesAreResetByTheButton) {
    QTest::mouseClick(&control<QPushButton>("resetAllColumnTitles"), Qt::LeftButton);
    EXPECT_EQ(titleResets, 1);
}

TEST_F(PreferencesPagesTest, PresetsAreAButtonAwayFromTheSwitchesThatTheyHold) {
    QTest::mouseClick(&control<QPushButton>("openTXTSettingsSheet"), Qt::LeftButton);
    EXPECT_EQ(sheetOpenings, 1);
}

TEST_F(PreferencesPagesTest, ValuesOfWrongTypesAreShownAsTheyAreRead) {
    settings.setObject("isTXTMax", "YES");
    settings.setObject("allDayHours", "7");
    settings.setObject("fileEncodingPopUpIndex", 9);
    settings.setObject("timeTypeSelection", 9);
    settings.writes.clear();
    settings.setObject("txtHeader", 12);
    settings.setObject("hourlyRate", "none");
    EXPECT_TRUE(control<QCheckBox>("isTXTMax").isChecked());
    EXPECT_EQ(control<QSpinBox>("allDayHours").value(), 7);
    EXPECT_EQ(control<QComboBox>("fileEncodingPopUpIndex").currentText(), "UTF-8");
    EXPECT_EQ(control<QComboBox>("timeTypeSelection").currentIndex(), -1) << "no time is shown";
    EXPECT_EQ(control<QPlainTextEdit>("txtHeader").toPlainText(), QStringLiteral("12"));
    EXPECT_EQ(control<QLineEdit>("hourlyRate").text(), QStringLiteral("0"));
    EXPECT_EQ(settings.writes, (QStringList{"txtHeader", "hourlyRate"})) << "shown, not mended";
}

TEST_F(PreferencesPagesTest, HoursOutsideTheDayAreShownAsTheyCountAndStayUntilTheUserActs) {
    auto& hours = control<QSpinBox>("allDayHours");
    for (const auto& [stored, shown] :
         {std::pair{QVariant(30), 24}, std::pair{QVariant(-3), -3},
          std::pair{QVariant(qint64(1) << 40), 24},
          std::pair{QVariant(qint64(8) - (qint64(1) << 40)), std::numeric_limits<int>::min()},
          std::pair{QVariant(6), 6}}) {
        settings.writes.clear();
        settings.setObject("allDayHours", stored);
        EXPECT_EQ(hours.value(), shown) << stored.toLongLong();
        EXPECT_EQ(settings.object("allDayHours"), stored);
        EXPECT_EQ(settings.writes.size(), 1);
    }
    settings.setObject("allDayHours", -1);
    hours.stepUp();
    EXPECT_EQ(settings.object("allDayHours"), QVariant(0));
    hours.stepDown();
    EXPECT_EQ(settings.object("allDayHours"), QVariant(0)) << "nobody can choose fewer than none";
    settings.setObject("allDayHours", 30);
    hours.stepDown();
    EXPECT_EQ(settings.object("allDayHours"), QVariant(23));
}

TEST_F(PreferencesPagesTest, AnUnknownEncodingIsTheOneOfTheFilesAndStaysUntilTheUserActs) {
    auto& encoding = control<QComboBox>("fileEncodingPopUpIndex");
    for (const QVariant& unknown : {QVariant(2), QVariant(-1), QVariant("x"), QVariant()}) {
        settings.setObject("fileEncodingPopUpIndex", 1);
        settings.setObject("fileEncodingPopUpIndex", unknown);
        EXPECT_EQ(encoding.currentText(), "UTF-8");
        EXPECT_EQ(settings.object("fileEncodingPopUpIndex"), unknown);
    }
    QTest::keyClick(&encoding, Qt::Key_Down);
    EXPECT_EQ(settings.object("fileEncodingPopUpIndex"), QVariant(1));
}

TEST_F(PreferencesPagesTest, TheTwoHalvesOfTheColumnsStandApart) {
    const auto edges = [this](const char* left, const char* right) {
        return control<QWidget>(right).mapTo(&*dialog, QPoint()).x() -
               control<QWidget>(left).mapTo(&*dialog, QPoint()).x() -
               control<QWidget>(left).width();
    };
    dialog->showPane(PreferencesPane::Columns);
    QApplication::processEvents();
    const int within = edges("isDateColumn", "dateColumnTitle");
    EXPECT_GT(edges("dateColumnTitle", "isEndWeekdayColumn"), within * 2);
}

TEST_F(PreferencesPagesTest, ThePanesFitASmallScreen) {
    EXPECT_LE(dialog->sizeHint().width(), 1024);
    EXPECT_LE(dialog->sizeHint().height(), 640);
}

} // namespace quillet
