#pragma once

#include "platform/ZoneRules.h"

#include <QString>

#include <optional>
#include <string_view>

namespace quillet {

/// Something of an event that does not count as it is written.
struct EventComplaint {
    enum class Kind {
        Start,
        End,
        EndBeforeStart,
        Length,
        NegativeLength,
        TooLong,
        RecurrenceId,
        ExceptionDate,
        ExtraDate,
        Rule,
        ExceptionRule,
        TooManyRepetitions,
        UncertainZone,
    };

    Kind kind;
    /// As it is written, cut to what can be shown.
    QString value;
    /// In the file, counted from 1; 0 where there is no file.
    std::size_t line = 0;
};

/// A value of a file as a complaint shows it.
[[nodiscard]] QString shownValue(std::string_view text);

/// For the user: names the event, its day and the line, what is wrong, what was done about it and
/// what to do.
[[nodiscard]] QString complaintText(const EventComplaint& complaint, const QString& title,
                                    std::optional<LocalSeconds> start);

} // namespace quillet
