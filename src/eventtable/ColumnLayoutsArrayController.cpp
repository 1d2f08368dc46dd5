#include "eventtable/ColumnLayoutsArrayController.h"

#include "eventtable/EventColumns.h"
#include "eventtable/StoredColumnLayout.h"
#include "platform/Settings.h"
#include "texts/Localized.h"

namespace quillet {

namespace {

/// The key that a layout's column name goes to: made of the stem. For the start-weekday column that
/// is not its title key, so a layout never brings that title back.
QString layoutTitleKey(const ColumnPlacement& placement) {
    return QString::fromLatin1(eventColumn(placement.identifier).stem) + "ColumnTitle";
}

} // namespace

ColumnLayoutsArrayController::ColumnLayoutsArrayController(const Collaborators& collaborators)
    : NamedRecordsController(collaborators.settings, collaborators.alerts,
                             {.list = settings::columnLayouts,
                              .nameMember = QStringLiteral("columnLayoutName"),
                              .firstStaysMessage = localizable("Cannot delete Default layout"),
                              .firstStaysReason = localizable("Default layout cannot be deleted.")})
    , eventsTableView_(collaborators.eventsTableView) {}

void ColumnLayoutsArrayController::awakeFromNib() {
    followStoredList();
    settings::isColumnLayoutUsesNames.writeIfAbsent(settings());
    if (!settings::isDefaultColumnLayoutsCreated.isStored(settings())) {
        createDefaultColumnLayouts();
        settings::isDefaultColumnLayoutsCreated.write(settings(), true);
    }
    settings::isApplyColumnLayoutOn.write(settings(), false);
    updateDefaultColumnLayoutsName();
    selectFirstUnlessSelected();
}

void ColumnLayoutsArrayController::createDefaultColumnLayouts() {
    append(localized("Default"), membersFromPlacements(defaultColumnPlacements()));
}

void ColumnLayoutsArrayController::updateDefaultColumnLayoutsName() {
    rename(0, localized("Default"));
}

void ColumnLayoutsArrayController::createColumnLayout() {
    if (content()->empty()) {
        // Somebody emptied the store; the first layout is the default one all the same.
        createDefaultColumnLayouts();
    }
    append(numberedName(localized("New Layout")),
           membersFromPlacements(capturedPlacements(eventsTableView_)));
}

void ColumnLayoutsArrayController::saveColumnLayout() {
    createColumnLayout();
    editLastName();
}

void ColumnLayoutsArrayController::setColumnLayout() {
    applyColumnLayout();
}

void ColumnLayoutsArrayController::applyColumnLayout() {
    if (selectedRows().empty()) {
        return;
    }
    const std::vector<ColumnPlacement> placements =
        placementsFromMembers(arranged(selectedRows().front()).members);
    settings::isApplyColumnLayoutOn.write(settings(), true);
    // One column after the other: each write of a visibility key may move the time columns.
    for (const ColumnPlacement& placement : placements) {
        if (settings::isColumnLayoutUsesNames.read(settings()) && !placement.title.isNull()) {
            settings().setObject(layoutTitleKey(placement), placement.title);
        }
        applyPlacements({placement}, eventsTableView_);
        applyVisibility(placement);
    }
    settings::isApplyColumnLayoutOn.write(settings(), false);
}

void ColumnLayoutsArrayController::applyVisibility(const ColumnPlacement& placement) {
    const EventColumn& column = eventColumn(placement.identifier);
    const bool isVisible = !placement.isHidden;
    // The three time columns share one key: it ends up on when any of them was visible.
    if (column.timeType == TimeType::Hours) {
        column.visibility.write(settings(), false);
        if (isVisible) {
            column.visibility.write(settings(), true);
        }
    }
    const bool isRival = column.timeType && column.timeType != TimeType::Hours;
    if (isVisible || !isRival) {
        column.visibility.write(settings(), isVisible);
    }
}

void ColumnLayoutsArrayController::removeColumnLayout() {
    removeSelected();
}

} // namespace quillet
