#include "eventtable/ColumnLayoutsArrayController.h"

#include "eventtable/EventColumns.h"
#include "platform/Localized.h"

#include <algorithm>
#include <tuple>

namespace quillet {

namespace {

const QString layoutsKey = QStringLiteral("columnLayouts");
const QString usesNamesKey = QStringLiteral("isColumnLayoutUsesNames");
const QString isDefaultCreatedKey = QStringLiteral("isDefaultColumnLayoutsCreated");
const QString isApplyingKey = QStringLiteral("isApplyColumnLayoutOn");

/// The key that a layout's column name goes to: made of the stem. For the start-weekday column that
/// is not its title key, so a layout never brings that title back.
QString layoutTitleKey(const ColumnPlacement& placement) {
    return QString::fromLatin1(eventColumn(placement.identifier).stem) + "ColumnTitle";
}

} // namespace

ColumnLayoutsArrayController::ColumnLayoutsArrayController(const Collaborators& collaborators)
    : with_(collaborators) {}

void ColumnLayoutsArrayController::awakeFromNib() {
    SettingsStore& settings = with_.settings;
    setIfAbsent(settings, layoutsKey, QVariantList());
    readStoredLayouts();
    storedLayouts_ = settings.observe(layoutsKey, [this] { readStoredLayouts(); });
    setIfAbsent(settings, usesNamesKey, true);
    if (!hasKey(settings, isDefaultCreatedKey)) {
        createDefaultColumnLayouts();
        settings.setObject(isDefaultCreatedKey, true);
    }
    settings.setObject(isApplyingKey, false);
    updateDefaultColumnLayoutsName();
    if (selectedRows().empty() && arrangedCount() > 0) {
        // The keys of the list have something to begin with.
        setSelectedRows({0});
    }
}

void ColumnLayoutsArrayController::createDefaultColumnLayouts() {
    append({.columnLayoutName = localized("Default"),
            .placements = defaultColumnPlacements(),
            .otherMembers = {}});
}

void ColumnLayoutsArrayController::updateDefaultColumnLayoutsName() {
    if (arrangedCount() > 0) {
        renameColumnLayout(0, localized("Default"));
    }
}

void ColumnLayoutsArrayController::createColumnLayout() {
    if (content()->empty()) {
        // Somebody emptied the store; the first layout is the default one all the same.
        createDefaultColumnLayouts();
    }
    const QString name = localized("New Layout") + u' ' + QString::number(content()->size() + 1);
    append(capturedColumnLayout(with_.eventsTableView, name));
}

void ColumnLayoutsArrayController::saveColumnLayout() {
    createColumnLayout();
    Q_EMIT nameEditingRequested(arrangedCount() - 1);
}

void ColumnLayoutsArrayController::setColumnLayout() {
    applyColumnLayout();
}

void ColumnLayoutsArrayController::applyColumnLayout() {
    if (selectedRows().empty()) {
        return;
    }
    const StoredColumnLayout layout = arranged(selectedRows().front());
    with_.settings.setObject(isApplyingKey, true);
    // One column after the other: each write of a visibility key may move the time columns.
    for (const ColumnPlacement& placement : layout.placements) {
        if (boolForKey(with_.settings, usesNamesKey) && !placement.title.isNull()) {
            with_.settings.setObject(layoutTitleKey(placement), placement.title);
        }
        applyPlacements({placement}, with_.eventsTableView);
        applyVisibility(placement);
    }
    with_.settings.setObject(isApplyingKey, false);
}

void ColumnLayoutsArrayController::applyVisibility(const ColumnPlacement& placement) {
    const QString key = QString::fromLatin1(eventColumn(placement.identifier).visibilityKey);
    const bool isVisible = !placement.isHidden;
    // The three time columns share one key: it ends up on when any of them was visible.
    if (placement.identifier == u"hours") {
        with_.settings.setObject(key, false);
        if (isVisible) {
            with_.settings.setObject(key, true);
        }
    }
    const bool isRival = placement.identifier == u"duration" || placement.identifier == u"minutes";
    if (isVisible || !isRival) {
        with_.settings.setObject(key, isVisible);
    }
}

void ColumnLayoutsArrayController::removeColumnLayout() {
    if (selectedRows().empty()) {
        return;
    }
    const std::size_t row = selectedRows().front();
    if (row == 0) {
        std::ignore = with_.alerts.runModal(
            {.style = AlertStyle::Warning,
             .messageText = localized("Cannot delete Default layout"),
             .informativeText = localized("Default layout cannot be deleted."),
             .buttonTitles = {localized("OK")}});
        return;
    }
    const StoredColumnLayout doomed = arranged(row);
    const int answer =
        with_.alerts.runModal({.style = AlertStyle::Warning,
                               .messageText = localized("Delete the record?"),
                               .informativeText = localized("Deleted records cannot be restored."),
                               .buttonTitles = {localized("OK"), localized("Cancel")}});
    // The stored list may have changed under the question.
    if (answer != 0 || row >= arrangedCount() ||
        valueFromColumnLayout(arranged(row)) != valueFromColumnLayout(doomed)) {
        return;
    }
    std::vector<StoredColumnLayout> layouts = *content();
    layouts.erase(layouts.begin() + static_cast<std::ptrdiff_t>(contentIndex(row)));
    store(layouts, {std::min(row, layouts.size() - 1)});
}

void ColumnLayoutsArrayController::renameColumnLayout(std::size_t row, const QString& name) {
    std::vector<StoredColumnLayout> layouts = *content();
    layouts.at(contentIndex(row)).columnLayoutName = name;
    store(layouts, selectedRows());
}

void ColumnLayoutsArrayController::append(const StoredColumnLayout& layout) {
    std::vector<StoredColumnLayout> layouts = *content();
    layouts.push_back(layout);
    store(layouts, {layouts.size() - 1});
}

void ColumnLayoutsArrayController::store(const std::vector<StoredColumnLayout>& layouts,
                                         std::vector<std::size_t> selectedRows) {
    QVariantList values;
    for (const StoredColumnLayout& layout : layouts) {
        values.append(valueFromColumnLayout(layout));
    }
    with_.settings.setObject(layoutsKey, values);
    setSelectedRows(std::move(selectedRows));
}

void ColumnLayoutsArrayController::readStoredLayouts() {
    const std::vector<std::size_t> rows = selectedRows();
    std::vector<StoredColumnLayout> layouts;
    for (const QVariant& value : arrayForKey(with_.settings, layoutsKey)) {
        if (value.typeId() == QMetaType::QVariantMap) {
            layouts.push_back(columnLayoutFromValue(value));
        }
    }
    setContent(std::move(layouts));
    setSelectedRows(rows);
}

} // namespace quillet
