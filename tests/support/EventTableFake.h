#pragma once

#include "eventtable/EventColumns.h"
#include "support/Fakes.h"

namespace quillet::test {

/// A table with the sixteen event columns in their declared order, each 100 points wide.
[[nodiscard]] inline FakeTable eventTable() {
    FakeTable table;
    for (const EventColumn& column : eventColumns()) {
        table.columns.push_back(
            std::make_unique<FakeColumn>(QString::fromLatin1(column.identifier),
                                         column.title.firstRunValue().toString(), 100.0));
    }
    return table;
}

} // namespace quillet::test
