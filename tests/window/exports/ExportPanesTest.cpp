#include "window/WindowFixture.h"

#include "support/WaitUntil.h"
#include "window/exports/ReportView.h"

#include <QAbstractButton>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>

namespace quillet {

namespace {

class ExportPanesTest : public test::WindowFixture {
protected:
    QAction* action(const char* name) {
        return window->findChild<QAction*>(QString::fromLatin1(name));
    }
    ReportView* reportView() { return window->findChild<ReportView*>(); }
    QPlainTextEdit* notesView() { return window->findChild<QPlainTextEdit*>(); }
    /// The pane is filled in bit by bit, on a busy machine in several.
    void expectNotes(const QString& text) {
        (void)test::waitUntil([&] { return notesView()->toPlainText() == text; });
        EXPECT_EQ(notesView()->toPlainText(), text);
    }
    void openReport() {
        window->exportActions().text.trigger();
        fetch();
    }
    std::vector<QAction*> items() {
        return {&window->exportActions().text, &window->exportActions().csv,
                &window->exportActions().tsv, &window->exportActions().notes};
    }
    bool areItemsEnabled() {
        return std::ranges::all_of(items(), [](QAction* item) { return item->isEnabled(); });
    }
    bool areItemsDisabled() {
        return std::ranges::none_of(items(), [](QAction* item) { return item->isEnabled(); });
    }
    static QString contentOf(const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return QString::fromUtf8(file.readAll());
    }
    bool isShown(const char* text) {
        return std::ranges::any_of(window->findChildren<QLabel*>(), [text](const QLabel* label) {
            return label->isVisible() && label->text() == QString::fromUtf8(text);
        });
    }
    /// A button of the pane that is open.
    QAbstractButton* button(const char* text) {
        for (QAbstractButton* found : window->findChildren<QAbstractButton*>()) {
            if (found->isVisible() && found->text().remove(u'&') == QString::fromUtf8(text)) {
                return found;
            }
        }
        ADD_FAILURE() << "no button says " << text;
        return nullptr;
    }
};

} // namespace

TEST_F(ExportPanesTest, TheReportOpensBelowTheTableAndClosesAgain) {
    open();
    ASSERT_TRUE(areItemsEnabled());
    EXPECT_FALSE(reportView()->isVisible());
    openReport();
    EXPECT_TRUE(reportView()->isVisible());
    EXPECT_TRUE(areItemsDisabled());
    EXPECT_EQ(reportView()->accessibleName(), QStringLiteral("Text Report"));
    EXPECT_EQ(reportView()->text(), report.eventsAttributedString().text());
    EXPECT_TRUE(reportView()->text().contains("Planning"));
    EXPECT_TRUE(named<QSplitter>("centre")->handle(1)->isEnabled());
    EXPECT_FALSE(named<QSplitter>("centre")->handle(2)->isEnabled()) << "above the rates";
    button("Close")->click();
    EXPECT_FALSE(reportView()->isVisible());
    EXPECT_TRUE(areItemsEnabled());
    EXPECT_FALSE(named<QSplitter>("centre")->handle(1)->isEnabled());
}

TEST_F(ExportPanesTest, TabGoesAlongTheRowAndThenIntoTheText) {
    open();
    openReport();
    const QWidget* pane = reportView()->parentWidget();
    QStringList names;
    for (QWidget* next = button("Options…"); names.size() < 4; next = next->nextInFocusChain()) {
        if (next->isVisible() && pane->isAncestorOf(next) && next->focusPolicy() != Qt::NoFocus) {
            auto* found = qobject_cast<QAbstractButton*>(next);
            names << (found != nullptr ? found->text().remove(u'&') : next->accessibleName());
        }
    }
    EXPECT_EQ(names.join(' '), QString::fromUtf8("Options… Save… Mail Close"));
    button("Close")->setFocus();
    QTest::keyClick(button("Close"), Qt::Key_Tab);
    EXPECT_EQ(window->focusWidget(), reportView());
    QTest::keyClick(reportView(), Qt::Key_Backtab);
    EXPECT_EQ(window->focusWidget(), button("Close"));
}

TEST_F(ExportPanesTest, TheNeighboursOfAPaneKeepTheirWidthsOnASmallScreen) {
    open();
    window->resize(1024, 700);
    fetch();
    const auto* panes = named<QSplitter>("panes");
    const QList<int> widths = panes->sizes();
    openReport();
    EXPECT_EQ(panes->sizes(), widths) << "report";
    button("Close")->click();
    window->exportActions().notes.trigger();
    fetch();
    EXPECT_EQ(panes->sizes(), widths) << "notes";
}

TEST_F(ExportPanesTest, ClosingAPaneGivesTheTableTheFocus) {
    open();
    openReport();
    ASSERT_EQ(window->focusWidget(), reportView());
    button("Close")->click();
    EXPECT_EQ(window->focusWidget(), table);
    window->exportActions().notes.trigger();
    ASSERT_EQ(window->focusWidget(), notesView());
    button("Close")->click();
    EXPECT_EQ(window->focusWidget(), table);
}

TEST_F(ExportPanesTest, EscapeClosesThePaneThatHasTheFocus) {
    open();
    openReport();
    QTest::keyClick(reportView(), Qt::Key_Escape);
    EXPECT_FALSE(reportView()->isVisible());
    EXPECT_TRUE(areItemsEnabled());
}

TEST_F(ExportPanesTest, TheMenuOpensAndClosesThePanesAndOffersOneAtATime) {
    open();
    QAction* text = action("displayTxtExportView");
    QAction* notesAction = action("displayNotesExportView");
    text->trigger();
    fetch();
    EXPECT_TRUE(reportView()->isVisible());
    EXPECT_TRUE(text->isChecked());
    EXPECT_FALSE(notesAction->isEnabled());
    text->trigger();
    EXPECT_FALSE(reportView()->isVisible());
    EXPECT_FALSE(text->isChecked());
    notesAction->trigger();
    fetch();
    EXPECT_TRUE(notesView()->isVisible());
    EXPECT_FALSE(text->isEnabled());
}

TEST_F(ExportPanesTest, TheReportFollowsColumnsWidthsSwitchesAndSelection) {
    open();
    openReport();
    const auto expectCurrent = [&] {
        fetch();
        EXPECT_EQ(reportView()->text(), report.eventsAttributedString().text());
    };
    const QString first = reportView()->text();
    table->horizontalHeader()->resizeSection(2, 300);
    expectCurrent();
    EXPECT_NE(reportView()->text(), first);
    columns.moveColumn(columns.positionOf("title"), 0);
    expectCurrent();
    EXPECT_LT(reportView()->text().indexOf("Title"), reportView()->text().indexOf("Start Date"));
    settings.setObject("isTXTSummaryRow", false);
    expectCurrent();
    settings.setObject("txtHeader", "For Mills & Daughters");
    expectCurrent();
    EXPECT_TRUE(reportView()->text().contains("For Mills & Daughters"));
    settings.setObject("totalsTabViewSelection", 1);
    table->selectRow(1);
    expectCurrent();
    EXPECT_FALSE(reportView()->text().contains("Planning"));
    settings.setObject("isNotesColumn", true);
    expectCurrent();
}

TEST_F(ExportPanesTest, ShowingAndHidingAColumnAsksForTheReportOnce) {
    open();
    openReport();
    int asked = 0;
    QObject::connect(&report, &ExportTxtViewController::eventsAttributedStringChanged,
                     [&] { ++asked; });
    settings.setObject("isNotesColumn", true);
    EXPECT_EQ(asked, 1);
    settings.setObject("isNotesColumn", false);
    EXPECT_EQ(asked, 2);
}

TEST_F(ExportPanesTest, ALongReportIsBuiltInTheBackgroundAndAnOvertakenOneIsDropped) {
    const Event sample = store.storedEvents.front();
    store.storedEvents.assign(5000, sample);
    open();
    openReport();
    EXPECT_EQ(reportView()->text(), QString());
    EXPECT_TRUE(isShown("Updating…"));
    settings.setObject("txtHeader", "second");
    fetch();
    ASSERT_TRUE(reportQueue.runOne());
    fetch();
    EXPECT_EQ(reportView()->text(), QString());
    ASSERT_TRUE(reportQueue.runOne());
    EXPECT_FALSE(reportQueue.runOne());
    fetch();
    EXPECT_TRUE(reportView()->text().contains("second"));
    EXPECT_EQ(reportView()->text(), report.eventsAttributedString().text());
    EXPECT_FALSE(isShown("Updating…"));
}

TEST_F(ExportPanesTest, ALongReportThatIsBuiltAndThenOvertakenIsNotShown) {
    store.storedEvents.assign(5000, Event(store.storedEvents.front()));
    open();
    openReport();
    ASSERT_TRUE(reportQueue.runOne());
    settings.setObject("txtHeader", "second");
    QApplication::processEvents();
    fetch();
    EXPECT_EQ(reportView()->text(), QString());
    ASSERT_TRUE(reportQueue.runOne());
    fetch();
    EXPECT_TRUE(reportView()->text().contains("second"));
}

TEST_F(ExportPanesTest, SavedWhileALongReportIsBuiltIsTheNewOne) {
    store.storedEvents.assign(5000, Event(store.storedEvents.front()));
    open();
    openReport();
    ASSERT_TRUE(reportQueue.runOne());
    fetch();
    const QString shown = reportView()->text();
    settings.setObject("txtFooter", "Thanks");
    fetch();
    ASSERT_EQ(reportView()->text(), shown) << "still the old one";
    button("Save…")->click();
    const QTemporaryDir folder;
    panel.pending(folder.filePath("report.txt"));
    EXPECT_TRUE(contentOf(folder.filePath("report.txt")).endsWith("Thanks\n"));
}

TEST_F(ExportPanesTest, TheReportIsSavedAndMailedFromItsPane) {
    open();
    openReport();
    button("Save…")->click();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_EQ(panel.requests.front().fileType, QStringLiteral("txt"));
    button("Mail")->click();
    ASSERT_EQ(scripts.sources.size(), 1);
    EXPECT_TRUE(scripts.sources.front().contains("Planning"));
}

TEST_F(ExportPanesTest, SavedAndMailedIsTheReportThatThePaneShows) {
    open();
    openReport();
    const QString shown = reportView()->text();
    settings.setObject("filterEndDate", QVariant::fromValue(test::utc(2024, 3, 30, 23, 59, 59)));
    fetch();
    ASSERT_EQ(reportView()->text(), shown) << "an end of the period is not followed by itself";
    ASSERT_NE(report.eventsAttributedString().text(), shown);
    button("Save…")->click();
    const QTemporaryDir folder;
    panel.pending(folder.filePath("report.txt"));
    EXPECT_EQ(contentOf(folder.filePath("report.txt")), shown);
    button("Mail")->click();
    EXPECT_TRUE(scripts.sources.value(0).contains(shown));
    settings.setObject("txtFooter", "Thanks");
    button("Save…")->click();
    panel.pending(folder.filePath("report.txt"));
    EXPECT_EQ(contentOf(folder.filePath("report.txt")), report.eventsAttributedString().text())
        << "a change that the pane is about to show";
}

TEST_F(ExportPanesTest, SavedAreTheNotesInTheOrderThatThePaneShows) {
    for (Event& event : store.storedEvents) {
        auto details = *event.details;
        details.notes = details.title + " notes";
        event.details = std::make_shared<const EventDetails>(details);
    }
    open();
    window->exportActions().notes.trigger();
    fetch();
    const QString shown = notes.notes().text();
    expectNotes(shown);
    events.setOrder(
        [](const Event& left, const Event& right) { return left.startDate > right.startDate; });
    QApplication::processEvents();
    ASSERT_EQ(notesView()->toPlainText(), shown) << "the order is not followed by itself";
    ASSERT_NE(notes.notes().text(), shown);
    button("Save…")->click();
    const QTemporaryDir folder;
    panel.pending(folder.filePath("notes.txt"));
    EXPECT_EQ(contentOf(folder.filePath("notes.txt")), shown);
    settings.setObject("isEventNotesDate", false);
    button("Save…")->click();
    panel.pending(folder.filePath("notes.txt"));
    EXPECT_EQ(contentOf(folder.filePath("notes.txt")), notes.notes().text())
        << "a change that the pane is about to show";
}

TEST_F(ExportPanesTest, MailWithNoPaneOpenTakesTheReport) {
    open();
    window->exportActions().mail.trigger();
    ASSERT_EQ(scripts.sources.size(), 1);
    EXPECT_TRUE(scripts.sources.front().contains("Planning"));
    EXPECT_FALSE(reportView()->isVisible());
}

TEST_F(ExportPanesTest, MailWithTheNotesOpenTakesTheNotes) {
    open();
    window->exportActions().notes.trigger();
    fetch();
    window->exportActions().mail.trigger();
    ASSERT_EQ(scripts.sources.size(), 1);
    EXPECT_TRUE(scripts.sources.front().contains("set subject to \"Event Notes - "));
    button("Close")->click();
    window->exportActions().mail.trigger();
    ASSERT_EQ(scripts.sources.size(), 2);
    EXPECT_FALSE(scripts.sources.back().contains("Event Notes"));
}

TEST_F(ExportPanesTest, MailIsOfferedWhateverProgramsThereAre) {
    scripts.answer = std::unexpected(QStringLiteral("no mail program"));
    open();
    openReport();
    EXPECT_TRUE(window->exportActions().mail.isEnabled());
    EXPECT_EQ(window->exportActions().mail.text(), QStringLiteral("Mail"));
    EXPECT_TRUE(button("Mail")->isEnabled());
}

TEST_F(ExportPanesTest, TheNotesShowTheirHeadingsAndSwitches) {
    auto details = *store.storedEvents.front().details;
    details.notes = QStringLiteral("Bring the drawings\n<b>not bold</b>");
    store.storedEvents.front().details = std::make_shared<const EventDetails>(details);
    open();
    window->exportActions().notes.trigger();
    fetch();
    ASSERT_TRUE(notesView()->isVisible());
    EXPECT_EQ(notesView()->accessibleName(), QStringLiteral("Event Notes"));
    EXPECT_TRUE(isShown("Events with notes: 1"));
    EXPECT_TRUE(areItemsDisabled());
    expectNotes("\nWork - 3/4/24 - Planning\nBring the drawings\n<b>not bold</b>\n\n\n");
    settings.setObject("isEventNotesCalendar", false);
    fetch();
    expectNotes("\n3/4/24 - Planning\nBring the drawings\n<b>not bold</b>\n\n\n");
    QTextCursor cursor(notesView()->document());
    cursor.setPosition(5);
    EXPECT_EQ(cursor.charFormat().fontWeight(), QFont::Bold);
    cursor.setPosition(static_cast<int>(notesView()->toPlainText().indexOf("drawings")) + 1);
    EXPECT_NE(cursor.charFormat().fontWeight(), QFont::Bold);
    button("Save…")->click();
    ASSERT_EQ(panel.requests.size(), 1U);
    EXPECT_TRUE(panel.requests.front().suggestedName.startsWith("Event Notes"));
    button("Close")->click();
    EXPECT_FALSE(notesView()->isVisible());
    EXPECT_TRUE(areItemsEnabled());
}

} // namespace quillet
