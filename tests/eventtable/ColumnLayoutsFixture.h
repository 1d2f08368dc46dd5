#pragma once

#include "eventtable/ColumnLayoutsArrayController.h"
#include "eventtable/ColumnTable.h"
#include "support/Fakes.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

namespace quillet::test {

inline const QString layoutsKey = QStringLiteral("columnLayouts");

class ColumnLayoutsFixture : public testing::Test {
protected:
    /// The stored layout at a position.
    [[nodiscard]] QVariantMap stored(qsizetype position) const {
        return arrayForKey(settings, layoutsKey).at(position).toMap();
    }
    [[nodiscard]] qsizetype storedCount() const { return arrayForKey(settings, layoutsKey).size(); }
    /// Stores one member of the first stored layout.
    void change(const QString& member, const QVariant& value) {
        QVariantList layouts = arrayForKey(settings, layoutsKey);
        QVariantMap layout = layouts.front().toMap();
        layout.insert(member, value);
        layouts.front() = layout;
        settings.setObject(layoutsKey, layouts);
    }
    void applyFirst() {
        controller.setSelectedRows({0});
        controller.setColumnLayout();
    }
    [[nodiscard]] std::string order() {
        QStringList names;
        for (int position = 0; position < table.columnCount(); ++position) {
            names.append(table.columnAt(position).identifier());
        }
        return names.join(' ').toStdString();
    }

    MemorySettings settings;
    ColumnTable table{settings};
    FakeAlerts alerts;
    ColumnLayoutsArrayController controller{
        {.settings = settings, .eventsTableView = table, .alerts = alerts}};
};

} // namespace quillet::test
