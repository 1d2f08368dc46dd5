#include "backends/settingsfile/SettingsFile.h"
#include "eventtable/ColumnTable.h"
#include "support/Fakes.h"
#include "window/events/ColumnLayoutsPopoverController.h"
#include "window/exports/TXTSettingsSheet.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace quillet {

namespace {

/// A run of the program, as far as it names layouts and presets.
class NamingRun {
public:
    explicit NamingRun(const QString& path)
        : settings(path) {
        layouts.awakeFromNib();
        presets.awakeFromNib();
        window.show();
    }

    void makeLayout(const QString& name) {
        popover.showColumnLayoutsPopover(window);
        makeNamed("saveColumnLayout", name);
        popover.showColumnLayoutsPopover(window);
    }
    void makePreset(const QString& name) {
        sheet.controller().openTXTSettingsSheet();
        makeNamed("saveTXTSettings", name);
        sheet.controller().closeTXTSettingsSheet();
    }
    static QStringList names(const NamedRecordsController& records) {
        QStringList listed;
        for (const NamedRecord& record : *records.content()) {
            listed << record.name;
        }
        return listed;
    }

    SettingsFile settings;
    test::FakeAlerts alerts;
    ColumnTable table{settings};
    ColumnLayoutsArrayController layouts{
        {.settings = settings, .eventsTableView = table, .alerts = alerts}};
    TXTSettingsArrayController presets{settings, alerts};
    QWidget window;
    ColumnLayoutsPopoverController popover{settings, layouts};
    TXTSettingsSheet sheet{presets, window};

private:
    /// Types a text over the name of the entry that the button makes.
    void makeNamed(const char* button, const QString& name) {
        QTest::mouseClick(window.findChild<QPushButton*>(button), Qt::LeftButton);
        QApplication::processEvents();
        QLineEdit* field = nullptr;
        for (auto* each : window.findChildren<QLineEdit*>()) {
            field = each->isVisible() ? each : field;
        }
        ASSERT_NE(field, nullptr);
        // As pasted: no key puts in a line break.
        field->clear();
        field->insert(name);
        QTest::keyClick(field, Qt::Key_Return);
        QApplication::processEvents();
    }
};

} // namespace

TEST(StoredNamesTest, WhatIsTypedIsThereAfterARestart) {
    const QString quoted = QStringLiteral("\"Q1\" \\ 'R&D' 100% {$date} ütf 列 🕑");
    const QString veryLong = QString(5000, u'x');
    const QStringList typed{quoted, veryLong, QStringLiteral(" Two\nlines\r\n\u2029and more "),
                            QString(), QStringLiteral(" \n ")};
    const QTemporaryDir folder;
    const QString path = folder.filePath("quillet.json");
    {
        NamingRun first(path);
        for (const QString& name : typed) {
            first.makeLayout(name);
            first.makePreset(name);
        }
        first.settings.flush();
    }
    const NamingRun second(path);
    const QString oneLine = QStringLiteral("Two lines and more");
    EXPECT_EQ(NamingRun::names(second.layouts),
              (QStringList{"Default", quoted, veryLong, oneLine, "New Layout 5", "New Layout 6"}));
    EXPECT_EQ(NamingRun::names(second.presets), (QStringList{"Default", quoted, veryLong, oneLine,
                                                             "New Settings 5", "New Settings 6"}));
    EXPECT_EQ(second.layouts.arranged(1).members.size(), 65);
}

} // namespace quillet
