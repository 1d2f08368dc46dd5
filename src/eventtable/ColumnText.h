#pragma once

#include "eventtable/EventColumns.h"
#include "platform/Event.h"

#include <QString>
#include <QStringView>

namespace quillet {

/// What one column shows of events in the text report and in copied rows. In free texts every "%"
/// is doubled; nothing else is changed.
class ColumnText {
public:
    explicit ColumnText(const EventColumn& column)
        : column_(&column) {}

    /// Null for a missing value. Valid until the next call, and while the event lives, which the
    /// texts must have been set to.
    [[nodiscard]] QStringView of(const Event& event, EventTexts& texts);

private:
    [[nodiscard]] QStringView cleaned(const QString& text);

    const EventColumn* column_;
    QString made_;
};

} // namespace quillet
