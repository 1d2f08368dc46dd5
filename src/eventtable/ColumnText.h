#pragma once

#include "eventtable/EventTexts.h"
#include "platform/Event.h"

#include <QString>
#include <QStringView>

namespace quillet {

/// What one column shows of events in the text report and in copied rows. In calendar, title, notes
/// and location every "%" is doubled; nothing else is changed.
class ColumnText {
public:
    /// Whether it shows anything of an event: whether the identifier is one of the event table's.
    [[nodiscard]] static bool shows(const QString& identifier);

    /// Of an identifier that it shows.
    explicit ColumnText(const QString& identifier);

    /// Null for a missing value. Valid until the next call, and while the event lives, which the
    /// texts must have been set to.
    [[nodiscard]] QStringView of(const EventDetails& details, EventTexts& texts);

private:
    [[nodiscard]] QStringView cleaned(const QString& text);

    EventTexts::Field field_ = nullptr;
    QString EventDetails::* detail_ = nullptr;
    bool isCleaned_ = true;
    QString made_;
};

} // namespace quillet
