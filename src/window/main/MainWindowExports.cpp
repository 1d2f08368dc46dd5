#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/events/EventTableView.h"
#include "window/exports/NotesPane.h"
#include "window/main/MainWindow.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/SymbolIcon.h"

#include <QAction>
#include <QPointer>

namespace quillet {

void MainWindow::makeExportActions() {
    struct Item {
        QAction& action;
        const char* name;
        const char* text;
        const char* toolTip;
        Symbol symbol;
        std::function<void()> trigger;
    };
    for (const Item& item : {
             Item{exportActions_.text, "exportTxtToolbarItemClicked", localizable("Text"),
                  localizable("Show the listed events as a text report"), Symbol::Text,
                  [this] { core_.views.exportTxtToolbarItemClicked(); }},
             Item{exportActions_.notes, "exportNotesToolbarItemClicked", localizable("Notes"),
                  localizable("Show the notes of the listed events"), Symbol::Notes,
                  [this] { core_.views.exportNotesToolbarItemClicked(); }},
             Item{exportActions_.csv, "saveAsCSV", localizable("CSV"),
                  localizable("Save the listed events as a CSV file"), Symbol::Save,
                  [this] { core_.exportCSV.saveAsCSV(); }},
             Item{exportActions_.tsv, "saveAsTSV", localizable("TSV"),
                  localizable("Save the listed events as a TSV file"), Symbol::Save,
                  [this] { core_.exportTSV.saveAsTSV(); }},
             Item{exportActions_.mail, "sendToMail", localizable("Mail"),
                  localizable("Put the report into a new message"), Symbol::Mail,
                  [this] { mail(); }},
         }) {
        item.action.setObjectName(QString::fromLatin1(item.name));
        item.action.setText(localized(item.text));
        item.action.setToolTip(localized(item.toolTip));
        item.action.setIcon(symbolIcon(item.symbol));
        connect(&item.action, &QAction::triggered, this, item.trigger);
    }
    exportActions_.mail.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
}

void MainWindow::addExportPaneAction(QMenu& menu, const QString& text, const Setting<bool>& pane,
                                     const QKeySequence& shortcut) {
    const bool isReport = &pane == &settings::isExportTXTViewOn;
    const Setting<bool>& other = isReport ? settings::isNotesViewOn : settings::isExportTXTViewOn;
    QAction* action =
        addAction(menu, text, isReport ? "displayTxtExportView" : "displayNotesExportView",
                  shortcut, [this, &pane, isReport] {
                      const bool isOpen = pane.read(core_.settings);
                      if (isReport) {
                          isOpen ? closeExportPane(&AppViewsController::turnTxtExportViewOff)
                                 : core_.views.exportTxtToolbarItemClicked();
                      } else {
                          isOpen ? closeExportPane(&AppViewsController::turnNotesExportViewOff)
                                 : core_.views.exportNotesToolbarItemClicked();
                      }
                  });
    action->setCheckable(true);
    const auto follow = [this, action, &pane, &other] {
        action->setChecked(pane.read(core_.settings));
        action->setEnabled(!other.read(core_.settings));
    };
    for (const SettingKey* key : settingGroup(pane, other)) {
        observeWhileAlive(*action, core_.settings, *key, follow);
    }
    follow();
}

WindowPanes::Contents MainWindow::exportPanes() {
    auto* report = new ReportPane(
        core_.exportTxtView, parts_.reportBuilding,
        [this] { core_.preferences.showWindowWithTextPreferencesView(); },
        {.save = [this] { core_.exportTXT.saveAsTxt(); },
         .mail = [this] { core_.exportTXT.sendToMail(); },
         .close = [this] { closeExportPane(&AppViewsController::turnTxtExportViewOff); }},
        this);
    auto* notes = new NotesPane(
        core_.eventNotes, core_.settings,
        {.save = [this] { core_.exportNotes.saveAsTxt(); },
         .mail = [this] { core_.exportNotes.sendToMail(); },
         .close = [this] { closeExportPane(&AppViewsController::turnNotesExportViewOff); }},
        this);
    core_.exportTxtView.setEventTextView(
        [view = QPointer(report)] { return view ? view->shownText() : std::nullopt; });
    core_.eventNotes.setNotesTextView(
        [view = QPointer(notes)] { return view ? view->shownText() : std::nullopt; });
    return {{PaneContent::ExportTxtView, report}, {PaneContent::ExportNotesView, notes}};
}

void MainWindow::closeExportPane(void (AppViewsController::*turnOff)()) {
    (core_.views.*turnOff)();
    parts_.eventTable.setFocus();
}

void MainWindow::mail() {
    if (settings::isNotesViewOn.read(core_.settings)) {
        core_.exportNotes.sendToMail();
    } else {
        core_.exportTXT.sendToMail();
    }
}

void MainWindow::followExportActions() {
    const auto enable = [this] {
        for (QAction* action : {&exportActions_.text, &exportActions_.csv, &exportActions_.tsv,
                                &exportActions_.notes}) {
            action->setEnabled(core_.views.areExportToolbarItemsEnabled());
        }
    };
    connect(&core_.views, &AppViewsController::areExportToolbarItemsEnabledChanged, this, enable);
    enable();
}

void MainWindow::followExportPanes() {
    const auto follow = [this] {
        panes_->setCentreDividerDraggable(!core_.views.effectiveRect(QRectF(rect())).isEmpty());
    };
    for (const SettingKey* key :
         settingGroup(settings::isExportTXTViewOn, settings::isNotesViewOn)) {
        observeWhileAlive(*this, core_.settings, *key, follow);
    }
    follow();
}

} // namespace quillet
