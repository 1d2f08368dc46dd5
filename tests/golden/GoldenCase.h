#pragma once

#include "platform/Event.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <iosfwd>
#include <memory>
#include <optional>
#include <vector>

namespace quillet::golden {

struct CaseColumn {
    QString identifier;
    double widthPoints = 0.0;
    bool isHidden = false;
};

struct CaseCalendar {
    QString title;
    bool isSelected = false;
    /// Whether the stored list has it too, so that its events have a rate.
    bool isStored = true;
    /// As the settings hold it; invalid for a calendar without one.
    QVariant rate;
};

/// What the window looks like before its texts are taken: a member of data/cases.json over the
/// defaults there.
struct GoldenCase {
    QString name;
    QString locale;
    QString zone;
    QDate firstDay;
    QDate lastDay;
    std::vector<CaseColumn> columns;
    std::vector<CaseCalendar> calendars;
    /// Identifiers of events, those among them that are not shown included.
    QStringList selected;
    /// What titles must hold to be shown; empty for no search.
    QString search;
    bool isLatestFirst = false;
    QVariantMap settings;
};

/// How a test's parameter is told.
void PrintTo(const GoldenCase& described, std::ostream* out);

/// The folder of the fixture.
[[nodiscard]] QString dataPath();
/// A file's bytes; nothing when it is not there.
[[nodiscard]] std::optional<QByteArray> fileContent(const QString& path);

/// Throws std::runtime_error when the fixture cannot be read.
[[nodiscard]] const std::vector<GoldenCase>& goldenCases();

/// The events that no calendar file can carry, in order of delivery, each in the calendar of its
/// title.
[[nodiscard]] EventList furtherEvents(const std::vector<std::shared_ptr<const StoreCalendar>>& all);

} // namespace quillet::golden
