#pragma once

#include "app/Core.h"
#include "backends/icu/IcuCalendarArithmetic.h"
#include "backends/icu/IcuCollator.h"
#include "backends/icu/IcuLocaleFormats.h"
#include "eventtable/ColumnTable.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

namespace quillet::test {

/// All that a core wants of the outside, as the test sets it.
struct FakeOutside {
    explicit FakeOutside(const QString& locale = QStringLiteral("en_US"),
                         const QString& zone = QStringLiteral("UTC"),
                         const QStringList& columnIdentifiers = ColumnTable::knownIdentifiers())
        : gregorian(locale, zone, CalendarSystem::Gregorian)
        , formats({locale, locale, locale}, zone)
        , collator(locale)
        , columns(settings, columnIdentifiers) {}

    [[nodiscard]] CoreSeams seams() {
        return {.settings = settings,
                .store = store,
                .clock = clock,
                .formats = formats,
                .gregorian = gregorian,
                .currentCalendar = gregorian,
                .collator = collator,
                .fetchQueue = background,
                .mainQueue = main,
                .timer = timer,
                .alerts = alerts,
                .savePanel = panel,
                .progress = progress,
                .textColor = textColor,
                .pasteboard = pasteboard,
                .scriptRunner = scripts,
                .installedPrograms = installed,
                .workspace = workspace,
                .taskLauncher = launcher,
                .updater = updater,
                .releaseNotesPath = QStringLiteral("/notes.rtf"),
                .eventTable = columns};
    }
    /// Lets the fetch that is under way, and what follows from it, finish.
    void finish() {
        while (background.runOne() || main.runOne()) {
        }
    }

    MemorySettings settings;
    FakeEventStore store;
    FakeClock clock{utc(2024, 3, 6, 12)};
    IcuCalendarArithmetic gregorian;
    IcuLocaleFormats formats;
    IcuCollator collator;
    FakeQueue background;
    FakeQueue main;
    FakeTimer timer;
    FakeAlerts alerts;
    FakeSavePanel panel;
    FakeProgress progress;
    FakeTextColor textColor;
    FakePasteboard pasteboard;
    FakeScriptRunner scripts;
    FakeInstalledPrograms installed;
    FakeWorkspace workspace;
    FakeTaskLauncher launcher;
    FakeUpdater updater;
    ColumnTable columns;
};

} // namespace quillet::test
