#include "window/main/WindowExports.h"

#include "platform/Settings.h"
#include "texts/Localized.h"
#include "window/events/EventTableView.h"
#include "window/exports/NotesPane.h"
#include "window/preferences/SettingsBinding.h"
#include "window/widgets/SymbolIcon.h"

#include <QPointer>

namespace quillet {

WindowExports::WindowExports(Core& core, Parts parts, QWidget& window)
    : core_(core)
    , parts_(std::move(parts))
    , window_(window) {
    makeActions();
}

void WindowExports::makeActions() {
    struct Item {
        QAction& action;
        const char* name;
        const char* text;
        const char* toolTip;
        Symbol symbol;
        std::function<void()> trigger;
    };
    for (const Item& item : {
             Item{actions_.text, "exportTxtToolbarItemClicked", localizable("Text"),
                  localizable("Show the listed events as a text report"), Symbol::Text,
                  [this] { core_.views.exportTxtToolbarItemClicked(); }},
             Item{actions_.notes, "exportNotesToolbarItemClicked", localizable("Notes"),
                  localizable("Show the notes of the listed events"), Symbol::Notes,
                  [this] { core_.views.exportNotesToolbarItemClicked(); }},
             Item{actions_.csv, "saveAsCSV", localizable("CSV"),
                  localizable("Save the listed events as a CSV file"), Symbol::Save,
                  [this] { core_.exportCSV.saveAsCSV(); }},
             Item{actions_.tsv, "saveAsTSV", localizable("TSV"),
                  localizable("Save the listed events as a TSV file"), Symbol::Save,
                  [this] { core_.exportTSV.saveAsTSV(); }},
             Item{actions_.mail, "sendToMail", localizable("Mail"),
                  localizable("Put the report into a new message"), Symbol::Mail,
                  [this] { mail(); }},
         }) {
        item.action.setObjectName(QString::fromLatin1(item.name));
        item.action.setText(localized(item.text));
        item.action.setToolTip(localized(item.toolTip));
        item.action.setIcon(symbolIcon(item.symbol));
        QObject::connect(&item.action, &QAction::triggered, &window_, item.trigger);
    }
    actions_.mail.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_M));
}

void WindowExports::mail() {
    if (settings::isNotesViewOn.read(core_.settings)) {
        core_.exportNotes.sendToMail();
    } else {
        core_.exportTXT.sendToMail();
    }
}

WindowPanes::Contents WindowExports::makePanes() {
    auto* report =
        new ReportPane(core_.exportTxtView, parts_.reportBuilding, parts_.showReportPreferences,
                       {.save = [this] { core_.exportTXT.saveAsTxt(); },
                        .mail = [this] { core_.exportTXT.sendToMail(); },
                        .close = [this] { closeReport(); }},
                       &window_);
    auto* notes = new NotesPane(core_.eventNotes, core_.settings,
                                {.save = [this] { core_.exportNotes.saveAsTxt(); },
                                 .mail = [this] { core_.exportNotes.sendToMail(); },
                                 .close = [this] { closeNotes(); }},
                                &window_);
    core_.exportTxtView.setEventTextView(
        [view = QPointer(report)] { return view ? view->shownText() : std::nullopt; });
    core_.eventNotes.setNotesTextView(
        [view = QPointer(notes)] { return view ? view->shownText() : std::nullopt; });
    return {{PaneContent::ExportTxtView, report}, {PaneContent::ExportNotesView, notes}};
}

void WindowExports::showIn(WindowPanes& panes) {
    panes.follow(core_.views);
    const auto follow = [this, &panes] {
        panes.setCentreDividerDraggable(
            !core_.views.effectiveRect(QRectF(window_.rect())).isEmpty());
    };
    for (const SettingKey* key :
         settingGroup(settings::isExportTXTViewOn, settings::isNotesViewOn)) {
        observeWhileAlive(window_, core_.settings, *key, follow);
    }
    follow();
    QObject::connect(&core_.views, &AppViewsController::areExportToolbarItemsEnabledChanged,
                     &window_, [this] { enableActions(); });
    enableActions();
}

void WindowExports::enableActions() {
    for (QAction* action : {&actions_.text, &actions_.csv, &actions_.tsv, &actions_.notes}) {
        action->setEnabled(core_.views.areExportToolbarItemsEnabled());
    }
}

void WindowExports::bindReportAction(QAction& action) {
    bindPaneAction(
        action, settings::isExportTXTViewOn, settings::isNotesViewOn,
        [this] { core_.views.exportTxtToolbarItemClicked(); }, [this] { closeReport(); });
}

void WindowExports::bindNotesAction(QAction& action) {
    bindPaneAction(
        action, settings::isNotesViewOn, settings::isExportTXTViewOn,
        [this] { core_.views.exportNotesToolbarItemClicked(); }, [this] { closeNotes(); });
}

void WindowExports::bindPaneAction(QAction& action, const Setting<bool>& pane,
                                   const Setting<bool>& other, const std::function<void()>& open,
                                   const std::function<void()>& close) {
    SettingsStore& store = core_.settings;
    QObject::connect(&action, &QAction::triggered, &window_, [&store, &pane, open, close] {
        const auto& change = pane.read(store) ? close : open;
        change();
    });
    action.setCheckable(true);
    const auto follow = [&store, &action, &pane, &other] {
        action.setChecked(pane.read(store));
        action.setEnabled(!other.read(store));
    };
    for (const SettingKey* key : settingGroup(pane, other)) {
        observeWhileAlive(action, store, *key, follow);
    }
    follow();
}

void WindowExports::close(void (AppViewsController::*turnOff)()) {
    (core_.views.*turnOff)();
    parts_.eventTable.setFocus();
}

} // namespace quillet
