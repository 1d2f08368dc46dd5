#pragma once

#include "calendars/CalendarsArrayController.h"

#include <QAbstractTableModel>
#include <QColor>

#include <functional>

namespace quillet {

/// Shows the user's list of calendars, one to a row, with a tick and the calendar's colour.
class CalendarListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The colour of the calendar of an identifier; invalid when it has none.
    using ColorOf = std::function<QColor(const QString& calendarIdentifier)>;

    CalendarListModel(CalendarsArrayController& calendars, ColorOf colorOf,
                      QObject* parent = nullptr);
    ~CalendarListModel() override;
    Q_DISABLE_COPY_MOVE(CalendarListModel)

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    CalendarsArrayController& calendars_;
    ColorOf colorOf_;
};

} // namespace quillet
